// The virtual printer as the far end of a test's link.
#pragma once

#include "recording_printer.h"

namespace q7test
{

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds generousTime = std::chrono::seconds(15);

/** Which printer it is and how it behaves; by default a quick and friendly VANTA. */
struct PrinterScript : virtual_printer::Behaviour {
    std::string model = "VANTA";
    virtual_printer::State state = {};
};

/** A printer that does so once so many bytes of a connection have come. */
PrinterScript faultyAt(PrinterScript::Fault fault, std::uint64_t byte);

class FakePrinter : public virtual_printer::RecordingPrinter
{
public:
    enum class Line { Tcp, Serial }; // at 127.0.0.1; on a pseudo-terminal

    FakePrinter(const PrinterScript& script, Line line, Keep keep = Keep::All);

    void change(const std::function<void(PrinterScript&)>& edit);

    /** What came over the latest connection; on a serial line, from one opening of the port to its
     *  close. */
    Record latest() const;
    /** The latest connection's bytes, once there are so many of them; what came in time. */
    std::string waitForBytes(std::size_t count) const;
    /** The latest connection's bytes once it was closed, all that were sent. Empty when it was not
     *  closed in time. */
    std::string waitForClose() const;
    /** Whether what the script has it do wrong happens to the latest connection in time. */
    bool waitForFault() const;

private:
    PrinterScript m_script;
};

struct TcpPrinter : FakePrinter {
    explicit TcpPrinter(const PrinterScript& script = PrinterScript(), Keep keep = Keep::All)
        : FakePrinter(script, Line::Tcp, keep)
    {
    }
};

struct PtyPrinter : FakePrinter {
    explicit PtyPrinter(const PrinterScript& script = PrinterScript())
        : FakePrinter(script, Line::Serial)
    {
    }
};

/** Opens a connection to that printer by the library's export and returns the result. */
int openOn(const FakePrinter& printer, const std::string& model = "VANTA");
/** The same, up to three times: a busy machine may keep the printer from answering in time. */
int openPatientlyOn(const FakePrinter& printer, const std::string& model = "VANTA");

} // namespace q7test
