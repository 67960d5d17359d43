/* Makes the same calls on Windows and on Linux and prints their results, one a line:
 *   print_calls LIBRARY KIND ADDRESS NUMBER [CF-e file [NFC-e file]]
 * The printer is a VANTA. What it receives must be the same from both. */
#include "host.h"
#include "q7_impressora.h"

#include <stdio.h>
#include <stdlib.h>

static void* library;

/* Calls an export with the type that the public header gives it. */
#define CALL(name, ...) report(#name, TYPED_EXPORT(library, name)(__VA_ARGS__))

static int report(const char* name, int result)
{
    printf("%s %d\n", name, result);
    fflush(stdout);
    return result;
}

static void printTexts(void)
{
    CALL(ImpressaoTexto, "Promo\xC3\xA7\xC3\xA3o: p\xC3\xA3o \xE2\x82\xAC 1,00\n", 1, 8, 17);
    CALL(ImpressaoTexto, "sublinhado\n", 2, 2, 0);
    CALL(EspacamentoEntreLinhas, 40);
    CALL(ImpressaoTexto, "invertido\n", 0, 4, 0);
    CALL(DefinePosicao, 1);
    CALL(AvancaPapel, 2);
    CALL(ImpressaoTexto, "fora do limite\n", 3, 0, 0);
}

static void printSymbols(void)
{
    static const char* const data[] = {"78910003155", "01234567890", "789100031550",
                                       "7891000",     "CUPOM 42",    "12345678",
                                       "A123456B",    "LOTE 7",      "{BCaixa{C0102"};
    for (int type = 0; type < (int)(sizeof data / sizeof data[0]); ++type)
        CALL(ImpressaoCodigoBarras, type, data[type], 80, 2, 2);
    CALL(ImpressaoQRCode, "https://exemplo.com.br/?c=1", 4, 2);
    CALL(ImprimeImagemMemoria, "00", 1);
}

static void askAndDrive(void)
{
    char reply[1024];
    unsigned size = sizeof reply;
    for (int kind = 1; kind <= 5; ++kind)
        CALL(StatusImpressora, kind);
    CALL(DirectIO, "\x1D\x49\x43", 3, reply, &size);
    printf("%u bytes\n", size);
    printf("IdImpressora %s\n", TYPED_EXPORT(library, IdImpressora)(4));
    CALL(AbreGaveta, 1, 50, 200);
    CALL(SinalSonoro, 3, 2, 2);
    CALL(Corte, 4);
}

static void printPage(void)
{
    CALL(ModoPagina);
    CALL(DirecaoImpressao, 1);
    CALL(DefineAreaImpressao, 0, 0, 512, 1000);
    CALL(PosicaoImpressaoHorizontal, 300);
    CALL(PosicaoImpressaoVertical, 70000);
    CALL(ImpressaoTexto, "na pagina", 0, 0, 0);
    CALL(ImprimeMPeRetornaPadrao);
}

int main(int argc, char** argv)
{
    if (argc < 5)
        return 2;
    library = loadLibrary(argv[1]);
    if (CALL(AbreConexaoImpressora, atoi(argv[2]), "vanta", argv[3], atoi(argv[4])) != 0)
        return 0;
    printTexts();
    printSymbols();
    askAndDrive();
    printPage();
    if (argc > 5)
        CALL(ImprimeXMLSAT, contentOf(argv[5]), 1);
    if (argc > 6)
        CALL(ImprimeXMLNFCe, contentOf(argv[6]), 1, "0123456789", 0x40);
    CALL(FechaConexaoImpressora);
    CALL(FechaConexaoImpressora);
    return 0;
}
