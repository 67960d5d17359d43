/* Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.
 *   caixa VANTA 3 192.168.0.10 9100 ../documents       (tipo: 1 USB, 2 serial, 3 rede) */
#include "q7_impressora.h"
#include "q7_mensagem.h" /* de declaracoes/c */
#include <stdio.h>
#include <stdlib.h>

#define FALHA(...) (printf(__VA_ARGS__), puts(""), exit(EXIT_FAILURE))

static void confere(int resultado)
{
    if (resultado < 0)
        FALHA("Impressão interrompida: %s", q7_mensagem(resultado));
}

static const char* arquivo(const char* pasta, const char* nome) /* um de cada vez */
{
    static char texto[65536];
    char caminho[1024];
    const char* c;
    FILE* aberto;
    snprintf(caminho, sizeof caminho, "%s/%s", pasta, nome);
    if ((aberto = fopen(caminho, "rb")) == NULL)
        FALHA("Não há %s.", caminho);
    texto[fread(texto, 1, sizeof texto - 1, aberto)] = '\0';
    fclose(aberto);
    for (c = texto; *c != '\0'; ++c) /* em UTF-8 uma letra acentuada tem dois bytes */
        if ((*c & 0xC0) == 0xC0 ? (c[1] & 0xC0) != 0x80 : (*c & 0x80) == 0 && (c[1] & 0xC0) == 0x80)
            FALHA("O texto não está em UTF-8.");
    return texto;
}

static void abre(const char* modelo, int tipo, const char* conexao, int parametro)
{
    const int resultado = AbreConexaoImpressora(tipo, modelo, conexao, parametro);
    const int estado = resultado == Q7_OK ? StatusImpressora(Q7_STATUS_ALL) : Q7_OK;
    if (tipo == Q7_CONNECTION_TCP && resultado == Q7_NET_HOST_NOT_FOUND)
        FALHA("Não abriu: endereço não encontrado.");
    if (tipo == Q7_CONNECTION_TCP && resultado == Q7_NET_TIMEOUT)
        FALHA("Não abriu: a impressora não respondeu.");
    if (resultado != Q7_OK)
        FALHA("Não abriu: %s", q7_mensagem(resultado));
    if (estado == Q7_ERR_NOT_OPEN)
        FALHA("Não abriu: a impressora recusou a conexão.");
    if (estado < 0)
        FALHA("Sem estado: %s", q7_mensagem(estado));
    if ((estado & (Q7_STATE_BIT_PAPER_OUT | Q7_STATE_BIT_COVER_OPEN)) != 0)
        FALHA((estado & Q7_STATE_BIT_PAPER_OUT) != 0 ? "Sem papel." : "Tampa aberta.");
    printf("Impressora: %s\n", IdImpressora(Q7_ID_MODEL));
}

int main(int argc, char** argv)
{
    if (argc != 6)
        return EXIT_FAILURE;
    printf("Q7_Impressora %s\n", GetVersaoDLL());
    arquivo(argv[5], "mensagem.txt"); /* antes de abrir: o que está nela pode ser impresso? */
    abre(argv[1], atoi(argv[2]), argv[3], atoi(argv[4]));
    confere(ImpressaoTexto("Padaria São João\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE));
    confere(ImpressaoTexto("Pão francês                                 7,50\n"
                           "Café com açúcar                             6,00\n"
                           "Maçã                                        3,25\n"
                           "TOTAL                                      16,75\n",
                           0, 0, 0));
    confere(DefinePosicao(Q7_ALIGN_CENTER));
    confere(ImpressaoCodigoBarras(Q7_BARCODE_EAN13, "7891000315507", 80, 2, Q7_HRI_BELOW));
    confere(ImpressaoQRCode("https://exemplo.com.br", 4, Q7_QR_LEVEL_M));
    confere(ImpressaoTexto(arquivo(argv[5], "mensagem.txt"), 0, 0, 0));
    confere(Corte(4));
    confere(ImprimeXMLNFCe(arquivo(argv[5], "autorizada-consumidor-cpf.xml"), 1, "",
                           Q7_NFCE_SEPARATORS | Q7_NFCE_ISSUER_IE));
    confere(Corte(4));
    confere(ImprimeXMLSAT(arquivo(argv[5], "venda-simples.xml"), 0));
    confere(Corte(4));
    confere(AbreGaveta(0, 50, 200));
    confere(StatusImpressora(Q7_STATUS_PAPER)); /* ainda responde: recebeu tudo */
    confere(FechaConexaoImpressora());
    puts("Impresso.");
    return EXIT_SUCCESS;
}
