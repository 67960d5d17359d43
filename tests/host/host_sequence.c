#define _POSIX_C_SOURCE 200809L
#include "host_sequence.h"

#include "q7_impressora.h"

#include <pthread.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <unistd.h>

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition))                                                                          \
            return __LINE__;                                                                       \
    } while (0)

struct Link {
    int kind;
    const char* address;
    int number;
};

static int openLink(const struct Link* link)
{
    CHECK(AbreConexaoImpressora(link->kind, "VANTA", link->address, link->number) == 0);
    return 0;
}

static int printAndAsk(const struct Link* link)
{
    (void)link;
    CHECK(ImpressaoTexto("abc\n", 1, 8, 17) == 4);
    CHECK(StatusImpressora(2) == 4);
    char* name = IdImpressora(4);
    CHECK(strcmp(name, "_VANTA") == 0);
    free(name);
    CHECK(Corte(2) == 0);
    return 0;
}

static int closeLink(const struct Link* link)
{
    (void)link;
    CHECK(FechaConexaoImpressora() == 0);
    return 0;
}

struct Job {
    int (*step)(const struct Link*);
    const struct Link* link;
    int failedLine;
};

static void* runJob(void* argument)
{
    struct Job* job = argument;
    job->failedLine = job->step(job->link);
    return NULL;
}

static int inAnotherThread(int (*step)(const struct Link*), const struct Link* link)
{
    struct Job job = {step, link, 0};
    pthread_t thread;
    CHECK(pthread_create(&thread, NULL, runJob, &job) == 0);
    CHECK(pthread_join(thread, NULL) == 0);
    return job.failedLine;
}

#define PASS_ON(call)                                                                              \
    do {                                                                                           \
        const int line = (call);                                                                   \
        if (line != 0)                                                                             \
            return line;                                                                           \
    } while (0)

static int useLink(const struct Link* link)
{
    PASS_ON(inAnotherThread(openLink, link));
    PASS_ON(printAndAsk(link));
    PASS_ON(inAnotherThread(printAndAsk, link));
    PASS_ON(inAnotherThread(closeLink, link));
    return 0;
}

int runHostSequence(const struct HostPrinters* printers)
{
    const struct Link tcp = {3, "localhost", printers->tcpPort};
    const struct Link closing = {3, "127.0.0.1", printers->closingPort};
    const struct Link serial = {2, printers->terminal, 9600};

    CHECK(AbreConexaoImpressora(3, "VANTA", "no such host.invalid", 9100) > 0);
    CHECK(AbreConexaoImpressora(2, "VANTA", "no such port", 9600) == -12);
    CHECK(AbreConexaoImpressora(1, "VANTA", "", 0) == -21);
    PASS_ON(useLink(&tcp));
    PASS_ON(useLink(&serial));

    /* A printer that vanishes, in a program that a broken pipe would end. */
    CHECK(signal(SIGPIPE, SIG_DFL) == SIG_DFL);
    PASS_ON(openLink(&closing));
    while (ImpressaoTexto("abc\n", 0, 0, 0) == 4)
        ;
    CHECK(FechaConexaoImpressora() == -4);
    return 0;
}

int talkWhilePrinting(int tcpPort)
{
    CHECK(AbreConexaoImpressora(3, "VANTA", "127.0.0.1", tcpPort) == 0);
    for (int stream = 0; stream <= 2; ++stream)
        CHECK(write(stream, "stray", 5) < 0);
    CHECK(ImpressaoTexto("abc\n", 0, 0, 0) == 4);
    CHECK(FechaConexaoImpressora() == 0);
    return 0;
}

/* At its most. */
static long residentKib(void)
{
    struct rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

long memoryGrowthKib(int tcpPort)
{
    long before = 0;
    if (AbreConexaoImpressora(3, "VANTA", "127.0.0.1", tcpPort) != 0)
        return -1;
    for (int receipt = 0; receipt < 2000; ++receipt) {
        for (int line = 0; line < 20; ++line)
            if (ImpressaoTexto("ARROZ TIPO 1 5KG        1 UN   24,90     24,90\n", 0, 0, 0) != 47)
                return -1;
        if (ImpressaoCodigoBarras(8, "{C0123456789", 80, 2, 2) != 0 ||
            ImpressaoQRCode("https://exemplo.com.br", 4, 2) != 0 || StatusImpressora(2) != 4)
            return -1;
        if (receipt == 99)
            before = residentKib();
    }
    return residentKib() - before;
}
