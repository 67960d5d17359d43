#include "nfce_qr_content.h"

#include <QCryptographicHash>

namespace q7
{
namespace
{

const QLatin1Char bar('|');

QString readyContent(const NfceDocument& note)
{
    return note.textAt("nfeProc|NFe|infNFeSupl|qrCode");
}

// Day, total and digest: what a note says of itself while no portal knows it.
QString offlineFields(const NfceDocument& note)
{
    return note.issueDateTime.mid(8, 2) + bar + note.total + bar +
           QString::fromLatin1(note.digestValue.toUtf8().toHex()) + bar;
}

QString sha1Hex(const QByteArray& bytes)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex().toUpper());
}

} // namespace

QString nfceQrContent(const NfceDocument& note, int cscId, const QString& csc)
{
    QString ready = readyContent(note);
    if (!ready.isEmpty())
        return ready;

    constexpr int groupedKeyChars = 55;
    const QString key = note.consultationBlock.right(groupedKeyChars).remove(QLatin1Char(' '));
    QString content = key + QLatin1String("|2|") + note.environment + bar;
    if (note.emissionType != QLatin1String("1"))
        content += offlineFields(note);
    content += QString::number(cscId);

    // As many bytes as there are characters: they differ for a token outside ASCII only.
    const QString hashed = content + csc;
    content += bar + sha1Hex(hashed.toUtf8().left(hashed.size()));
    content.prepend(note.addressOf(key.left(2).toInt(), NfceAddressKind::QrCode));
    return content.remove(QLatin1Char('\n'));
}

std::optional<QString> currentQrContent(const NfceDocument& note, int cscId, const QString& csc)
{
    QString ready = readyContent(note);
    if (!ready.isEmpty())
        return ready;

    constexpr int keyChars = 44;
    const QString& environment = note.environmentType;
    const bool isProduction = environment == QLatin1String("1");
    const QString address =
        nfceAddress(note.accessKey.left(2).toInt(), NfceAddressKind::QrCode, isProduction);
    if (note.accessKey.size() != keyChars || address.isEmpty() ||
        !(isProduction || environment == QLatin1String("2")))
        return {};
    if (!note.isPending())
        return address + note.accessKey + QLatin1String("|3|") + environment;
    if (csc.isEmpty() || note.digestValue.isEmpty())
        return {};
    const QString content = note.accessKey + QLatin1String("|2|") + environment + bar +
                            offlineFields(note) + QString::number(cscId);
    return address + content + bar + sha1Hex((content + csc).toUtf8());
}

} // namespace q7
