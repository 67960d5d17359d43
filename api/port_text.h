// What the text given to PortOpen asks for.
#pragma once

#include <QString>
#include <optional>

namespace q7
{

/** A text of PortOpen in the terms of AbreConexaoImpressora. */
struct PortText {
    int kind;        // a ConnectionKind
    QString address; // serial port name, host name or address; over USB it has no meaning
    int number;      // bits per second or TCP port; over USB it has no meaning
};

/** Reads "COM3,9600", "NET,192.168.0.10,9100" (without a port: 9100), "USB" or "USB,...,n". "_"
 *  separates like ",". The first field may say more than the word looked for, in any letter case.
 *  A number that is missing or none is 0. Returns nothing for a text of another kind. */
std::optional<PortText> parsePortText(const QString& text);

} // namespace q7
