// Why a printer could not be opened, told by its cause.
#pragma once

#include "devices.h"
#include "failure.h"
#include "printer_address.h"
#include "printer_probe.h"

namespace q7tool
{

/** What speaks for a cause, beside the library's result. */
struct OpenEvidence {
    int result = 0;    // of AbreConexaoImpressora; 0 where the link was not open behind it
    ProbeResult probe; // network and serial port
    std::vector<SerialPort> serialPorts; // serial port
    std::vector<UsbPrinter> usbPrinters; // USB
};

/** Gathers the evidence, which takes up to ten seconds. */
OpenEvidence gatherEvidence(const PrinterAddress& address, int result);

/** The cause; depends on nothing but its arguments. */
Failure explainOpenFailure(const PrinterAddress& address, const OpenEvidence& evidence);

} // namespace q7tool
