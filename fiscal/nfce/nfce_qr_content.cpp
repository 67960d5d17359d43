#include "nfce_qr_content.h"

#include <QCryptographicHash>

namespace q7
{

QString nfceQrContent(const NfceDocument& note, int cscId, const QString& csc)
{
    QString ready = note.textAt("nfeProc|NFe|infNFeSupl|qrCode");
    if (!ready.isEmpty())
        return ready;

    constexpr int groupedKeyChars = 55;
    const QLatin1Char bar('|');
    const QString key = note.consultationBlock.right(groupedKeyChars).remove(QLatin1Char(' '));
    QString content = key + QLatin1String("|2|") + note.environment + bar;
    if (note.emissionType != QLatin1String("1"))
        content += note.issueDateTime.mid(8, 2) + bar + note.total + bar +
                   QString::fromLatin1(note.digestValue.toUtf8().toHex()) + bar;
    content += QString::number(cscId);

    // As many bytes as there are characters: they differ for a token outside ASCII only.
    const QString hashed = content + csc;
    const QByteArray hash =
        QCryptographicHash::hash(hashed.toUtf8().left(hashed.size()), QCryptographicHash::Sha1);
    content += bar + QString::fromLatin1(hash.toHex().toUpper());
    content.prepend(note.addressOf(key.left(2).toInt(), NfceAddressKind::QrCode));
    return content.remove(QLatin1Char('\n'));
}

} // namespace q7
