// Runs q7, and says what is expected of it.
#pragma once

#include "fake_printer.h"
#include "program.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace q7test
{

/** The three lines of a failure, with the line's end behind each. */
std::string threeLines(const std::string& happened, const std::string& code,
                       const std::string& todo);

class Tool : public testing::Test
{
protected:
    static ProgramResult run(std::vector<std::string> arguments);
    /** The same with --json, its answer read. */
    static nlohmann::json ask(std::vector<std::string> arguments, int exitCode);

    DataFolder data{DataFolder::Log::Off};
};

/** The printer as --impressora names it. */
std::string at(const FakePrinter& printer, const std::string& model = "VANTA");

} // namespace q7test
