#include "logo_heading.h"

#include "commands.h"
#include "debug_output.h"
#include "printer_session.h"

namespace q7
{

void printLogoHeading(const QString& text, LogoPlace place)
{
    writeDebugOutput(text);
    constexpr int heightDots = 256;
    PrinterSession& printer = session();
    printer.sendAll({CMD_PAGE_MODE, printArea(0, 0, pictureColumnDots, heightDots), CMD_CANCEL,
                     CMD_DIRECTION_0});
    if (place == LogoPlace::Indented)
        printer.send(CMD_HORIZONTAL_POSITION + argumentWord(35));
    printer.sendAll({CMD_NV_GRAPHICS_PRINT + "00\x01\x01",
                     printArea(pictureColumnDots, 10, textColumnDots, heightDots), CMD_FONT_B_ON});
    printer.sendText(text.toLatin1());
    printer.sendAll({CMD_PAGE_PRINT, CMD_STANDARD_MODE});
}

} // namespace q7
