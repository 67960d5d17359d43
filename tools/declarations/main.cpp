// Makes from the public header what it is the one source of.
//
//   q7_declarations declarations CASTXML-OUTPUT HEADER FOLDER   the declarations in other languages
//   q7_declarations manual CASTXML-OUTPUT HEADER FOLDER         the manual's reference part
//   q7_declarations examples CASTXML-OUTPUT HEADER FOLDER       its examples as a C program
#include "languages.h"
#include "manual.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

using namespace q7decl;

namespace
{

struct Output {
    const char* file;
    std::string (*write)(const Interface&);
};

constexpr Output declarations[] = {
    {"delphi/Q7Impressora.pas", delphiUnit},
    {"csharp/Q7Impressora.cs", csharpClass},
    {"vb6/Q7Impressora.bas", vb6Module},
    {"java/q7/Q7Impressora.java", javaClass},
    {"python/q7_impressora.py", pythonModule},
    {"php/Q7Impressora.php", phpClass},
    {"cpp/q7_codes.inc", cppCodes},
    {"c/q7_mensagem.h", cMessages},
};

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot be read: " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const std::filesystem::path& path, const std::string& content)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file)
        throw std::runtime_error("cannot be written: " + path.string());
}

} // namespace

int main(int argc, char** argv)
{
    const std::string_view what = argc == 5 ? argv[1] : "";
    if (what != "declarations" && what != "manual" && what != "examples") {
        std::fprintf(stderr,
                     "usage: %s declarations|manual|examples CASTXML-OUTPUT HEADER FOLDER\n",
                     argv[0]);
        return 2;
    }
    const char* header = argv[3];
    const std::filesystem::path folder = argv[4];
    try {
        const Interface interface = readInterface(contentOf(argv[2]), contentOf(header));
        if (what == "declarations")
            for (const Output& output : declarations)
                write(folder / output.file, output.write(interface));
        else if (what == "manual")
            for (const auto& [file, page] : manualPages(interface))
                write(folder / file, page);
        else
            write(folder / "header_examples.c", headerExamples(interface));
    } catch (const HeaderError& error) {
        std::fprintf(stderr, "%s: %s\n", header, error.what());
        return 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", argv[0], error.what());
        return 1;
    }
    return 0;
}
