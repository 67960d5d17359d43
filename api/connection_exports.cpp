// Opening and closing the connection, and the library's version.

#include "export_frame.h"
#include "version.h"

#include <algorithm>
#include <cstring>
#include <iterator>

using namespace q7;

namespace
{

constexpr int serialSpeeds[] = {300, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};

bool isSerialSpeed(int bitsPerSecond)
{
    return std::find(std::begin(serialSpeeds), std::end(serialSpeeds), bitsPerSecond) !=
           std::end(serialSpeeds);
}

// An open connection is abandoned as it stands: the application has lost it by opening again, but
// what the printer is still being sent must not break off.
void startNewConnection(PrinterSession& printer)
{
    printer.escreverLer.reset();
    if (printer.isOpen()) {
        printer.connection->endCall();
        static_cast<void>(printer.connection.release());
    }
    // Never open from birth, so that Q7_ERR_ALREADY_OPEN is not to be had any more.
    printer.connection = std::make_unique<PrinterConnection>();
}

Outcome open(PrinterSession& printer, int kind, const QString& model, const QString& connectionText,
             int number)
{
    if (kind < UsbConnection || kind > NetworkConnection)
        return logged(Q7_ERR_KIND);

    if (const PrinterModel* row = modelByName(model))
        printer.modelIndex = row->id;
    else if (printer.lastResult != 0)
        return logged(Q7_ERR_MODEL);
    // else an unknown name passes while the last result is 0 (after loading, opening or closing),
    // with the model of before: applications open first with a name of their own.

    printer.lastResult = Q7_ERR_FAILED;
    if (kind == SerialConnection && !isSerialSpeed(number))
        return unlogged(Q7_ERR_SPEED);

    PrinterConnection& connection = *printer.connection;
    connection.setKind(kind);
    printer.lastResult = connection.open(connectionText, model, number);
    if (printer.lastResult == Q7_OK)
        printer.escreverLer = std::make_unique<EscreverLer>(connection);
    return logged(printer.lastResult);
}

} // namespace

int Q7_CALL AbreConexaoImpressora(int tipo, const char* modelo, const char* conexao, int parametro)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& printer) {
        static constexpr ExportName name = {"AbreConexaoImpressora"};
        startNewConnection(printer);
        const QString model = QString::fromUtf8(textOrEmpty(modelo)).toUpper();
        const QString connectionText = QString::fromUtf8(textOrEmpty(conexao)).toUpper();
        logCall(name, std::tie(tipo, model, connectionText, parametro));
        const Outcome outcome = open(printer, tipo, model, connectionText, parametro);
        if (outcome.isLogged)
            logReturn(name, outcome.result);
        return outcome.result;
    });
}

int Q7_CALL FechaConexaoImpressora(void)
{
    return runSetting({"FechaConexaoImpressora"}, noArguments, [](PrinterSession& printer) {
        printer.lastResult = printer.connection->close();
        printer.escreverLer.reset();
        printer.connection.reset();
        return logged(printer.lastResult);
    });
}

char* Q7_CALL GetVersaoDLL(void)
{
    return strdup(libraryVersion); // the caller keeps it
}
