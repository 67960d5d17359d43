// Small INI files, in the form that QSettings writes and reads.
#pragma once

#include "file_access.h"

#include <QString>
#include <memory>
#include <optional>

namespace q7
{

/** An INI file as it was when the object was made. */
class IniFile
{
public:
    explicit IniFile(const NativePath& path);
    ~IniFile();

    FileState state() const { return m_state; }

    /** The text of a key of a group; nothing when the file, or what could be read of it, lacks it.
     *  Names are found whatever the case of their letters. Texts are UTF-8; one with commas outside
     *  quotes, which is a list, comes with a blank behind each. */
    std::optional<QString> value(const char* group, const char* key) const;

private:
    struct Parsed;

    FileState m_state;
    std::unique_ptr<Parsed> m_parsed;
};

struct IniSetting {
    const char* group;
    const char* key;
    const char* defaultText; // without characters that the form escapes or quotes
};

/** A new file's content: every setting with its default, in their order, those of a group standing
 *  together. */
QByteArray iniContent(const IniSetting* begin, const IniSetting* end);

} // namespace q7
