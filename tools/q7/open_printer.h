// A connection to the printer, through the library, closed at its end.
#pragma once

#include "printer_address.h"
#include "printer_library.h"
#include "printer_state.h"

namespace q7tool
{

class OpenPrinter
{
public:
    /** Opens. Throws Failure that names the cause, which it may look for past the library. */
    OpenPrinter(const PrinterLibrary& library, const PrinterAddress& address);
    ~OpenPrinter();
    OpenPrinter(const OpenPrinter&) = delete;
    OpenPrinter& operator=(const OpenPrinter&) = delete;

    /** Hands over what was printed. Throws Failure when it could not. */
    void close();

    const PrinterLibrary& library() const { return m_library; }

    PrinterState state() const { return m_state; } // when it was opened
    PrinterState askState() const;

    /** The identification of that kind (IdImpressora); empty when the printer does not tell. */
    std::string identification(int kind) const;

    /** Throws Failure for a result that is none of success. call: the function's name. */
    static void demand(const char* call, int result);

private:
    const PrinterLibrary& m_library;
    PrinterAddress m_address;
    PrinterState m_state;
    bool m_isOpen = false;
};

} // namespace q7tool
