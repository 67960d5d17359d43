#include "port_text.h"

#include "printer_connection.h"

#include <QStringList>

namespace q7
{
namespace
{

constexpr int usualTcpPort = 9100;

} // namespace

std::optional<PortText> parsePortText(const QString& text)
{
    const QStringList fields = QString(text).replace('_', ',').split(',');
    const QString second = fields.value(1);
    const QString third = fields.value(2);
    const auto names = [&](const char* word) {
        return fields.first().contains(QLatin1String(word), Qt::CaseInsensitive);
    };
    const bool isBareWord = fields.size() == 1; // enough for USB alone
    if (!isBareWord && names("COM"))
        return PortText{SerialConnection, fields.first(), second.toInt()};
    if (!isBareWord && names("NET"))
        return PortText{NetworkConnection, second, third.isEmpty() ? usualTcpPort : third.toInt()};
    if (names("USB"))
        return PortText{UsbConnection, second, third.toInt()};
    return std::nullopt;
}

} // namespace q7
