#include "tool.h"

#include "bytes.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace q7test
{

const std::string stateQueries = hex("1D 61 00 10 04 02  1D 61 00 10 04 04");
const std::string beforeDocument = hex("1D 49 43") + stateQueries;
const std::string feedAndCut = hex("0A 0A 0A 0A 0A  1D 56 00");

Arguments words(const std::string& line, const Arguments& more)
{
    std::istringstream text(line);
    Arguments all(std::istream_iterator<std::string>{text}, {});
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::string threeLines(const std::string& happened, const std::string& code,
                       const std::string& todo)
{
    return "O que houve: " + happened + "\nCódigo: " + code + "\nO que fazer: " + todo + '\n';
}

testing::AssertionResult says(const ProgramResult& result, int exitCode, const std::string& text)
{
    if (result.exitCode == exitCode && result.output.find(text) != std::string::npos)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected " << exitCode << " and \"" << text << "\", got "
                                       << result.exitCode << " and \"" << result.output << '"';
}

testing::AssertionResult begins(const ProgramResult& result, int exitCode, const std::string& text)
{
    return says({result.output.substr(0, text.size()), result.exitCode}, exitCode, text);
}

testing::AssertionResult printedAsGolden(const std::string& name, const std::string& bytes,
                                         const std::string& after)
{
    const std::size_t around = beforeDocument.size() + after.size();
    if (bytes.size() < around)
        return sameBytes(beforeDocument + after, bytes);
    const std::string document = bytes.substr(beforeDocument.size(), bytes.size() - around);
    if (const auto same = sameBytes(beforeDocument + document + after, bytes); !same)
        return same;
    return sameAsGolden(name, document);
}

ProgramResult Tool::run(Arguments arguments)
{
    arguments.insert(arguments.begin(), Q7_TOOL);
#ifdef __SANITIZE_ADDRESS__
    // Its own dlopen does not look where the tool's run path says.
    ::setenv("LD_LIBRARY_PATH", std::filesystem::path(Q7_LIBRARY).parent_path().c_str(), 0);
#endif
    return runProgram(arguments);
}

nlohmann::json Tool::ask(Arguments arguments, int exitCode)
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
