#include "serial_system.h"

#include <QDir>
#include <QSerialPort>
#include <sys/ioctl.h>

namespace q7
{
namespace
{

/** The entry of a folder with this name, in whatever letter case; empty when there is none. An
 *  exact match wins. */
QString entryIgnoringCase(const QString& folder, const QString& name)
{
    const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::System |
                                                       QDir::Hidden | QDir::NoDotAndDotDot);
    if (entries.contains(name))
        return name;
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    return {};
}

} // namespace

QString resolveSerialPortName(const QString& text)
{
    QString path = text.startsWith('/') ? "/" : "/dev";
    const QStringList components = text.split('/', Qt::SkipEmptyParts);
    if (components.isEmpty())
        return {};
    for (const QString& component : components) {
        const QString entry = entryIgnoringCase(path, component);
        if (entry.isEmpty())
            return {};
        path = QDir(path).filePath(entry);
    }
    return path;
}

// The port makes its write notifier with the first byte that it queues. This one is taken back
// before anything could send it.
void prepareSerialWrites(QSerialPort& port)
{
    port.write("", 1);
    port.clear(QSerialPort::Output);
}

void writeWithoutWaiting(QSerialPort& port)
{
    port.flush();
}

qint64 bytesInSystem(QSerialPort& port)
{
    int bytes = 0;
    return ::ioctl(static_cast<int>(port.handle()), TIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

} // namespace q7
