// The schema validator: documents of all sorts against a schema, and schemas of all sorts. The last
// byte of an input chooses which of the two it is. Q7_TORTURE_SCHEMA names the schema's file.

#include "compiled_schema.h"

#include <cstdlib>
#include <fstream>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const q7::CompiledSchema schema(std::getenv("Q7_TORTURE_SCHEMA"));
    if (size == 0)
        return 0;
    const std::string text(reinterpret_cast<const char*>(data), size - 1);
    if (data[size - 1] % 8 != 0) {
        schema.check(text);
        return 0;
    }
    static const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                              ("q7-torture-" + std::to_string(getpid()) + ".xsd");
    std::ofstream(file, std::ios::binary) << text;
    q7::CompiledSchema(file).check("<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"/>");
    return 0;
}
