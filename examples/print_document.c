/* Prints a fiscal document from its XML file.
 *
 *   q7_print_document MODEL LINK FILE [--options N] [--signature TEXT] [--csc ID TOKEN]
 *
 * MODEL      VANTA, VESPA, ...
 * LINK       net:HOST:PORT, com:PORT:SPEED or usb
 * FILE       a CF-e sale (root CFe), its cancellation (CFeCanc) or an NFC-e (nfeProc or NFe)
 * --options  the option bits of the document's function, 0 when not given
 * --signature  for a cancellation: the element assinaturaQRCODE of the cancelled sale
 * --csc      for an NFC-e without a ready QR text: the CSC's identifier and token
 */
#include "q7_impressora.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { LINES_BEFORE_CUT = 5 };

struct link_address {
    int kind;
    char name[256];
    int number;
};

/* Takes "net:HOST:PORT" apart; HOST may hold colons itself. Returns 0 when it is none. */
static int parse_link(const char* text, struct link_address* address)
{
    const char* last = strrchr(text, ':');
    size_t length;
    memset(address, 0, sizeof *address);
    if (strcmp(text, "usb") == 0) {
        address->kind = Q7_CONNECTION_USB;
        return 1;
    }
    if (strncmp(text, "net:", 4) == 0)
        address->kind = Q7_CONNECTION_TCP;
    else if (strncmp(text, "com:", 4) == 0)
        address->kind = Q7_CONNECTION_SERIAL;
    if (address->kind == 0 || last < text + 4)
        return 0;
    length = (size_t)(last - (text + 4));
    if (length == 0 || length >= sizeof address->name)
        return 0;
    memcpy(address->name, text + 4, length);
    address->number = atoi(last + 1);
    return 1;
}

/* The whole file as a string, or NULL. */
static char* read_file(const char* path)
{
    FILE* file = fopen(path, "rb");
    char* text = NULL;
    long size;
    if (file == NULL)
        return NULL;
    if (fseek(file, 0, SEEK_END) == 0 && (size = ftell(file)) >= 0 && fseek(file, 0, SEEK_SET) == 0)
        text = calloc((size_t)size + 1, 1);
    if (text != NULL && fread(text, 1, (size_t)size, file) != (size_t)size) {
        free(text);
        text = NULL;
    }
    fclose(file);
    return text;
}

int main(int argc, char** argv)
{
    struct link_address address;
    const char* signature = "";
    const char* csc = "";
    int csc_id = 0;
    int options = 0;
    int result;
    int closed;
    int i;
    char* xml;

    if (argc < 4 || !parse_link(argv[2], &address)) {
        fprintf(stderr,
                "usage: %s MODEL net:HOST:PORT|com:PORT:SPEED|usb FILE [--options N]\n"
                "       [--signature TEXT] [--csc ID TOKEN]\n",
                argv[0]);
        return 2;
    }
    for (i = 4; i < argc; ++i) {
        if (strcmp(argv[i], "--options") == 0 && i + 1 < argc)
            options = (int)strtol(argv[++i], NULL, 0);
        else if (strcmp(argv[i], "--signature") == 0 && i + 1 < argc)
            signature = argv[++i];
        else if (strcmp(argv[i], "--csc") == 0 && i + 2 < argc) {
            csc_id = atoi(argv[++i]);
            csc = argv[++i];
        } else {
            fprintf(stderr, "%s: what is %s?\n", argv[0], argv[i]);
            return 2;
        }
    }
    xml = read_file(argv[3]);
    if (xml == NULL) {
        perror(argv[3]);
        return 1;
    }

    result = AbreConexaoImpressora(address.kind, argv[1], address.name, address.number);
    if (result != 0) {
        fprintf(stderr, "AbreConexaoImpressora: %d\n", result);
        free(xml);
        return 1;
    }
    if (strstr(xml, "<CFeCanc") != NULL)
        result = ImprimeXMLCancelamentoSAT(xml, signature, options);
    else if (strstr(xml, "<CFe") != NULL)
        result = ImprimeXMLSAT(xml, options);
    else
        result = ImprimeXMLNFCe(xml, csc_id, csc, options);
    free(xml);
    if (result == 0)
        result = Corte(LINES_BEFORE_CUT);
    if (result != 0)
        fprintf(stderr, "not printed: %d\n", result);
    closed = FechaConexaoImpressora();
    if (closed != 0)
        fprintf(stderr, "FechaConexaoImpressora: %d\n", closed);
    return result == 0 && closed == 0 ? 0 : 1;
}
