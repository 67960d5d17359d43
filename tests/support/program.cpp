#include "program.h"

#include <QProcess>

namespace q7test
{

ProgramResult runProgram(const std::vector<std::string>& command)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProgram(QString::fromStdString(command.front()));
    QStringList arguments;
    for (std::size_t i = 1; i < command.size(); ++i)
        arguments << QString::fromStdString(command[i]);
    process.setArguments(arguments);
    process.start(QIODevice::ReadOnly);
    const bool ended =
        process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit;
    return {process.readAll().toStdString(), ended ? process.exitCode() : -1};
}

} // namespace q7test
