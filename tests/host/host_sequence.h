/* What an application does in a day: compiled as C against the public header alone. */
#ifndef HOST_SEQUENCE_H
#define HOST_SEQUENCE_H

#ifdef __cplusplus
extern "C" {
#endif

struct HostPrinters {
    int tcpPort;
    int closingPort; /* its printer closes the connection in the middle of a receipt */
    const char* terminal;
};

/* Returns 0, or the number of the line on which something was not as it must be. */
int runHostSequence(const struct HostPrinters* printers);

/* Prints, and writes to the standard streams, all of which are closed. Returns as above. */
int talkWhilePrinting(int tcpPort);

/* Prints the same receipt 2,000 times. Returns the growth of the resident memory behind the first
 * 100, in KiB; -1 when printing failed. */
long memoryGrowthKib(int tcpPort);

#ifdef __cplusplus
}
#endif

#endif
