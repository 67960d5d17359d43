// Asking the printer for its state and identity; raw bytes.

#include "commands.h"
#include "export_frame.h"
#include "printer_status.h"

#include <cstring>

using namespace q7;

namespace
{

constexpr int directIoTimeoutMs = 500;

char requestByte(int kind) // n of DLE EOT
{
    switch (kind) {
    case DrawerStatus:
        return 1;
    case CoverStatus:
        return 2;
    case PaperStatus:
        return 4;
    default:
        return 20;
    }
}

State stateIn(int kind, const QByteArray& reply)
{
    const auto byteAt = [&reply](int index) {
        return index < reply.size() ? static_cast<unsigned char>(reply.at(index)) : 0;
    };
    switch (kind) {
    case DrawerStatus:
        return (byteAt(0) & 0x04) != 0 ? DrawerHigh : DrawerLow;
    case CoverStatus:
        return (byteAt(0) & 0x04) != 0 ? CoverOpen : CoverClosed;
    case PaperStatus:
        if ((byteAt(0) & 0x60) != 0)
            return PaperOut;
        return (byteAt(0) & 0x0C) != 0 ? PaperNearEnd : PaperPresent;
    default:
        return (byteAt(2) & 0x20) != 0 ? SensorSignalled : SensorClear;
    }
}

// Returns a State or a negative code.
int queryState(PrinterSession& printerSession, int kind)
{
    const bool isNetwork = printerSession.connection->getKind() == NetworkConnection;
    if ((kind == SensorStatus && !isNetwork) || (kind == DrawerStatus && isNetwork))
        return Q7_ERR_STATUS_UNAVAILABLE;

    QByteArray query = CMD_STATUS_QUERY;
    query[query.size() - 1] = requestByte(kind);
    printerSession.sendQuery({CMD_AUTO_STATUS_OFF, query});
    const int status = printerSession.readReply(kind == SensorStatus ? isNeverWhole : isOneByte);
    return status != Q7_OK ? status : stateIn(kind, printerSession.replyData);
}

// The sum of what the queries find; the first that fails ends it.
int queryCombinedState(PrinterSession& printerSession)
{
    struct Query {
        StatusKind kind;
        bool isAsked;
    };
    const bool isNetwork = printerSession.connection->getKind() == NetworkConnection;
    const Query queries[] = {{DrawerStatus, !isNetwork},
                             {CoverStatus, true},
                             {PaperStatus, true},
                             {SensorStatus, isNetwork}};
    int sum = 0;
    for (const Query& query : queries) {
        if (!query.isAsked)
            continue;
        const int state = queryState(printerSession, query.kind);
        if (state < 0)
            return state;
        switch (state) {
        case DrawerLow:
            sum += DrawerLowBit;
            break;
        case CoverOpen:
            sum += CoverOpenBit;
            break;
        case PaperNearEnd:
            sum += PaperNearEndBit;
            break;
        case PaperOut:
            sum += PaperNearEndBit + PaperOutBit;
            break;
        case SensorSignalled:
            sum += SensorSignalledBit;
            break;
        default:
            break;
        }
    }
    return sum;
}

// The reply as Latin-1 text to its first zero byte, or a code in decimal.
QByteArray identify(PrinterSession& printerSession, int kind)
{
    // Applications know the digit behind the first two: the printer, which asks for no second byte,
    // takes it for text.
    static constexpr const char* requests[] = {"\x01\x31", "\x02\x32", "\x41", "\x42",
                                               "\x43",     "\x44",     "\x45"};
    constexpr int highestKind = 6;

    int result = Q7_OK;
    if (!printerSession.isOpen())
        result = Q7_ERR_NOT_OPEN;
    else if (kind < 0 || kind > highestKind)
        result = Q7_ERR_ID_KIND;
    else {
        printerSession.sendQuery({CMD_PRINTER_ID + requests[kind]});
        result = printerSession.readReply(endsWithZero);
    }
    if (result != Q7_OK)
        return QByteArray::number(result);

    QString text = QString::fromUtf8(printerSession.replyData.constData());
    for (QChar& character : text)
        if (character.unicode() > 0xFF)
            character = QChar(0); // ends the caller's text there
    return text.toLatin1();
}

} // namespace

int Q7_CALL StatusImpressora(int param)
{
    return runCommand({"StatusImpressora"}, std::tie(param), [&](PrinterSession& printerSession) {
        if (param < DrawerStatus || param > CombinedStatus)
            return refused(Q7_ERR_STATUS_KIND);
        return returned(param == CombinedStatus ? queryCombinedState(printerSession)
                                                : queryState(printerSession, param));
    });
}

int Q7_CALL DirectIO(const char* comando, int tamanho, char* resposta,
                     unsigned int* tamanhoResposta)
{
    return guarded(int{Q7_ERR_FAILED}, [&] {
        PrinterSession& printerSession = session();
        const SessionCall call(printerSession);
        printerSession.lastResult = Q7_ERR_FAILED;
        if (!printerSession.isOpen())
            return int{Q7_ERR_NOT_OPEN};
        if (comando != nullptr && tamanho >= 0)
            printerSession.send(QByteArray(comando, tamanho));
        if (resposta == nullptr || tamanhoResposta == nullptr || *tamanhoResposta == 0)
            return int{Q7_ERR_FAILED};
        *tamanhoResposta = 0;
        const int status = printerSession.readReply(isNeverWhole, directIoTimeoutMs);
        if (status == Q7_OK) {
            const QByteArray& reply = printerSession.replyData;
            *tamanhoResposta = static_cast<unsigned int>(reply.size());
            std::memcpy(resposta, reply.constData(), static_cast<std::size_t>(reply.size()));
        }
        return status;
    });
}

char* Q7_CALL IdImpressora(int tipo)
{
    return guarded(static_cast<char*>(nullptr), [&] {
        PrinterSession& printerSession = session();
        const SessionCall call(printerSession);
        printerSession.lastResult = Q7_ERR_FAILED;
        logCall({"IdImpressora"}, std::tie(tipo));
        return strdup(identify(printerSession, tipo).constData()); // the caller keeps it
    });
}
