// The printer's fonts, made from a monospaced outline font.
#pragma once

#include "glyphs.h"

#include <map>
#include <memory>
#include <string>

class QGuiApplication;

namespace virtual_printer
{

/** What drawing text needs of Qt: an application object that shows nothing and asks for no
 *  display. One per process, made in main() and alive until the last glyph was drawn. */
class OffscreenApplication
{
public:
    OffscreenApplication();
    ~OffscreenApplication();
    OffscreenApplication(const OffscreenApplication&) = delete;
    OffscreenApplication& operator=(const OffscreenApplication&) = delete;

private:
    std::unique_ptr<QGuiApplication> m_application;
};

class FontGlyphs : public Glyphs
{
public:
    /** fontFile: a monospaced font; empty for DejaVu Sans Mono, whose characters fill both cells
     *  exactly (Debian: fonts-dejavu-core). Throws std::runtime_error when there is none. */
    explicit FontGlyphs(const std::string& fontFile = {});

    const Bitmap& glyph(char16_t character, Font font) override;

private:
    std::string m_family;
    std::map<std::pair<char16_t, Font>, Bitmap> m_drawn;
};

} // namespace virtual_printer
