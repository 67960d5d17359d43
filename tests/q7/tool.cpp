#include "tool.h"

#include <cstdlib>
#include <filesystem>

namespace q7test
{

std::string threeLines(const std::string& happened, const std::string& code,
                       const std::string& todo)
{
    return "O que houve: " + happened + "\nCódigo: " + code + "\nO que fazer: " + todo + '\n';
}

ProgramResult Tool::run(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), Q7_TOOL);
#ifdef __SANITIZE_ADDRESS__
    // Its own dlopen does not look where the tool's run path says.
    ::setenv("LD_LIBRARY_PATH", std::filesystem::path(Q7_LIBRARY).parent_path().c_str(), 0);
#endif
    return runProgram(arguments);
}

nlohmann::json Tool::ask(std::vector<std::string> arguments, int exitCode)
{
    arguments.emplace_back("--json");
    const ProgramResult result = run(std::move(arguments));
    EXPECT_EQ(exitCode, result.exitCode) << result.output;
    const nlohmann::json answer = nlohmann::json::parse(result.output, nullptr, false);
    EXPECT_FALSE(answer.is_discarded()) << result.output;
    EXPECT_EQ(exitCode, answer.value("saida", -1)) << result.output;
    return answer;
}

std::string at(const FakePrinter& printer, const std::string& model)
{
    return printer.serialPath().empty() ? model + "@net:127.0.0.1:" + std::to_string(printer.port())
                                        : model + "@com:" + printer.serialPath();
}

} // namespace q7test
