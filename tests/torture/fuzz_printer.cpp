// The virtual printer: any bytes parsed and drawn, and any library log. The first byte of an input
// chooses the model, and what the others are.

#include "recorded_connection.h"
#include "table_glyphs.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

using namespace virtual_printer;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static TableGlyphs glyphs;
    static constexpr const char* models[] = {"VANTA", "ORLA-K", "SORBE", "TESMO"};
    static const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("q7-torture-" + std::to_string(getpid()));
    if (size == 0)
        return 0;
    std::filesystem::create_directories(folder);
    const Model& model = *findModel(models[data[0] % 4]);
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);

    std::size_t parsed = 0;
    for (const Command& command : parseAll(bytes)) {
        if (command.offset != parsed)
            std::abort();
        parsed += command.bytes.size();
    }
    if (parsed != bytes.size())
        std::abort();

    Workshop workshop;
    workshop.stem = (folder / "job").string();
    workshop.looks.glyphs = &glyphs;
    std::istringstream input(bytes);
    if (data[0] < 0xC0)
        drawBytes(input, workshop, model);
    else
        drawLog(input, workshop, model, (data[0] & 4) != 0, [](std::uint64_t) {});
    std::filesystem::remove_all(folder);
    return 0;
}
