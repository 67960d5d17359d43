#include "fake_printer.h"

namespace q7test
{
namespace
{

virtual_printer::ServerSettings settingsOf(const PrinterScript& script, FakePrinter::Line line)
{
    virtual_printer::ServerSettings settings;
    settings.model = *virtual_printer::findModel(script.model);
    settings.state = script.state;
    settings.behaviour = script;
    settings.serial = line == FakePrinter::Line::Serial;
    settings.tcp = !settings.serial;
    return settings;
}

} // namespace

PrinterScript faultyAt(PrinterScript::Fault fault, std::uint64_t byte)
{
    PrinterScript script;
    script.fault = fault;
    script.faultAfterBytes = byte;
    return script;
}

FakePrinter::FakePrinter(const PrinterScript& script, Line line, Keep keep)
    : RecordingPrinter(settingsOf(script, line), keep), m_script(script)
{
}

void FakePrinter::change(const std::function<void(PrinterScript&)>& edit)
{
    edit(m_script);
    setBehaviour(m_script);
    setState(m_script.state);
    setModel(*virtual_printer::findModel(m_script.model));
}

FakePrinter::Record FakePrinter::latest() const
{
    Record latest;
    waitUntil([&](const Records& all) {
        if (!all.empty())
            latest = all.back();
        return true;
    });
    return latest;
}

std::string FakePrinter::waitForBytes(std::size_t count) const
{
    waitUntil([=](const Records& all) { return !all.empty() && all.back().bytes.size() >= count; },
              generousTime);
    return latest().bytes;
}

std::string FakePrinter::waitForClose() const
{
    const bool isClosed = waitUntil(
        [](const Records& all) { return !all.empty() && all.back().ended; }, generousTime);
    return isClosed ? latest().bytes : std::string();
}

bool FakePrinter::waitForFault() const
{
    return waitUntil([](const Records& all) { return !all.empty() && all.back().faulted; },
                     generousTime);
}

} // namespace q7test
