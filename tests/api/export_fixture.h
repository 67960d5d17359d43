// The library as an application uses it, with a printer at the far end.
#pragma once

#include "bytes.h"
#include "fake_printer.h"
#include "q7_impressora.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <memory>

namespace q7test
{

/** What a call leaves in the log. "> 1B 61" or "> "text"" is a send, in the form of golden files;
 *  any other line is one of the calls. */
using Transcript = std::vector<std::string>;

/** The transcript as DataFolder::takeLog() gives it. */
std::vector<std::string> logOf(const Transcript& transcript);

/** The time that a call takes. */
template <typename Call> Clock::duration durationOf(Call call)
{
    const Clock::time_point start = Clock::now();
    call();
    return Clock::now() - start;
}

class ExportTest : public testing::Test
{
protected:
    ~ExportTest() override { FechaConexaoImpressora(); }

    /** Opens a connection to a new printer, behind which the log and the bytes begin anew. */
    void openTcp(const PrinterScript& script = PrinterScript());
    void openSerial(const PrinterScript& script = PrinterScript());

    /** The bytes that the printer received since the last call. Sends a mark behind them. */
    std::string takeSent();

    DataFolder data;
    std::unique_ptr<FakePrinter> farEnd;

private:
    void open(const std::string& model);

    std::size_t m_taken = 0;
};

} // namespace q7test
