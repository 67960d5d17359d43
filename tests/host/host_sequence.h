// What an application does in a day.
#pragma once

struct HostPrinters {
    int tcpPort;
    int closingPort; // its printer closes the connection in the middle of a receipt
    const char* terminal;
};

/** Returns 0, or the number of the line on which something was not as it must be. */
int runHostSequence(const HostPrinters& printers);
