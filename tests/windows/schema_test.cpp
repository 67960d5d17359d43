// What no export shows on Windows: the settings file, and schema validation with paths that have
// accents and blanks, and with what must not be opened.
#include "config_file.h"
#include "host.h"
#include "q7_impressora.h"
#include "xsd_validator.h"

#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& content)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

std::string schemaOf(const std::string& content)
{
    return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + content + "</xs:schema>";
}

std::string including(const std::string& location)
{
    return schemaOf("<xs:include schemaLocation='" + location +
                    "'/><xs:element name='r' type='T'/>");
}

} // namespace

int main()
{
    const auto check = [](const char* name, bool passed) { ::check(name, passed ? 1 : 0, ""); };
    fs::remove(fs::path(q7::configFilePath()));
    check("settings file made", q7::ensureConfigFile());
    check("default read back", q7::config::caminhoXsd(q7::IniFile(q7::configFilePath())) ==
                                   "C:/Program Files (x86)/Q7/");

    const std::string part =
        schemaOf("<xs:simpleType name='T'><xs:restriction base='xs:int'/></xs:simpleType>");
    const fs::path folder = fs::temp_directory_path() / fs::u8path("q7 não lidos");
    const fs::path main = folder / "xsd/SAT/XML_SAT.xsd";
    const QString folderText = QString::fromStdWString((folder / "").wstring());
    const auto result = [&](const char* document, int kind = q7::XsdCfeSale) {
        return q7::checkXsd(document, kind, 0, folderText).result;
    };
    fs::remove_all(folder);
    check("no schema", result("<r>1</r>") == Q7_ERR_XSD_MISSING);
    write(folder / "part.xsd", part);
    write(folder / fs::u8path("xsd/SAT/seção 1/part.xsd"), part);
    write(main, including("se%C3%A7%C3%A3o%201/part.xsd"));
    check("a folder with accents and blanks", result("<r>1</r>") == Q7_OK);
    check("a fault", result("<r>x</r>") == Q7_ERR_XSD);
    check("an encoding of Windows",
          result("<?xml version='1.0' encoding='windows-1252'?><r>1<!-- \xe7 --></r>") == Q7_OK);
    check("a folder for a schema", result("<r>1</r>", 7) == Q7_ERR_XSD);
    const std::string outsides[] = {"..\\..\\part.xsd", (folder / "part.xsd").u8string(),
                                    "\\\\127.0.0.1\\c$\\part.xsd", "nul", "con"};
    for (const std::string& outside : outsides) {
        write(main, including(outside));
        check(("not " + outside).c_str(), result("<r>1</r>") == Q7_ERR_XSD);
    }
    fs::remove_all(folder);
    return exitStatus();
}
