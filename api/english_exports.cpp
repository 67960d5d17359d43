// The English family: another vendor's interface over the Portuguese operations.

#include "commands.h"
#include "export_frame.h"
#include "printer_object.h"

using namespace q7;

namespace
{

/** What GetPrinterState makes of a combined status. */
struct StateOfStatus {
    int status;
    int state;
};

// Only these are known. A drawer signal or the paper sensor in the sum makes it unknown: programs
// written for this interface ask for the drawer apart.
constexpr StateOfStatus statesOfStatus[] = {
    {0, Q7_PRINTER_READY},
    {Q7_STATE_BIT_COVER_OPEN, Q7_PRINTER_COVER_OPEN},
    {Q7_STATE_BIT_PAPER_NEAR_END, Q7_PRINTER_PAPER_NEAR_END},
    {Q7_STATE_BIT_COVER_OPEN + Q7_STATE_BIT_PAPER_NEAR_END, Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END},
    {Q7_STATE_BIT_PAPER_NEAR_END + Q7_STATE_BIT_PAPER_OUT, Q7_PRINTER_PAPER_OUT},
    {Q7_STATE_BIT_COVER_OPEN + Q7_STATE_BIT_PAPER_NEAR_END + Q7_STATE_BIT_PAPER_OUT,
     Q7_PRINTER_COVER_OPEN_PAPER_OUT},
};

void writeState(int* state, int value)
{
    if (state != nullptr)
        *state = value;
}

/** Logs the call, also when no connection is open, then runs the operation behind the guard. */
template <typename... Arguments, typename Operation>
int runLogged(const ExportName& name, const std::tuple<Arguments...>& arguments,
              Operation&& operation) noexcept
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& /*printer*/) {
        logCall(name, arguments);
        return whenOpen(operation);
    });
}

} // namespace

// ---------------------------------------------------------------- printer object and port

int Q7_CALL PrinterCreator(void* /*handle*/, const char* model)
{
    return printerObject().create(model);
}

void Q7_CALL PrinterCreatorS(void* /*handle*/, const char* model)
{
    printerObject().create(model);
}

int Q7_CALL PrinterDestroy(void* /*handle*/)
{
    return whenOpen([] { return int{Q7_OK}; }); // nothing is released, the port stays open
}

int Q7_CALL PortOpen(void* /*handle*/, const char* text)
{
    return printerObject().open(text);
}

int Q7_CALL PortClose(void* /*handle*/)
{
    return whenOpen(FechaConexaoImpressora);
}

int Q7_CALL PrinterInitialize(void* /*handle*/)
{
    return whenOpen(InicializaImpressora);
}

// ---------------------------------------------------------------- text

int Q7_CALL PrintText(void* /*handle*/, const char* text, int alignment, int style, int size)
{
    return whenOpen([&] {
        static constexpr ExportName name = {"PrintText", LogText::Utf8,
                                            " - Parametros:", " - Retorno:"};
        const char* data = textOrEmpty(text);
        logCall(name, std::tie(data, alignment, style, size));
        const int result = ImpressaoTexto(data, alignment, style, size);
        logReturn(name, result);
        return result;
    });
}

int Q7_CALL PrintTextS(void* /*handle*/, const char* text)
{
    const char* data = textOrEmpty(text);
    return runLogged({"PrintTextS", LogText::Utf8, " - Parametros:"}, std::tie(data), [&] {
        return session().lastResult = session().send(data); // as they are: not even recoded
    });
}

int Q7_CALL SetAlign(void* /*handle*/, int alignment)
{
    return whenOpen([&] {
        if (alignment < 0 || alignment > 2)
            return int{Q7_ERR_ALIGNMENT};
        // Left sends nothing and so fails with Q7_ERR_NOT_SENT: no head, and its value, 0, ends the
        // text that carries it. Programs of this interface print left unless told otherwise.
        if (alignment != 0)
            session().send(CMD_ALIGN);
        return session().lastResult = session().sendText(argumentByte(alignment));
    });
}

int Q7_CALL SetTextBold(void* /*handle*/, int on)
{
    return runLogged({"SetTextBold", LogText::Utf8, "- Parametros:"}, std::tie(on), [&] {
        if (on < 0 || on > 1)
            return int{Q7_ERR_STYLE};
        session().lastResult = session().send(on == 1 ? CMD_BOLD_ON : CMD_BOLD_OFF);
        return int{Q7_OK}; // whatever became of the send
    });
}

int Q7_CALL SetTextFont(void* /*handle*/, int font)
{
    return runLogged({"SetTextFont", LogText::Utf8, "- Parametros:"}, std::tie(font), [&] {
        if (font < 0 || font > 1)
            return int{Q7_ERR_STYLE};
        // Past the session, whose last result stays what it was.
        session().connection->send(font == 1 ? CMD_FONT_B_ON : CMD_MODE_RESET);
        return int{Q7_OK};
    });
}

