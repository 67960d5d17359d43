// A schema and every file that it includes and imports, read into memory.
#pragma once

#include "schema_fault.h"

#include <filesystem>
#include <libxml/tree.h>
#include <optional>
#include <string>
#include <vector>

namespace q7
{

/** Files are read here and not by libxml2, which would follow a location to any folder or host. Only
 *  relative locations count, and only those that stay within the main file's folder. */
class SchemaFiles
{
public:
    /** Reads everything. A file that is included but cannot be had, is no well-formed XML, or uses
     *  external entities is a fault; an import that cannot be had is none: it has no location
     *  then. */
    explicit SchemaFiles(const std::filesystem::path& mainFile);

    const SchemaFaults& faults() const { return m_faults; }

    /** By which libxml2 knows the file that all begins with. Every file names the others by their
     *  addresses. */
    static std::string mainAddress() { return addressOf(0); }

    /** The file at an address, null when there is none. */
    const std::string* textAt(const std::string& address) const;

    /** A text of libxml2's with the files' paths within the folder in the place of addresses. */
    std::string withNames(std::string text) const;

private:
    struct File {
        std::filesystem::path path; // within the folder
        std::string text;
    };

    static std::string addressOf(std::size_t number);
    void read(std::size_t number);
    std::string relocated(std::size_t number, const xmlDoc& tree);
    std::optional<std::string> addressFor(const std::string& location,
                                          const std::filesystem::path& from);

    std::filesystem::path m_folder;
    std::vector<File> m_files;
    SchemaFaults m_faults;
};

/** While one lives, libxml2 reads these files on this thread, and no others: an address that is not
 *  theirs finds nothing. libxml2 keeps this choice for each thread apart, so that a program that uses
 *  it elsewhere does not notice, and it is put back in the end. (The libxml2 inside our programs for
 *  Windows is built without threads; nothing else there uses it.) */
class OfferedFiles
{
public:
    explicit OfferedFiles(const SchemaFiles& files);
    ~OfferedFiles();
    OfferedFiles(const OfferedFiles&) = delete;
    OfferedFiles& operator=(const OfferedFiles&) = delete;
};

} // namespace q7
