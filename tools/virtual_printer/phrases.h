// Every text that the printer writes beside what it prints, in both languages.
#pragma once

#include "message.h"

namespace virtual_printer::phrases
{

// What the printer made of a command that its bytes do not show.
constexpr Phrase outOfRange{"argument out of range: ignored", "argumento fora da faixa: ignorado"};
constexpr Phrase onlyInPageMode{"only in page mode: ignored", "só vale no modo página: ignorado"};
constexpr Phrase inPageMode{"in page mode: ignored", "no modo página: ignorado"};
constexpr Phrase inMidLine{"in mid-line: ignored", "no meio da linha: ignorado"};
constexpr Phrase unknownCodeTable{"unknown code table: drawn as PC437",
                                  "tabela de caracteres desconhecida: impresso como PC437"};
constexpr Phrase outsideLineOrArea{"outside the line or the area: ignored",
                                   "fora da linha ou da área: ignorado"};
constexpr Phrase outsidePage{"nothing of the area lies on the page: ignored",
                             "a área fica toda fora da página: ignorado"};
constexpr Phrase belowArea{"below the page area, not printed: %1",
                           "abaixo da área da página, não impresso: %1"};
constexpr Phrase cutOffAtEdge{"cut off at the edge of the page area: %1",
                              "cortado na borda da área da página: %1"};
constexpr Phrase linePrintedFirst{"%1 in mid-line: the line is printed first",
                                  "%1 no meio da linha: a linha é impressa antes"};
constexpr Phrase symbol{"symbol", "símbolo"};
constexpr Phrase cutCommand{"cut", "corte"};
constexpr Phrase pageMode{"page mode", "modo página"};
constexpr Phrase lineThrownAway{
    "%1 throws away what was received at %2 and not yet printed: %3",
    "%1 joga fora o que foi recebido no byte %2 e ainda não foi impresso: %3"};
constexpr Phrase pageThrownAway{"%1 throws away a page that was not printed",
                                "%1 joga fora uma página que não foi impressa"};
constexpr Phrase theReset{"the reset", "a inicialização (ESC @)"};
constexpr Phrase theEndOfTheConnection{"the end of the connection", "o fim da conexão"};
constexpr Phrase standardMode{"standard mode", "a volta ao modo normal"};

// Why a symbol is not on the paper.
constexpr Phrase barcodeNotPrinted{"barcode not printed: it %1",
                                   "código de barras não impresso: %1"};
constexpr Phrase qrCodeNotPrinted{"QR code not printed: it %1", "QR Code não impresso: %1"};
constexpr Phrase tooWide{"is %1 dots wide, there are %2",
                         "tem %1 pontos de largura, e há lugar para %2"};
constexpr Phrase cannotBeEncoded{"cannot be encoded: %1", "não pode ser codificado: %1"};
constexpr Phrase noData{"cannot be encoded", "não há dados para codificar"};
constexpr Phrase codeNotDrawn{"has a code that is not drawn",
                              "contém um código que esta impressora não desenha"};
constexpr Phrase noSetSelector{"has no set selector",
                               "falta escolher o conjunto de caracteres ({A, {B ou {C)"};
constexpr Phrase pairAbove99{"has a pair of digits above 99",
                             "contém um par de dígitos acima de 99"};
constexpr Phrase kindNotDrawn{"is of a kind that is not drawn",
                              "é de um tipo que esta impressora não desenha"};
constexpr Phrase wrongDigitCount{"has the wrong number of digits",
                                 "o número de dígitos está errado"};
constexpr Phrase notShortened{"cannot be shortened to UPC-E", "não pode ser encurtado para UPC-E"};
constexpr Phrase wrongCheckDigit{"has the wrong check digit", "o dígito verificador está errado"};
constexpr Phrase noGraphic{"no graphic is stored under %1: nothing printed",
                           "não há imagem gravada sob %1: nada impresso"};

// What stands for dots in a receipt's text.
constexpr Phrase qrCode{"[QR code %1]", "[QR Code %1]"};
constexpr Phrase graphic{"[graphic %1]", "[imagem gravada %1]"};
constexpr Phrase image{"[image]", "[imagem]"};

// Beside the paper.
constexpr Phrase drawer{"drawer %1: %2 ms on, %3 ms off",
                        "gaveta %1: %2 ms ligada, %3 ms desligada"};
constexpr Phrase buzzer{"buzzer %1 times: %2 ms on, %3 ms off",
                        "aviso sonoro, %1 vezes: %2 ms ligado, %3 ms desligado"};
constexpr Phrase blankPaperLeftOut{"%1 cm of blank paper left out",
                                   "%1 cm de papel em branco não mostrados"};
constexpr Phrase goesOn{"goes on in the next part", "continua na próxima parte"};
constexpr Phrase endOfTheConnection{"end of the connection", "fim da conexão"};

// In the list of commands.
constexpr Phrase unknown{"unknown", "desconhecido"};
constexpr Phrase malformed{"malformed %1", "malformado %1"};
constexpr Phrase truncated{"truncated %1", "incompleto %1"};

} // namespace virtual_printer::phrases
