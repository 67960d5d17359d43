// Asking the printer for its state and identity; raw bytes.

#include "commands.h"
#include "export_frame.h"

#include <cstring>

using namespace q7;

namespace
{

constexpr std::chrono::milliseconds directIoTimeout(500);

char requestByte(int kind) // n of DLE EOT
{
    switch (kind) {
    case Q7_STATUS_DRAWER:
        return 1;
    case Q7_STATUS_COVER:
        return 2;
    case Q7_STATUS_PAPER:
        return 4;
    default:
        return 20;
    }
}

Q7State stateIn(int kind, const std::string& reply)
{
    const auto byteAt = [&reply](std::size_t index) {
        return index < reply.size() ? static_cast<unsigned char>(reply[index]) : 0;
    };
    switch (kind) {
    case Q7_STATUS_DRAWER:
        return (byteAt(0) & 0x04) != 0 ? Q7_STATE_DRAWER_HIGH : Q7_STATE_DRAWER_LOW;
    case Q7_STATUS_COVER:
        return (byteAt(0) & 0x04) != 0 ? Q7_STATE_COVER_OPEN : Q7_STATE_COVER_CLOSED;
    case Q7_STATUS_PAPER:
        if ((byteAt(0) & 0x60) != 0)
            return Q7_STATE_PAPER_OUT;
        return (byteAt(0) & 0x0C) != 0 ? Q7_STATE_PAPER_NEAR_END : Q7_STATE_PAPER_PRESENT;
    default:
        return (byteAt(2) & 0x20) != 0 ? Q7_STATE_SENSOR_SIGNALLED : Q7_STATE_SENSOR_CLEAR;
    }
}

// Returns a Q7State or a negative code.
int queryState(PrinterSession& printer, int kind)
{
    const bool isNetwork = printer.connection->getKind() == NetworkConnection;
    if ((kind == Q7_STATUS_SENSOR && !isNetwork) || (kind == Q7_STATUS_DRAWER && isNetwork))
        return Q7_ERR_STATUS_UNAVAILABLE;

    std::string query(CMD_STATUS_QUERY);
    query.back() = requestByte(kind);
    printer.sendQuery({CMD_AUTO_STATUS_OFF, query});
    const int status = printer.readReply(kind == Q7_STATUS_SENSOR ? isNeverWhole : isOneByte);
    return status != Q7_OK ? status : stateIn(kind, printer.replyData);
}

// The sum of what the queries find; the first that fails ends it.
int queryCombinedState(PrinterSession& printer)
{
    struct Query {
        Q7Status kind;
        bool isAsked;
    };
    const bool isNetwork = printer.connection->getKind() == NetworkConnection;
    const Query queries[] = {{Q7_STATUS_DRAWER, !isNetwork},
                             {Q7_STATUS_COVER, true},
                             {Q7_STATUS_PAPER, true},
                             {Q7_STATUS_SENSOR, isNetwork}};
    int sum = 0;
    for (const Query& query : queries) {
        if (!query.isAsked)
            continue;
        const int state = queryState(printer, query.kind);
        if (state < 0)
            return state;
        switch (state) {
        case Q7_STATE_DRAWER_LOW:
            sum += Q7_STATE_BIT_DRAWER_LOW;
            break;
        case Q7_STATE_COVER_OPEN:
            sum += Q7_STATE_BIT_COVER_OPEN;
            break;
        case Q7_STATE_PAPER_NEAR_END:
            sum += Q7_STATE_BIT_PAPER_NEAR_END;
            break;
        case Q7_STATE_PAPER_OUT:
            sum += Q7_STATE_BIT_PAPER_NEAR_END + Q7_STATE_BIT_PAPER_OUT;
            break;
        case Q7_STATE_SENSOR_SIGNALLED:
            sum += Q7_STATE_BIT_SENSOR_SIGNALLED;
            break;
        default:
            break;
        }
    }
    return sum;
}

// The reply as Latin-1 text to its first zero byte, or a code in decimal.
std::string identify(PrinterSession& printer, int kind)
{
    // Applications know the digit behind the first two: the printer, which asks for no second byte,
    // takes it for text.
    static constexpr const char* requests[] = {"\x01\x31", "\x02\x32", "\x41", "\x42",
                                               "\x43",     "\x44",     "\x45"};
    constexpr int highestKind = 6;

    int result = Q7_OK;
    if (!printer.isOpen())
        result = Q7_ERR_NOT_OPEN;
    else if (kind < 0 || kind > highestKind)
        result = Q7_ERR_ID_KIND;
    else {
        printer.sendQuery({CMD_PRINTER_ID + requests[kind]});
        result = printer.readReply(endsWithZero);
    }
    if (result != Q7_OK)
        return std::to_string(result);

    QString text = QString::fromUtf8(printer.replyData.c_str());
    for (QChar& character : text)
        if (character.unicode() > 0xFF)
            character = QChar(0); // ends the caller's text there
    return text.toLatin1().toStdString();
}

} // namespace

int Q7_CALL StatusImpressora(int param)
{
    return runCommand({"StatusImpressora"}, std::tie(param), [&](PrinterSession& printer) {
        if (param < Q7_STATUS_DRAWER || param > Q7_STATUS_ALL)
            return unlogged(Q7_ERR_STATUS_KIND);
        return logged(param == Q7_STATUS_ALL ? queryCombinedState(printer)
                                             : queryState(printer, param));
    });
}

int Q7_CALL DirectIO(const char* comando, int tamanho, char* resposta,
                     unsigned int* tamanhoResposta)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& printer) {
        printer.lastResult = Q7_ERR_FAILED;
        if (!printer.isOpen())
            return int{Q7_ERR_NOT_OPEN};
        if (comando != nullptr && tamanho >= 0)
            printer.send(std::string_view(comando, static_cast<std::size_t>(tamanho)));
        if (resposta == nullptr || tamanhoResposta == nullptr || *tamanhoResposta == 0)
            return int{Q7_ERR_FAILED};
        *tamanhoResposta = 0;
        const int status = printer.readReply(isNeverWhole, directIoTimeout);
        if (status == Q7_OK) {
            const std::string& reply = printer.replyData;
            *tamanhoResposta = static_cast<unsigned int>(reply.size());
            reply.copy(resposta, reply.size());
        }
        return status;
    });
}

char* Q7_CALL IdImpressora(int tipo)
{
    return runExport(static_cast<char*>(nullptr), [&](PrinterSession& printer) {
        printer.lastResult = Q7_ERR_FAILED;
        logCall({"IdImpressora"}, std::tie(tipo));
        return strdup(identify(printer, tipo).c_str()); // the caller keeps it
    });
}
