// Runs q7, and says what is expected of it.
#pragma once

#include "fake_printer.h"
#include "program.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace q7test
{

using Arguments = std::vector<std::string>;

/** "estado -i VANTA@usb" as arguments, and more behind them. */
Arguments words(const std::string& line, const Arguments& more = {});

/** The three lines of a failure, with the line's end behind each. */
std::string threeLines(const std::string& happened, const std::string& code,
                       const std::string& todo);

/** Whether it ended so and said this somewhere, or at the beginning. */
testing::AssertionResult says(const ProgramResult& result, int exitCode, const std::string& text);
testing::AssertionResult begins(const ProgramResult& result, int exitCode, const std::string& text);

/** Whether that was printed as the golden file says, behind what is sent before a document. */
testing::AssertionResult printedAsGolden(const std::string& name, const std::string& bytes,
                                         const std::string& after);
extern const std::string beforeDocument;
extern const std::string stateQueries;
extern const std::string feedAndCut;

class Tool : public testing::Test
{
protected:
    static ProgramResult run(Arguments arguments);
    /** The same with --json, its answer read. */
    static nlohmann::json ask(Arguments arguments, int exitCode);

    DataFolder data{DataFolder::Log::Off};
};

/** The printer as --impressora names it. */
std::string at(const FakePrinter& printer, const std::string& model = "VANTA");

} // namespace q7test