int Q7_CALL SetTextLineSpace(int spacing)
{
    return EspacamentoEntreLinhas(spacing);
}

// ---------------------------------------------------------------- symbols and images

int Q7_CALL PrintBarCode(void* /*handle*/, int type, const char* data, int width, int height,
                         int hri)
{
    // The command's own numbering of the types, function B of GS k, is understood too.
    constexpr int firstCommandType = 65;
    constexpr int lastCommandType = 73;
    const bool isCommandType = type >= firstCommandType && type <= lastCommandType;
    return whenOpen(ImpressaoCodigoBarras, isCommandType ? type - firstCommandType : type, data,
                    height, width, hri);
}

int Q7_CALL PrintSymbol(void* /*handle*/, int /*type*/, const char* data, int errorLevel, int size)
{
    return ImpressaoQRCode(data, size, errorLevel); // which refuses, and logs, a closed connection
}

int Q7_CALL PrintNVImage(void* /*handle*/, int k1, int k2)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& /*printer*/) {
        const char characters[] = {static_cast<char>(k1), static_cast<char>(k2)};
        const QByteArray key = QString::fromLatin1(characters, 2).toUtf8();
        constexpr int noScale = 0; // always refused: nothing is ever printed
        return ImprimeImagemMemoria(key.constData(), noScale);
    });
}

int Q7_CALL DefineNVImage(int /*a*/, int /*b*/, int /*c*/, int /*d*/)
{
    return Q7_OK; // images are stored with the printer maker's own tool
}

// ---------------------------------------------------------------- paper and drawer

int Q7_CALL FeedLine(void* /*handle*/, int lines)
{
    return whenOpen(AvancaPapel, lines);
}

int Q7_CALL CutPaper(void* /*handle*/, int lines)
{
    return whenOpen(Corte, lines);
}

int Q7_CALL OpenDrawer(void* /*handle*/, int pin, int onTime, int offTime)
{
    return whenOpen(AbreGaveta, pin, onTime, offTime);
}

int Q7_CALL OpenCashDrawer(void* handle, int pin, int onTime, int offTime)
{
    return OpenDrawer(handle, pin, onTime, offTime);
}

// ---------------------------------------------------------------- state

int Q7_CALL GetPrinterState(void* /*handle*/, int* state)
{
    return whenOpen([&] {
        const int status = printerObject().askStatus(Q7_STATUS_ALL);
        for (const StateOfStatus& known : statesOfStatus)
            if (known.status == status) {
                writeState(state, known.state);
                return int{Q7_OK};
            }
        return int{Q7_ERR_STATUS_UNAVAILABLE};
    });
}

int Q7_CALL GetDrawerState(void* /*handle*/, int* state, int polarity)
{
    return whenOpen([&] {
        const int status = printerObject().askStatus(Q7_STATUS_DRAWER);
        if (status == Q7_STATE_DRAWER_LOW)
            writeState(state, polarity != 0 ? 1 : 0);
        else if (status == Q7_STATE_DRAWER_HIGH)
            writeState(state, polarity != 0 ? 0 : 1);
        return int{Q7_OK}; // also when the printer told nothing
    });
}

int Q7_CALL GetCashDrawerState(void* handle, int* state, int polarity)
{
    return GetDrawerState(handle, state, polarity);
}

// ---------------------------------------------------------------- page mode

int Q7_CALL SelectPageMode(void* /*handle*/)
{
    return whenOpen(ModoPagina);
}

int Q7_CALL SelectStandardMode(void* /*handle*/)
{
    return whenOpen([] {
        session().lastResult = session().send(CMD_STANDARD_MODE);
        return int{Q7_OK}; // whatever became of the send
    });
}

int Q7_CALL SelectPrintDirectionInPageMode(void* /*handle*/, int direction)
{
    return whenOpen(DirecaoImpressao, direction);
}

int Q7_CALL SetPrintAreaInPageMode(void* /*handle*/, int x, int y, int width, int height)
{
    return whenOpen(DefineAreaImpressao, x, y, width, height);
}

int Q7_CALL SetAbSolutePrintPosition(void* /*handle*/, int position)
{
    return whenOpen(PosicaoImpressaoHorizontal, position);
}

int Q7_CALL SetAbsoluteVerticalPrintPositionInPageMode(void* /*handle*/, int position)
{
    return whenOpen(PosicaoImpressaoVertical, position);
}

int Q7_CALL PrintDataInPageMode(void* /*handle*/)
{
    return whenOpen(ImprimeModoPagina);
}

int Q7_CALL CancelPrintDataInPageMode(void* /*handle*/)
{
    return whenOpen(LimpaBufferModoPagina);
}

int Q7_CALL SetPrintAndReturnStandardMode(void* /*handle*/)
{
    return whenOpen(ImprimeMPeRetornaPadrao);
}
