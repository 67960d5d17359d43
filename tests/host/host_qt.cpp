// A program with Qt of its own, whose event loop runs meanwhile. Says nothing; the exit code tells.

#include "host_sequence.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>
#include <cstdlib>
#include <memory>

int main(int argc, char** argv)
{
    if (argc != 4)
        return 255;
    const HostPrinters printers = {std::atoi(argv[1]), std::atoi(argv[2]), argv[3]};
    QCoreApplication application(argc, argv);
    int failedLine = 0;
    const std::unique_ptr<QThread> worker(
        QThread::create([&] { failedLine = runHostSequence(printers); }));
    QObject::connect(worker.get(), &QThread::finished, &application, [&] {
        // Then from the thread of the event loop itself.
        QCoreApplication::exit(failedLine != 0 ? failedLine : runHostSequence(printers));
    });
    QTimer::singleShot(0, worker.get(), [&] { worker->start(); });
    return QCoreApplication::exec();
}
