#include "test_page.h"

#include "model_names.h"
#include "open_printer.h"

namespace q7tool
{
namespace
{

constexpr int barcodeHeightDots = 60;
constexpr int barcodeModuleDots = 2;
constexpr int qrModuleDots = 4;
constexpr int linesBeforeCut = 5;

/** "1234567890123..." with the tens marked above, so that the columns can be read off. */
std::string ruler(int columns)
{
    std::string tens;
    std::string units;
    for (int column = 1; column <= columns; ++column) {
        tens += column % 10 == 0 ? static_cast<char>('0' + column / 10 % 10) : ' ';
        units += static_cast<char>('0' + column % 10);
    }
    tens.erase(tens.find_last_not_of(' ') + 1);
    return tens + '\n' + units + '\n';
}

} // namespace

void printTestPage(const PrinterLibrary& library, const std::string& model)
{
    const auto text = [&](const std::string& words, int position = Q7_ALIGN_LEFT,
                          int style = Q7_STYLE_NORMAL, int size = Q7_SIZE_NORMAL) {
        OpenPrinter::demand("ImpressaoTexto",
                            library.ImpressaoTexto(words.c_str(), position, style, size));
    };
    const ModelColumns columns = columnsOf(model);

    text("Página de teste\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE);
    text(model + ", Q7_Impressora " + library.version() + "\n\n", Q7_ALIGN_CENTER);
    text("Acentos: áàâãä éêë íî óôõö úü ç ñ\n");
    text("         ÁÀÂÃÄ ÉÊË ÍÎ ÓÔÕÖ ÚÜ Ç Ñ º ª §\n\n");
    text("Letra pequena\n", Q7_ALIGN_LEFT, Q7_STYLE_SMALL);
    text("Sublinhado\n", Q7_ALIGN_LEFT, Q7_STYLE_UNDERLINE);
    text("Branco no preto\n", Q7_ALIGN_LEFT, Q7_STYLE_REVERSE);
    text("Enfatizado\n", Q7_ALIGN_LEFT, Q7_STYLE_BOLD);
    text("Altura dupla\n", Q7_ALIGN_LEFT, Q7_STYLE_NORMAL, Q7_SIZE_DOUBLE_HEIGHT);
    text("Largura dupla\n", Q7_ALIGN_LEFT, Q7_STYLE_NORMAL, Q7_SIZE_DOUBLE_WIDTH);
    text("No centro\n", Q7_ALIGN_CENTER);
    text("À direita\n\n", Q7_ALIGN_RIGHT);

    text("Colunas da letra normal: " + std::to_string(columns.normal) + '\n');
    text(ruler(columns.normal));
    text("Colunas da letra pequena: " + std::to_string(columns.small) + '\n', Q7_ALIGN_LEFT,
         Q7_STYLE_SMALL);
    text(ruler(columns.small) + '\n', Q7_ALIGN_LEFT, Q7_STYLE_SMALL);

    OpenPrinter::demand("DefinePosicao", library.DefinePosicao(Q7_ALIGN_CENTER));
    OpenPrinter::demand("ImpressaoCodigoBarras",
                        library.ImpressaoCodigoBarras(Q7_BARCODE_EAN13, "7891000315507",
                                                      barcodeHeightDots, barcodeModuleDots,
                                                      Q7_HRI_BELOW));
    text("\n");
    OpenPrinter::demand("DefinePosicao", library.DefinePosicao(Q7_ALIGN_CENTER));
    OpenPrinter::demand("ImpressaoQRCode",
                        library.ImpressaoQRCode("Q7_Impressora: QR code da pagina de teste",
                                                qrModuleDots, Q7_QR_LEVEL_M));
    text("Fim da página de teste\n", Q7_ALIGN_CENTER);
    OpenPrinter::demand("Corte", library.Corte(linesBeforeCut));
}

} // namespace q7tool
