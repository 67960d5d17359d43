/* A program without Qt. Says nothing; the exit code tells. */
#include "host_sequence.h"

#include <stdlib.h>
#include <string.h>

int main(int argc, char** argv)
{
    if (argc == 3 && strcmp(argv[1], "memory") == 0) {
        const long kib = memoryGrowthKib(atoi(argv[2]));
        return kib < 0 ? 255 : kib > 254 ? 254 : (int)kib;
    }
    if (argc == 3 && strcmp(argv[1], "talk") == 0)
        return talkWhilePrinting(atoi(argv[2]));
    if (argc != 4)
        return 255;
    const struct HostPrinters printers = {atoi(argv[1]), atoi(argv[2]), argv[3]};
    return runHostSequence(&printers);
}
