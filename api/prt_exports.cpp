// The Prt family: the English family under the names of yet another vendor's interface.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

// ---------------------------------------------------------------- printer object and port

int Q7_CALL PrtPrinterCreator(void* handle, const char* model)
{
    return PrinterCreator(handle, model);
}

int Q7_CALL PrtPrinterDestroy(void* handle)
{
    return PrinterDestroy(handle);
}

int Q7_CALL PrtPortOpen(void* handle, const char* text)
{
    return PortOpen(handle, text);
}

int Q7_CALL PrtPortClose(void* /*handle*/)
{
    return FechaConexaoImpressora(); // unguarded: a call without a connection is logged
}

int Q7_CALL PrtPrinterInitialize(void* handle)
{
    return PrinterInitialize(handle);
}

// ---------------------------------------------------------------- text

int Q7_CALL PrtPrintText(void* handle, const char* text, int alignment, int style, int size)
{
    return whenOpen(PrintText, handle, text, alignment, style, size);
}

int Q7_CALL PrtSetTextPosition(void* handle, int alignment)
{
    return SetAlign(handle, alignment);
}

int Q7_CALL PrtSetTextBold(void* handle, int on)
{
    return SetTextBold(handle, on);
}

int Q7_CALL PrtSetTextFont(void* handle, int font)
{
    return SetTextFont(handle, font);
}

// ---------------------------------------------------------------- symbols

int Q7_CALL PrtPrintBarCode(void* handle, int type, const char* data, int width, int height,
                            int hri)
{
    return PrintBarCode(handle, type, data, width, height, hri);
}

int Q7_CALL PrtPrintSymbol(void* handle, int type, const char* data, int errorLevel, int size)
{
    return PrintSymbol(handle, type, data, errorLevel, size);
}

// ---------------------------------------------------------------- paper and drawer

int Q7_CALL PrtFeedLine(void* handle, int lines)
{
    return FeedLine(handle, lines);
}

int Q7_CALL PrtCutPaper(void* handle, int lines)
{
    return CutPaper(handle, lines);
}

int Q7_CALL PrtOpenDrawer(void* handle, int pin, int onTime, int offTime)
{
    return OpenDrawer(handle, pin, onTime, offTime);
}

// ---------------------------------------------------------------- state

int Q7_CALL PrtCheckPrinterState(void* handle, int* state)
{
    return GetPrinterState(handle, state);
}

int Q7_CALL PrtGetDrawerState(void* handle, int* state, int polarity)
{
    return GetDrawerState(handle, state, polarity);
}

// ---------------------------------------------------------------- page mode

int Q7_CALL PrtSelectPageMode(void* handle)
{
    return SelectPageMode(handle);
}

int Q7_CALL PrtSelectStandardMode(void* handle)
{
    return SelectStandardMode(handle);
}

int Q7_CALL PrtSelectPrintDirectionInPageMode(void* handle, int direction)
{
    return SelectPrintDirectionInPageMode(handle, direction);
}

int Q7_CALL PrtSetPrintAreaInPageMode(void* handle, int x, int y, int width, int height)
{
    return SetPrintAreaInPageMode(handle, x, y, width, height);
}

int Q7_CALL PrtSetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position)
{
    return SetAbsoluteVerticalPrintPositionInPageMode(handle, position);
}

int Q7_CALL PrtPrintDataInPageMode(void* handle)
{
    return PrintDataInPageMode(handle);
}

int Q7_CALL PrtCancelPrintDataInPageMode(void* /*handle*/)
{
    // Not CAN: the page stays, the printer awaits a command's rest.
    return whenOpen([] {
        session().lastResult = session().send(CMD_ESC);
        return int{Q7_OK}; // whatever became of the send
    });
}

int Q7_CALL PrtSetPrintAndReturnStandardMode(void* handle)
{
    return SetPrintAndReturnStandardMode(handle);
}
