// The receipts of one connection as files: a picture and a text each.
#pragma once

#include "paper.h"
#include "picture.h"

#include <fstream>
#include <functional>
#include <memory>
#include <optional>

namespace virtual_printer
{

/** Paper that a cut or the end of the connection divides into receipts STEM-1, STEM-2, ... */
class ReceiptFiles : public Paper
{
public:
    using Written = std::function<void(const std::string& path)>;

    /** pictureGlyphs: null for texts without pictures; must outlive this.
     *  written: told of every file once it is complete. */
    ReceiptFiles(std::string stem, int widthDots, Glyphs* pictureGlyphs, Written written);

    void print(const Bitmap& dots, int advanceDots, std::string_view text) override;
    void feed(int dots) override;
    void cut() override;
    void note(std::string_view text) override;
    /** The connection has ended. */
    void end();

private:
    void begin();
    void endReceipt(Picture::End how);

    std::string m_stem;
    int m_widthDots;
    Glyphs* m_glyphs;
    Written m_written;
    int m_number = 0;
    bool m_begun = false;
    std::string m_textPath;
    std::ofstream m_text;
    std::optional<Picture> m_picture;
};

} // namespace virtual_printer
