// Gerado a partir de q7_impressora.h por scripts/declarations; não altere.

using System;
using System.Runtime.InteropServices;
using System.Text;

/// <summary>Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.</summary>
/// <remarks>No Windows a biblioteca é de 32 bits: compile o programa para x86. Os textos vão para
/// ela em UTF-8, e os que ela devolve são lidos sem ser liberados.</remarks>
public static class Q7Impressora
{
    private const string Biblioteca = "Q7_Impressora";

    /// <summary>A versão para a qual estas declarações foram feitas; compare com
    /// GetVersaoDLL.</summary>
    public const string Q7_VERSION_TEXT = "01.01.00";

    // Q7Result: Códigos de retorno.
    /// <summary>Sucesso.</summary>
    public const int Q7_OK = 0;
    /// <summary>Tipo de conexão desconhecido.</summary>
    public const int Q7_ERR_KIND = -2;
    /// <summary>Modelo desconhecido, ou a impressora é de outro modelo conhecido.</summary>
    public const int Q7_ERR_MODEL = -3;
    /// <summary>Nenhuma conexão aberta.</summary>
    public const int Q7_ERR_NOT_OPEN = -4;
    /// <summary>A impressora não informou um modelo conhecido.</summary>
    public const int Q7_ERR_UNKNOWN_PRINTER = -5;
    /// <summary>Conexão já aberta.</summary>
    public const int Q7_ERR_ALREADY_OPEN = -6;
    /// <summary>Velocidade serial não permitida.</summary>
    public const int Q7_ERR_SPEED = -11;
    /// <summary>Porta serial não encontrada.</summary>
    public const int Q7_ERR_SERIAL_NOT_FOUND = -12;
    /// <summary>Porta serial em uso ou sem permissão.</summary>
    public const int Q7_ERR_SERIAL_DENIED = -13;
    /// <summary>Porta serial falhou por motivo desconhecido.</summary>
    public const int Q7_ERR_SERIAL_UNKNOWN = -14;
    /// <summary>Impressora USB não encontrada.</summary>
    public const int Q7_ERR_USB_ABSENT = -21;
    /// <summary>A impressora USB não pôde ser aberta.</summary>
    public const int Q7_ERR_USB_OPEN = -22;
    /// <summary>Porta TCP fora da faixa.</summary>
    public const int Q7_ERR_TCP_PORT = -31;
    /// <summary>Alinhamento fora de 0 a 2.</summary>
    public const int Q7_ERR_ALIGNMENT = -41;
    /// <summary>Estilo, negrito ou fonte fora da faixa.</summary>
    public const int Q7_ERR_STYLE = -42;
    /// <summary>Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255.</summary>
    public const int Q7_ERR_SIZE = -43;
    /// <summary>Nada foi enviado.</summary>
    public const int Q7_ERR_NOT_SENT = -44;
    /// <summary>Tamanho do módulo do QR Code fora de 1 a 6.</summary>
    public const int Q7_ERR_QR_SIZE = -51;
    /// <summary>Nível de correção do QR Code fora de 1 a 4.</summary>
    public const int Q7_ERR_QR_LEVEL = -52;
    /// <summary>Conteúdo do QR Code vazio.</summary>
    public const int Q7_ERR_QR_EMPTY = -53;
    /// <summary>Altura do código de barras fora de 1 a 255.</summary>
    public const int Q7_ERR_BARCODE_HEIGHT = -61;
    /// <summary>Largura do módulo do código de barras fora de 1 a 6.</summary>
    public const int Q7_ERR_BARCODE_WIDTH = -62;
    /// <summary>Posição do texto do código de barras fora de 1 a 4.</summary>
    public const int Q7_ERR_BARCODE_HRI = -63;
    /// <summary>Tipo de código de barras fora de 0 a 8.</summary>
    public const int Q7_ERR_BARCODE_TYPE = -64;
    /// <summary>Dados inválidos para o tipo de código de barras.</summary>
    public const int Q7_ERR_BARCODE_DATA = -65;
    /// <summary>Documento ou esquema inválido.</summary>
    public const int Q7_ERR_XSD = -71;
    /// <summary>Arquivo de esquema ausente.</summary>
    public const int Q7_ERR_XSD_MISSING = -72;
    /// <summary>A impressora não respondeu.</summary>
    public const int Q7_ERR_NO_REPLY = -81;
    /// <summary>A assinatura não tem 344 caracteres.</summary>
    public const int Q7_ERR_SIGNATURE = -91;
    /// <summary>Versão do leiaute da NFC-e diferente de 4.00.</summary>
    public const int Q7_ERR_NFCE_VERSION = -101;
    /// <summary>Não é uma NFC-e, ou é uma sem o atributo versao.</summary>
    public const int Q7_ERR_NFCE_NO_VERSION = -102;
    /// <summary>Tipo de emissão (tpEmis) ausente ou 0.</summary>
    public const int Q7_ERR_NFCE_EMISSION = -103;
    /// <summary>Opções da NFC-e acima de 65535.</summary>
    public const int Q7_ERR_NFCE_OPTIONS = -104;
    /// <summary>NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute
    /// 6.0.</summary>
    public const int Q7_ERR_NFCE_MODEL = -105;
    /// <summary>Nota sem QR Code. Só com o leiaute 6.0.</summary>
    public const int Q7_ERR_NFCE_QR = -106;
    /// <summary>Quantidade de sinais sonoros acima de 63.</summary>
    public const int Q7_ERR_BUZZER_COUNT = -111;
    /// <summary>Os dois tempos do sinal sonoro acima de 25.</summary>
    public const int Q7_ERR_BUZZER_TIME = -112;
    /// <summary>Pino da gaveta acima de 1.</summary>
    public const int Q7_ERR_DRAWER_PIN = -121;
    /// <summary>Um tempo da gaveta acima de 255.</summary>
    public const int Q7_ERR_DRAWER_TIME = -122;
    /// <summary>Estado não disponível nesta conexão.</summary>
    public const int Q7_ERR_STATUS_UNAVAILABLE = -126;
    /// <summary>Pergunta de estado fora de 1 a 5.</summary>
    public const int Q7_ERR_STATUS_KIND = -127;
    /// <summary>A chave da imagem não são dois caracteres visíveis.</summary>
    public const int Q7_ERR_IMAGE_KEY = -131;
    /// <summary>Escala da imagem fora de 1 a 2.</summary>
    public const int Q7_ERR_IMAGE_SCALE = -132;
    /// <summary>Direção de impressão fora de 0 a 3.</summary>
    public const int Q7_ERR_DIRECTION = -136;
    /// <summary>Posição horizontal acima de 500.</summary>
    public const int Q7_ERR_POSITION = -137;
    /// <summary>Pergunta de identificação fora de 0 a 6.</summary>
    public const int Q7_ERR_ID_KIND = -402;
    /// <summary>Sem resultado: nada foi enviado, ou outra falha.</summary>
    public const int Q7_ERR_FAILED = -9999;

    // Q7NetError: Números positivos que AbreConexaoImpressora devolve quando a conexão TCP falha.
    /// <summary>conexão recusada: parece sucesso, veja as convenções.</summary>
    public const int Q7_NET_REFUSED = 0;
    /// <summary>fechada pelo outro lado.</summary>
    public const int Q7_NET_CLOSED = 1;
    /// <summary>nome ou endereço não encontrado.</summary>
    public const int Q7_NET_HOST_NOT_FOUND = 2;
    /// <summary>o sistema não permitiu.</summary>
    public const int Q7_NET_NOT_PERMITTED = 3;
    /// <summary>faltam recursos ao sistema.</summary>
    public const int Q7_NET_NO_RESOURCES = 4;
    /// <summary>sem resposta em 2000 ms.</summary>
    public const int Q7_NET_TIMEOUT = 5;
    /// <summary>rede fora do alcance.</summary>
    public const int Q7_NET_UNREACHABLE = 7;

    // Q7Connection: Tipos de conexão.
    /// <summary>USB.</summary>
    public const int Q7_CONNECTION_USB = 1;
    /// <summary>porta serial (COM).</summary>
    public const int Q7_CONNECTION_SERIAL = 2;
    /// <summary>rede (TCP).</summary>
    public const int Q7_CONNECTION_TCP = 3;

    // Q7Alignment: Alinhamentos.
    /// <summary>à esquerda; em ImpressaoTexto: deixa o alinhamento como está.</summary>
    public const int Q7_ALIGN_LEFT = 0;
    /// <summary>centralizado.</summary>
    public const int Q7_ALIGN_CENTER = 1;
    /// <summary>à direita.</summary>
    public const int Q7_ALIGN_RIGHT = 2;

    // Q7Style: Estilos de texto, que se somam.
    /// <summary>nenhum.</summary>
    public const int Q7_STYLE_NORMAL = 0;
    /// <summary>fonte pequena; com Q7_STYLE_UNDERLINE, perde-se.</summary>
    public const int Q7_STYLE_SMALL = 1;
    /// <summary>sublinhado.</summary>
    public const int Q7_STYLE_UNDERLINE = 2;
    /// <summary>branco sobre preto.</summary>
    public const int Q7_STYLE_REVERSE = 4;
    /// <summary>negrito.</summary>
    public const int Q7_STYLE_BOLD = 8;

    // Q7Size: Tamanhos de caractere: (fator de largura - 1) * 16 + (fator de altura - 1), de 0 a
    // 119.
    /// <summary>deixa o tamanho como está.</summary>
    public const int Q7_SIZE_NORMAL = 0;
    /// <summary>altura dupla.</summary>
    public const int Q7_SIZE_DOUBLE_HEIGHT = 1;
    /// <summary>largura dupla.</summary>
    public const int Q7_SIZE_DOUBLE_WIDTH = 16;
    /// <summary>largura e altura duplas.</summary>
    public const int Q7_SIZE_DOUBLE = 17;
    /// <summary>largura e altura triplas.</summary>
    public const int Q7_SIZE_TRIPLE = 34;
    /// <summary>largura e altura óctuplas.</summary>
    public const int Q7_SIZE_LARGEST = 119;

    // Q7Font: Fontes de SetTextFont.
    /// <summary>fonte normal.</summary>
    public const int Q7_FONT_NORMAL = 0;
    /// <summary>fonte pequena.</summary>
    public const int Q7_FONT_SMALL = 1;

    // Q7Barcode: Códigos de barras.
    /// <summary>UPC-A.</summary>
    public const int Q7_BARCODE_UPC_A = 0;
    /// <summary>UPC-E.</summary>
    public const int Q7_BARCODE_UPC_E = 1;
    /// <summary>EAN-13.</summary>
    public const int Q7_BARCODE_EAN13 = 2;
    /// <summary>EAN-8.</summary>
    public const int Q7_BARCODE_EAN8 = 3;
    /// <summary>CODE39.</summary>
    public const int Q7_BARCODE_CODE39 = 4;
    /// <summary>ITF (2 de 5 intercalado).</summary>
    public const int Q7_BARCODE_ITF = 5;
    /// <summary>CODABAR.</summary>
    public const int Q7_BARCODE_CODABAR = 6;
    /// <summary>CODE93.</summary>
    public const int Q7_BARCODE_CODE93 = 7;
    /// <summary>CODE128.</summary>
    public const int Q7_BARCODE_CODE128 = 8;

    // Q7Hri: Posições do texto de um código de barras.
    /// <summary>acima.</summary>
    public const int Q7_HRI_ABOVE = 1;
    /// <summary>abaixo.</summary>
    public const int Q7_HRI_BELOW = 2;
    /// <summary>acima e abaixo.</summary>
    public const int Q7_HRI_BOTH = 3;
    /// <summary>enviado como está: a impressora decide.</summary>
    public const int Q7_HRI_OTHER = 4;

    // Q7QrLevel: Níveis de correção de erros do QR Code.
    /// <summary>nível L, cerca de 7%.</summary>
    public const int Q7_QR_LEVEL_L = 1;
    /// <summary>nível M, cerca de 15%.</summary>
    public const int Q7_QR_LEVEL_M = 2;
    /// <summary>nível Q, cerca de 25%.</summary>
    public const int Q7_QR_LEVEL_Q = 3;
    /// <summary>nível H, cerca de 30%.</summary>
    public const int Q7_QR_LEVEL_H = 4;

    // Q7ImageScale: Escalas das imagens gravadas na impressora.
    /// <summary>como gravada.</summary>
    public const int Q7_IMAGE_NORMAL = 1;
    /// <summary>largura e altura duplas.</summary>
    public const int Q7_IMAGE_DOUBLE = 2;

    // Q7Status: O que StatusImpressora pergunta.
    /// <summary>sinal da gaveta; não por TCP.</summary>
    public const int Q7_STATUS_DRAWER = 1;
    /// <summary>tampa.</summary>
    public const int Q7_STATUS_COVER = 2;
    /// <summary>papel.</summary>
    public const int Q7_STATUS_PAPER = 3;
    /// <summary>sensor de papel; só por TCP.</summary>
    public const int Q7_STATUS_SENSOR = 4;
    /// <summary>todos os que a conexão tem, numa soma de Q7StateBit.</summary>
    public const int Q7_STATUS_ALL = 5;

    // Q7State: O que StatusImpressora responde às perguntas de 1 a 4.
    /// <summary>sinal da gaveta em nível baixo.</summary>
    public const int Q7_STATE_DRAWER_LOW = 1;
    /// <summary>sinal da gaveta em nível alto.</summary>
    public const int Q7_STATE_DRAWER_HIGH = 2;
    /// <summary>tampa aberta.</summary>
    public const int Q7_STATE_COVER_OPEN = 3;
    /// <summary>tampa fechada.</summary>
    public const int Q7_STATE_COVER_CLOSED = 4;
    /// <summary>há papel.</summary>
    public const int Q7_STATE_PAPER_PRESENT = 5;
    /// <summary>papel perto do fim.</summary>
    public const int Q7_STATE_PAPER_NEAR_END = 6;
    /// <summary>sem papel.</summary>
    public const int Q7_STATE_PAPER_OUT = 7;
    /// <summary>sensor sem sinal.</summary>
    public const int Q7_STATE_SENSOR_CLEAR = 8;
    /// <summary>sensor com sinal.</summary>
    public const int Q7_STATE_SENSOR_SIGNALLED = 9;

    // Q7StateBit: De que se soma a resposta de StatusImpressora a Q7_STATUS_ALL; 0 é a impressora
    // pronta.
    /// <summary>sinal da gaveta em nível baixo.</summary>
    public const int Q7_STATE_BIT_DRAWER_LOW = 1;
    /// <summary>tampa aberta.</summary>
    public const int Q7_STATE_BIT_COVER_OPEN = 2;
    /// <summary>papel perto do fim, ou no fim.</summary>
    public const int Q7_STATE_BIT_PAPER_NEAR_END = 4;
    /// <summary>sem papel; vem com o anterior.</summary>
    public const int Q7_STATE_BIT_PAPER_OUT = 8;
    /// <summary>sensor com sinal.</summary>
    public const int Q7_STATE_BIT_SENSOR_SIGNALLED = 16;

    // Q7PrinterState: O que GetPrinterState escreve.
    /// <summary>pronta.</summary>
    public const int Q7_PRINTER_READY = 0;
    /// <summary>sem papel.</summary>
    public const int Q7_PRINTER_PAPER_OUT = 1;
    /// <summary>tampa aberta.</summary>
    public const int Q7_PRINTER_COVER_OPEN = 2;
    /// <summary>papel perto do fim.</summary>
    public const int Q7_PRINTER_PAPER_NEAR_END = 4;
    /// <summary>tampa aberta e sem papel.</summary>
    public const int Q7_PRINTER_COVER_OPEN_PAPER_OUT = 5;
    /// <summary>tampa aberta e papel perto do fim.</summary>
    public const int Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END = 6;

    // Q7Identification: O que IdImpressora pergunta.
    /// <summary>número do modelo.</summary>
    public const int Q7_ID_MODEL_NUMBER = 0;
    /// <summary>número do tipo.</summary>
    public const int Q7_ID_TYPE_NUMBER = 1;
    /// <summary>versão do firmware.</summary>
    public const int Q7_ID_FIRMWARE = 2;
    /// <summary>fabricante.</summary>
    public const int Q7_ID_MAKER = 3;
    /// <summary>nome do modelo.</summary>
    public const int Q7_ID_MODEL = 4;
    /// <summary>número de série.</summary>
    public const int Q7_ID_SERIAL = 5;
    /// <summary>fontes.</summary>
    public const int Q7_ID_FONTS = 6;

    // Q7Direction: Direções de impressão no modo página.
    /// <summary>da esquerda para a direita.</summary>
    public const int Q7_DIRECTION_LEFT_TO_RIGHT = 0;
    /// <summary>de baixo para cima.</summary>
    public const int Q7_DIRECTION_BOTTOM_TO_TOP = 1;
    /// <summary>da direita para a esquerda.</summary>
    public const int Q7_DIRECTION_RIGHT_TO_LEFT = 2;
    /// <summary>de cima para baixo.</summary>
    public const int Q7_DIRECTION_TOP_TO_BOTTOM = 3;

    // Q7CfeOption: Opções do CF-e (ImprimeXMLSAT; a primeira também em ImprimeXMLCancelamentoSAT),
    // que se somam.
    /// <summary>cabeçalho ao lado da imagem "00" gravada na impressora.</summary>
    public const int Q7_CFE_LOGO = 1;
    /// <summary>sem os itens.</summary>
    public const int Q7_CFE_NO_ITEMS = 2;
    /// <summary>aviso de teste sob o título.</summary>
    public const int Q7_CFE_TEST = 4;

    // Q7NfceOption: Opções da NFC-e (ImprimeXMLNFCe), que se somam.
    /// <summary>sem os itens.</summary>
    public const int Q7_NFCE_NO_ITEMS = 1;
    /// <summary>coluna larga de código, com o GTIN.</summary>
    public const int Q7_NFCE_GTIN = 2;
    /// <summary>cabeçalho ao lado da imagem "00" gravada na impressora.</summary>
    public const int Q7_NFCE_LOGO = 8;
    /// <summary>aviso de ambiente de homologação; o leiaute 6.0 segue o tpAmb.</summary>
    public const int Q7_NFCE_TEST = 16;
    /// <summary>linhas separadoras entre as divisões.</summary>
    public const int Q7_NFCE_SEPARATORS = 64;
    /// <summary>inscrição estadual do emitente no cabeçalho.</summary>
    public const int Q7_NFCE_ISSUER_IE = 128;
    /// <summary>número de cada item.</summary>
    public const int Q7_NFCE_ITEM_NUMBERS = 256;
    /// <summary>uma nota em contingência sai numa só via.</summary>
    public const int Q7_NFCE_ONE_COPY = 512;

    // Q7Limit: Limites.
    /// <summary>bytes que comportam qualquer resposta de DirectIO.</summary>
    public const int Q7_LONGEST_REPLY = 65536;

    /// <summary>Diz o que um código de retorno significa e o que fazer.</summary>
    public static string Mensagem(int codigo)
    {
        switch (codigo)
        {
            case Q7_OK:
                return "Sucesso. O que fazer: nada; depois de abrir por TCP chame StatusImpressora, que devolve -4 se a conexão foi recusada.";
            case Q7_ERR_KIND:
                return "Tipo de conexão desconhecido. O que fazer: passe uma das constantes de Q7Connection, ou um texto como \"COM3,9600\", \"NET,192.168.0.10,9100\" ou \"USB\".";
            case Q7_ERR_MODEL:
                return "Modelo desconhecido, ou a impressora é de outro modelo conhecido. O que fazer: confira o nome na lista de AbreConexaoImpressora e o que a impressora diz no autoteste.";
            case Q7_ERR_NOT_OPEN:
                return "Nenhuma conexão aberta. O que fazer: confira se a impressora está ligada e na rede e abra de novo.";
            case Q7_ERR_UNKNOWN_PRINTER:
                return "A impressora não informou um modelo conhecido. O que fazer: confira cabo, energia, velocidade e endereço e abra de novo.";
            case Q7_ERR_ALREADY_OPEN:
                return "Conexão já aberta. O que fazer: nada; feche a conexão antes de abrir outra.";
            case Q7_ERR_SPEED:
                return "Velocidade serial não permitida. O que fazer: passe 300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200, a mesma que está configurada na impressora.";
            case Q7_ERR_SERIAL_NOT_FOUND:
                return "Porta serial não encontrada. O que fazer: veja o nome da porta no Gerenciador de Dispositivos (no Linux, em /dev).";
            case Q7_ERR_SERIAL_DENIED:
                return "Porta serial em uso ou sem permissão. O que fazer: feche o outro programa; no Linux, ponha o usuário no grupo dialout e entre de novo.";
            case Q7_ERR_SERIAL_UNKNOWN:
                return "Porta serial falhou por motivo desconhecido. O que fazer: retire e recoloque o adaptador; atualize o driver.";
            case Q7_ERR_USB_ABSENT:
                return "Impressora USB não encontrada. O que fazer: copie os identificadores do Gerenciador de Dispositivos (VID e PID) para \"q7_usb.ini\" e reinicie o programa.";
            case Q7_ERR_USB_OPEN:
                return "A impressora USB não pôde ser aberta. O que fazer: feche o outro programa; o número de erro do sistema está no log, na linha \"ERRO DE ABERTURA DE PORTA:\".";
            case Q7_ERR_TCP_PORT:
                return "Porta TCP fora da faixa. O que fazer: passe a porta da impressora, em geral 9100.";
            case Q7_ERR_ALIGNMENT:
                return "Alinhamento fora de 0 a 2. O que fazer: passe Q7_ALIGN_LEFT, Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.";
            case Q7_ERR_STYLE:
                return "Estilo, negrito ou fonte fora da faixa. O que fazer: some constantes de Q7Style, cada uma uma só vez.";
            case Q7_ERR_SIZE:
                return "Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. O que fazer: passe um valor de Q7Size; o espaçamento é em pontos.";
            case Q7_ERR_NOT_SENT:
                return "Nada foi enviado. O que fazer: confira o texto e o papel da impressora; imprima textos longos em partes.";
            case Q7_ERR_QR_SIZE:
                return "Tamanho do módulo do QR Code fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 4 serve para quase tudo.";
            case Q7_ERR_QR_LEVEL:
                return "Nível de correção do QR Code fora de 1 a 4. O que fazer: passe um valor de Q7QrLevel.";
            case Q7_ERR_QR_EMPTY:
                return "Conteúdo do QR Code vazio. O que fazer: confira de onde vem o conteúdo.";
            case Q7_ERR_BARCODE_HEIGHT:
                return "Altura do código de barras fora de 1 a 255. O que fazer: passe a altura em pontos; 80 pontos são 10 mm a 8 pontos por milímetro.";
            case Q7_ERR_BARCODE_WIDTH:
                return "Largura do módulo do código de barras fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 2 serve para quase tudo.";
            case Q7_ERR_BARCODE_HRI:
                return "Posição do texto do código de barras fora de 1 a 4. O que fazer: passe um valor de Q7Hri.";
            case Q7_ERR_BARCODE_TYPE:
                return "Tipo de código de barras fora de 0 a 8. O que fazer: passe uma das constantes; só PrintBarCode e PrtPrintBarCode aceitam também 65 a 73.";
            case Q7_ERR_BARCODE_DATA:
                return "Dados inválidos para o tipo de código de barras. O que fazer: veja em ImpressaoCodigoBarras o que cada tipo aceita.";
            case Q7_ERR_XSD:
                return "Documento ou esquema inválido. O que fazer: nada.";
            case Q7_ERR_XSD_MISSING:
                return "Arquivo de esquema ausente. O que fazer: nada.";
            case Q7_ERR_NO_REPLY:
                return "A impressora não respondeu. O que fazer: confira a impressora e o cabo e pergunte de novo.";
            case Q7_ERR_SIGNATURE:
                return "A assinatura não tem 344 caracteres. O que fazer: passe o elemento assinaturaQRCODE da venda cancelada, inteiro.";
            case Q7_ERR_NFCE_VERSION:
                return "Versão do leiaute da NFC-e diferente de 4.00. O que fazer: passe uma NFC-e da versão 4.00.";
            case Q7_ERR_NFCE_NO_VERSION:
                return "Não é uma NFC-e, ou é uma sem o atributo versao. O que fazer: passe o texto do XML autorizado, com a raiz nfeProc ou NFe.";
            case Q7_ERR_NFCE_EMISSION:
                return "Tipo de emissão (tpEmis) ausente ou 0. O que fazer: passe o XML inteiro, com o grupo infNFeSupl.";
            case Q7_ERR_NFCE_OPTIONS:
                return "Opções da NFC-e acima de 65535. O que fazer: some constantes de Q7NfceOption.";
            case Q7_ERR_NFCE_MODEL:
                return "NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. O que fazer: passe uma NFC-e (modelo 65) ou uma NF-e com tpImp 6.";
            case Q7_ERR_NFCE_QR:
                return "Nota sem QR Code. Só com o leiaute 6.0. O que fazer: passe o XML com o grupo infNFeSupl inteiro; em contingência sem ele, também o CSC.";
            case Q7_ERR_BUZZER_COUNT:
                return "Quantidade de sinais sonoros acima de 63. O que fazer: passe de 0 a 63.";
            case Q7_ERR_BUZZER_TIME:
                return "Os dois tempos do sinal sonoro acima de 25. O que fazer: passe os tempos em unidades de 100 ms.";
            case Q7_ERR_DRAWER_PIN:
                return "Pino da gaveta acima de 1. O que fazer: passe 0 ou 1.";
            case Q7_ERR_DRAWER_TIME:
                return "Um tempo da gaveta acima de 255. O que fazer: passe o tempo em unidades de 2 ms.";
            case Q7_ERR_STATUS_UNAVAILABLE:
                return "Estado não disponível nesta conexão. O que fazer: pergunte por outra conexão ou por outro estado.";
            case Q7_ERR_STATUS_KIND:
                return "Pergunta de estado fora de 1 a 5. O que fazer: passe uma das constantes.";
            case Q7_ERR_IMAGE_KEY:
                return "A chave da imagem não são dois caracteres visíveis. O que fazer: passe a chave com que a imagem foi gravada, por exemplo \"00\".";
            case Q7_ERR_IMAGE_SCALE:
                return "Escala da imagem fora de 1 a 2. O que fazer: passe um valor de Q7ImageScale a ImprimeImagemMemoria.";
            case Q7_ERR_DIRECTION:
                return "Direção de impressão fora de 0 a 3. O que fazer: passe um valor de Q7Direction.";
            case Q7_ERR_POSITION:
                return "Posição horizontal acima de 500. O que fazer: passe de 0 a 500 pontos.";
            case Q7_ERR_ID_KIND:
                return "Pergunta de identificação fora de 0 a 6. O que fazer: passe uma das constantes; IdImpressora devolve este código como o texto \"-402\".";
            case Q7_ERR_FAILED:
                return "Sem resultado: nada foi enviado, ou outra falha. O que fazer: confira os argumentos; se persistir, ligue o log.";
            default:
                return (codigo > 0 ? "Erro do sistema ou da rede, de número " : "Código desconhecido: ")
                    + codigo + ".";
        }
    }

    /// <summary>Abre a conexão com a impressora.</summary>
    /// <remarks>
    /// <para>Modelos e suas colunas por linha, na fonte normal e na pequena: VANTA, VESPA, VOLTA,
    /// PINTA, SALVI e DUNEL 48 e 64; ORLA-K e SORBE 42 e 56; RANZA, RANZAPRO e TESMO não têm
    /// largura definida.</para>
    /// <para>Impressoras seriais e TCP são perguntadas pelo nome do modelo (GS I 67; TESMO: ~HI) e
    /// têm 750 ms para responder; a conexão TCP é esperada por até 2000 ms. Uma conexão TCP
    /// recusada devolve Q7_OK, veja as convenções.</para>
    /// <para>Uma conexão que já está aberta é abandonada, não fechada: chame FechaConexaoImpressora
    /// antes.</para>
    /// <para>Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
    /// Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
    /// Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS I 67, por serial e TCP.</para>
    /// </remarks>
    /// <param name="tipo">tipo de conexão, um valor de Q7Connection.</param>
    /// <param name="modelo">nome do modelo, em maiúsculas ou minúsculas. Enquanto o último
    /// resultado é 0 (depois da carga, de abrir ou de fechar) qualquer outro nome também passa e
    /// deixa o modelo como estava.</param>
    /// <param name="conexao">porta serial ("COM3"; no Linux "ttyUSB0" ou um caminho), nome ou
    /// endereço TCP; ignorado na USB.</param>
    /// <param name="parametro">bits por segundo (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600
    /// ou 115200) ou porta TCP, de 0 a 65535 (9100 é usual); ignorado na USB.</param>
    /// <returns>0, um código, ou um número positivo de erro do sistema ou da rede
    /// (Q7NetError).</returns>
    public static int AbreConexaoImpressora(int tipo, string modelo, string conexao, int parametro)
    {
        return Nativo.AbreConexaoImpressora(tipo, Utf8(modelo), Utf8(conexao), parametro);
    }

    /// <summary>Fecha a conexão depois que o que foi aceito foi entregue.</summary>
    /// <remarks>
    /// <para>Desiste depois de 5 s em que nada anda; o que falta então se perde, e o log diz
    /// isso.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <returns>0, um código, ou, na USB, um número positivo de erro do sistema.</returns>
    public static int FechaConexaoImpressora()
    {
        return Nativo.FechaConexaoImpressora();
    }

    /// <summary>Diz a versão da biblioteca.</summary>
    /// <remarks>
    /// <para>Efeito: nenhum; não precisa de conexão.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <returns>o texto "01.01.00", em memória nova que fica com quem chamou.</returns>
    public static string GetVersaoDLL()
    {
        return Texto(Nativo.GetVersaoDLL());
    }

    /// <summary>Imprime um texto.</summary>
    /// <remarks>
    /// <para>Se nenhum espaçamento foi guardado (EspacamentoEntreLinhas) e ModoPagina não foi
    /// chamada, a impressora é reiniciada antes: alinhamento, estilo e tamanho começam de novo, e
    /// uma linha ainda sem "\n" se perde.</para>
    /// <para>Por TCP e serial a contagem tem 16 bits e dá a volta em textos de 32768 bytes ou mais:
    /// 40000 bytes devolvem Q7_ERR_NOT_SENT embora saiam. Imprima textos assim em partes.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE,
    /// Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".</para>
    /// <para>ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.</para>
    /// </remarks>
    /// <param name="dados">o texto, em UTF-8; os fins de linha ("\n") são de quem chama, nenhum é
    /// acrescentado.</param>
    /// <param name="posicao">alinhamento, um valor de Q7Alignment; 0 deixa como está.</param>
    /// <param name="stilo">soma de valores de Q7Style, de 0 a 15. Um estilo vale até a impressora
    /// ser reiniciada.</param>
    /// <param name="tamanho">tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como
    /// está.</param>
    /// <returns>a quantidade de bytes do texto enviados, ou um código.</returns>
    public static int ImpressaoTexto(string dados, int posicao, int stilo, int tamanho)
    {
        return Nativo.ImpressaoTexto(Utf8(dados), posicao, stilo, tamanho);
    }

    /// <summary>Guarda o espaçamento entre linhas dos textos que seguem.</summary>
    /// <remarks>
    /// <para>Depois dela os textos não reiniciam mais a impressora, nem em outra conexão. É a mesma
    /// função que SetTextLineSpace.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.</para>
    /// <para>Efeito: no próximo ImpressaoTexto; a própria função não envia nada.</para>
    /// <para>ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.</para>
    /// </remarks>
    /// <param name="espacamento">espaçamento em pontos, de 1 a 255.</param>
    /// <returns>0 ou um código.</returns>
    public static int EspacamentoEntreLinhas(int espacamento)
    {
        return Nativo.EspacamentoEntreLinhas(espacamento);
    }

    /// <summary>Define o alinhamento.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir; o próximo ImpressaoTexto o desfaz se reiniciar a
    /// impressora.</para>
    /// <para>ESC/POS: ESC a n.</para>
    /// </remarks>
    /// <param name="posicao">um valor de Q7Alignment; de valores negativos vai o byte
    /// baixo.</param>
    /// <returns>0 ou um código.</returns>
    public static int DefinePosicao(int posicao)
    {
        return Nativo.DefinePosicao(posicao);
    }

    /// <summary>Reinicia a impressora, que volta às definições de quando é ligada.</summary>
    /// <remarks>
    /// <para>Uma linha ainda não impressa se perde.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC @.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int InicializaImpressora()
    {
        return Nativo.InicializaImpressora();
    }

    /// <summary>Imprime um QR Code.</summary>
    /// <remarks>
    /// <para>A SORBE aceita também níveis acima de 4.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY,
    /// Q7_ERR_NOT_SENT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k
    /// Q.</para>
    /// </remarks>
    /// <param name="dados">o conteúdo. ASCII é seguro; em outros textos o comprimento anunciado à
    /// impressora conta caracteres, não bytes.</param>
    /// <param name="tamanho">tamanho do módulo em pontos, de 1 a 6.</param>
    /// <param name="nivelCorrecao">nível de correção, um valor de Q7QrLevel.</param>
    /// <returns>0 ou um código.</returns>
    public static int ImpressaoQRCode(string dados, int tamanho, int nivelCorrecao)
    {
        return Nativo.ImpressaoQRCode(Utf8(dados), tamanho, nivelCorrecao);
    }

    /// <summary>Imprime um código de barras.</summary>
    /// <remarks>
    /// <para>O que cada tipo aceita: UPC-A 11 ou 12 dígitos; UPC-E 11 ou 12, o primeiro "0"; EAN-13
    /// 12 ou 13; EAN-8 7 ou 8; CODE39 de 1 a 255 dígitos, letras maiúsculas e " $%*+-./"; ITF
    /// dígitos em quantidade par; CODABAR dígitos e "$+-./:" entre um início e um fim, cada um de A
    /// a D ou a a d; CODE93 de 1 a 255 caracteres ASCII; CODE128 texto ASCII atrás de um seletor de
    /// subconjunto "{A", "{B" ou "{C", e "{C" seguido de pares de dígitos. A SORBE não precisa do
    /// seletor e o descarta.</para>
    /// <para>A DUNEL não imprime o texto do código; a SORBE mantém a definição própria.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT,
    /// Q7_ERR_BARCODE_WIDTH, Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT,
    /// Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS h, GS w, GS H, GS k m n (função B).</para>
    /// </remarks>
    /// <param name="tipo">um valor de Q7Barcode.</param>
    /// <param name="dados">o conteúdo, como acima.</param>
    /// <param name="altura">altura em pontos, de 1 a 255.</param>
    /// <param name="largura">largura do módulo em pontos, de 1 a 6.</param>
    /// <param name="HRI">posição do texto do código, um valor de Q7Hri.</param>
    /// <returns>0 ou um código.</returns>
    public static int ImpressaoCodigoBarras(int tipo, string dados, int altura, int largura, int HRI)
    {
        return Nativo.ImpressaoCodigoBarras(tipo, Utf8(dados), altura, largura, HRI);
    }

    /// <summary>Imprime uma imagem que a ferramenta do fabricante gravou na memória da
    /// impressora.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE,
    /// Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS ( L, função 69.</para>
    /// </remarks>
    /// <param name="chave">os dois caracteres da chave da imagem, cada um de 0x20 a 0x7E.</param>
    /// <param name="escala">um valor de Q7ImageScale.</param>
    /// <returns>0 ou um código.</returns>
    public static int ImprimeImagemMemoria(string chave, int escala)
    {
        return Nativo.ImprimeImagemMemoria(Utf8(chave), escala);
    }

    /// <summary>Avança o papel e corta.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: LF, GS V 0.</para>
    /// </remarks>
    /// <param name="avanco">linhas a avançar antes; 0 ou menos não avança.</param>
    /// <returns>0 ou um código.</returns>
    public static int Corte(int avanco)
    {
        return Nativo.Corte(avanco);
    }

    /// <summary>Avança o papel.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: LF.</para>
    /// </remarks>
    /// <param name="linhas">linhas a avançar, a partir de 1; 0 ou menos devolve
    /// Q7_ERR_FAILED.</param>
    /// <returns>0 ou um código.</returns>
    public static int AvancaPapel(int linhas)
    {
        return Nativo.AvancaPapel(linhas);
    }

    /// <summary>Abre a gaveta.</summary>
    /// <remarks>
    /// <para>Um tempo 0 encurta o comando, e a impressora toma o que vem depois pelos tempos que
    /// faltam: passe de 1 a 255.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC p m t1 t2.</para>
    /// </remarks>
    /// <param name="pino">saída da impressora, 0 ou 1.</param>
    /// <param name="ti">tempo ligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <param name="tf">tempo desligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <returns>0 ou um código.</returns>
    public static int AbreGaveta(int pino, int ti, int tf)
    {
        return Nativo.AbreGaveta(pino, ti, tf);
    }

    /// <summary>Abre a gaveta pela saída 0 com os dois tempos em 200 ms.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC p 48 100 100.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int AbreGavetaTavlo()
    {
        return Nativo.AbreGavetaTavlo();
    }

    /// <summary>Dá sinais sonoros.</summary>
    /// <remarks>
    /// <para>Só um dos dois tempos pode passar de 25.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BUZZER_COUNT, Q7_ERR_BUZZER_TIME,
    /// Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS ( A, função 97.</para>
    /// </remarks>
    /// <param name="qtd">quantidade de sinais, de 0 a 63.</param>
    /// <param name="tempoInicio">duração de cada sinal, em unidades de 100 ms.</param>
    /// <param name="tempoFim">pausa depois de cada sinal, em unidades de 100 ms.</param>
    /// <returns>0 ou um código.</returns>
    public static int SinalSonoro(int qtd, int tempoInicio, int tempoFim)
    {
        return Nativo.SinalSonoro(qtd, tempoInicio, tempoFim);
    }

    /// <summary>Pergunta o estado da impressora.</summary>
    /// <remarks>
    /// <para>Espera no máximo 1500 ms pela resposta e outro tanto pelo fim dela, a cada pergunta;
    /// Q7_STATUS_ALL faz até três.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_STATUS_UNAVAILABLE,
    /// Q7_ERR_STATUS_KIND, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS a 0, DLE EOT n.</para>
    /// </remarks>
    /// <param name="param">a pergunta, um valor de Q7Status.</param>
    /// <returns>para as perguntas de 1 a 4 um valor de Q7State; para Q7_STATUS_ALL a soma de
    /// valores de Q7StateBit; ou um código.</returns>
    public static int StatusImpressora(int param)
    {
        return Nativo.StatusImpressora(param);
    }

    /// <summary>Envia bytes como estão e lê uma resposta.</summary>
    /// <remarks>
    /// <para>Espera no máximo 1500 ms pelo começo da resposta e 500 ms pelo fim. O log não traz o
    /// nome da função; traz os bytes enviados.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: o que comando contém.</para>
    /// </remarks>
    /// <param name="comando">os bytes; nulo não envia nada.</param>
    /// <param name="tamanho">quantidade de bytes; abaixo de 1 não envia nada.</param>
    /// <param name="resposta">memória para a resposta, que precisa ser grande o bastante, diga
    /// tamanhoResposta o que disser: 1024 bytes comportam qualquer resposta por USB; por serial e
    /// TCP vem antes o que a impressora enviou e ninguém leu, e Q7_LONGEST_REPLY bytes comportam
    /// tudo.</param>
    /// <param name="tamanhoResposta">na entrada, 0 se nenhuma resposta é pedida; na saída, a
    /// quantidade de bytes copiados.</param>
    /// <returns>0 ou um código; Q7_ERR_FAILED quando nenhuma resposta foi pedida, também com
    /// resposta ou tamanhoResposta nulos, embora os bytes tenham sido enviados.</returns>
    public static int DirectIO(byte[] comando, int tamanho, byte[] resposta, ref uint tamanhoResposta)
    {
        return Nativo.DirectIO(comando, tamanho, resposta, ref tamanhoResposta);
    }

    /// <summary>Pergunta à impressora quem ela é.</summary>
    /// <remarks>
    /// <para>Com 0 e 1 vai um algarismo atrás do comando, que as impressoras tomam por texto: ele
    /// aparece na frente da próxima linha impressa.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_ID_KIND.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS I n.</para>
    /// </remarks>
    /// <param name="tipo">a pergunta, um valor de Q7Identification.</param>
    /// <returns>a resposta, em Latin-1, até o primeiro byte que não era UTF-8, ou um código em
    /// decimal ("-4", "-81", "-402"), em memória nova que fica com quem chamou.</returns>
    public static string IdImpressora(int tipo)
    {
        return Texto(Nativo.IdImpressora(tipo));
    }

    /// <summary>Entra no modo página.</summary>
    /// <remarks>
    /// <para>Daí em diante os textos não reiniciam mais a impressora, nem depois de
    /// ModoPadrao.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC L.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int ModoPagina()
    {
        return Nativo.ModoPagina();
    }

    /// <summary>Define a direção de impressão no modo página.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: ESC T n.</para>
    /// </remarks>
    /// <param name="direcao">um valor de Q7Direction.</param>
    /// <returns>0 ou um código.</returns>
    public static int DirecaoImpressao(int direcao)
    {
        return Nativo.DirecaoImpressao(direcao);
    }

    /// <summary>Define a área de impressão no modo página.</summary>
    /// <remarks>
    /// <para>De valores fora da faixa os dois bytes enviados não significam nada.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: ESC W.</para>
    /// </remarks>
    /// <param name="x">canto esquerdo em pontos, de 0 a 65535.</param>
    /// <param name="y">canto superior em pontos, de 0 a 65535.</param>
    /// <param name="largura">largura em pontos, de 0 a 65535.</param>
    /// <param name="altura">altura em pontos, de 0 a 65535.</param>
    /// <returns>0 ou um código.</returns>
    public static int DefineAreaImpressao(int x, int y, int largura, int altura)
    {
        return Nativo.DefineAreaImpressao(x, y, largura, altura);
    }

    /// <summary>Define a posição horizontal absoluta.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir.</para>
    /// <para>ESC/POS: ESC $.</para>
    /// </remarks>
    /// <param name="posicao">pontos, de 0 a 500; valores negativos passam, mas os dois bytes
    /// enviados não significam nada.</param>
    /// <returns>0 ou um código.</returns>
    public static int PosicaoImpressaoHorizontal(int posicao)
    {
        return Nativo.PosicaoImpressaoHorizontal(posicao);
    }

    /// <summary>Define a posição vertical absoluta no modo página.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: GS $.</para>
    /// </remarks>
    /// <param name="posicao">pontos, de 0 a 65535; de valores fora da faixa os dois bytes enviados
    /// não significam nada.</param>
    /// <returns>0 ou um código.</returns>
    public static int PosicaoImpressaoVertical(int posicao)
    {
        return Nativo.PosicaoImpressaoVertical(posicao);
    }

    /// <summary>Imprime a página e continua no modo página.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC FF.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int ImprimeModoPagina()
    {
        return Nativo.ImprimeModoPagina();
    }

    /// <summary>Apaga a página sem a imprimir.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: CAN.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int LimpaBufferModoPagina()
    {
        return Nativo.LimpaBufferModoPagina();
    }

    /// <summary>Imprime a página e volta ao modo padrão.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: FF.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int ImprimeMPeRetornaPadrao()
    {
        return Nativo.ImprimeMPeRetornaPadrao();
    }

    /// <summary>Volta ao modo padrão; uma página não impressa se perde.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC S.</para>
    /// </remarks>
    /// <returns>0 ou um código.</returns>
    public static int ModoPadrao()
    {
        return Nativo.ModoPadrao();
    }

    /// <summary>Imprime o extrato de uma venda CF-e do SAT; não corta.</summary>
    /// <remarks>
    /// <para>De um documento que não pode ser lido saem só os rótulos, e o resultado é 0.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: os das funções de texto, código de barras e QR Code.</para>
    /// </remarks>
    /// <param name="dados">o texto do XML autorizado (raiz CFe), não o nome de um arquivo.</param>
    /// <param name="param">soma de valores de Q7CfeOption.</param>
    /// <returns>0 ou um código.</returns>
    public static int ImprimeXMLSAT(string dados, int param)
    {
        return Nativo.ImprimeXMLSAT(Utf8(dados), param);
    }

    /// <summary>Imprime o extrato do cancelamento de um CF-e do SAT; não corta.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIGNATURE, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: os das funções de texto, código de barras e QR Code.</para>
    /// </remarks>
    /// <param name="dados">o texto do XML do cancelamento (raiz CFeCanc), não o nome de um
    /// arquivo.</param>
    /// <param name="assinaturaQRCODE">a assinatura da venda cancelada (o elemento desse nome no XML
    /// dela), de 344 caracteres.</param>
    /// <param name="param">0 ou Q7_CFE_LOGO.</param>
    /// <returns>0 ou um código; Q7_ERR_FAILED quando o documento não é um cancelamento.</returns>
    public static int ImprimeXMLCancelamentoSAT(string dados, string assinaturaQRCODE, int param)
    {
        return Nativo.ImprimeXMLCancelamentoSAT(Utf8(dados), Utf8(assinaturaQRCODE), param);
    }

    /// <summary>Imprime o DANFE de uma NFC-e; não corta no fim.</summary>
    /// <remarks>
    /// <para>Uma nota em contingência sai em duas vias, com um corte entre elas.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NFCE_OPTIONS, Q7_ERR_NFCE_NO_VERSION,
    /// Q7_ERR_NFCE_VERSION, Q7_ERR_NFCE_EMISSION, Q7_ERR_NFCE_MODEL, Q7_ERR_NFCE_QR.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: os das funções de texto, de QR Code e do modo página.</para>
    /// </remarks>
    /// <param name="dados">o texto do XML (raiz nfeProc ou NFe), versão 4.00, com a urlChave; não o
    /// nome de um arquivo.</param>
    /// <param name="indexcsc">o identificador do CSC do contribuinte, usado se a nota não tem
    /// qrCode.</param>
    /// <param name="csc">o CSC do contribuinte, usado se a nota não tem qrCode.</param>
    /// <param name="param">soma de valores de Q7NfceOption, no máximo 65535.</param>
    /// <returns>0 ou um código.</returns>
    public static int ImprimeXMLNFCe(string dados, int indexcsc, string csc, int param)
    {
        return Nativo.ImprimeXMLNFCe(Utf8(dados), indexcsc, Utf8(csc), param);
    }

    /// <summary>Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem.</summary>
    /// <remarks>
    /// <para>Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="model">nome do modelo, como em AbreConexaoImpressora.</param>
    /// <returns>0.</returns>
    public static int PrinterCreator(IntPtr handle, string model)
    {
        return Nativo.PrinterCreator(handle, Utf8(model));
    }

    /// <summary>Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem, como PrinterCreator,
    /// sem resultado.</summary>
    /// <remarks>
    /// <para>Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="model">nome do modelo, como em AbreConexaoImpressora.</param>
    public static void PrinterCreatorS(IntPtr handle, string model)
    {
        Nativo.PrinterCreatorS(handle, Utf8(model));
    }

    /// <summary>Não libera nada: a porta continua aberta. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: nenhum.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrinterDestroy(IntPtr handle)
    {
        return Nativo.PrinterDestroy(handle);
    }

    /// <summary>Abre a conexão com o modelo de PrinterCreator, como
    /// AbreConexaoImpressora.</summary>
    /// <remarks>
    /// <para>O texto é feito de campos separados por "," ou "_", que por isso não podem aparecer em
    /// nomes nem em caminhos. O primeiro campo contém, em maiúsculas ou minúsculas, uma das
    /// palavras</para>
    /// <para>- "COM": ele mesmo é a porta serial e o segundo são os bits por segundo:
    /// "COM3,9600";</para>
    /// <para>- "NET": o segundo é o nome ou endereço e o terceiro a porta TCP, 9100 se falta ou
    /// está vazio: "NET,192.168.0.10,9100";</para>
    /// <para>- "USB": não precisa de outros campos.</para>
    /// <para>Qualquer outro texto ("COM3" ou "NET" sozinhos também) devolve Q7_ERR_KIND, e a
    /// velocidade que falta, Q7_ERR_SPEED.</para>
    /// <para>Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
    /// Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
    /// Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS I 67, por serial e TCP.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="text">a porta, como acima.</param>
    /// <returns>0, um código, ou um número positivo de erro do sistema ou da rede
    /// (Q7NetError).</returns>
    public static int PortOpen(IntPtr handle, string text)
    {
        return Nativo.PortOpen(handle, Utf8(text));
    }

    /// <summary>Fecha a conexão, como FechaConexaoImpressora. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0, um código, ou, na USB, um número positivo de erro do sistema.</returns>
    public static int PortClose(IntPtr handle)
    {
        return Nativo.PortClose(handle);
    }

    /// <summary>Reinicia a impressora, como InicializaImpressora. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC @.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrinterInitialize(IntPtr handle)
    {
        return Nativo.PrinterInitialize(handle);
    }

    /// <summary>Imprime um texto, como ImpressaoTexto. Protegida; o log traz os dois
    /// nomes.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE,
    /// Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".</para>
    /// <para>ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="text">o texto, em UTF-8; os fins de linha ("\n") são de quem chama.</param>
    /// <param name="alignment">alinhamento, um valor de Q7Alignment; 0 deixa como está.</param>
    /// <param name="style">soma de valores de Q7Style, de 0 a 15.</param>
    /// <param name="size">tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.</param>
    /// <returns>a quantidade de bytes do texto enviados, ou um código.</returns>
    public static int PrintText(IntPtr handle, string text, int alignment, int style, int size)
    {
        return Nativo.PrintText(handle, Utf8(text), alignment, style, size);
    }

    /// <summary>Envia os bytes de um texto como estão: sem conversão para Latin-1, sem escolher a
    /// tabela de caracteres.</summary>
    /// <remarks>
    /// <para>Protegida, mas o log a registra antes.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: nenhum além do texto.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="text">o texto, que vai até o primeiro byte zero.</param>
    /// <returns>a quantidade de bytes enviados, ou um código; um texto vazio devolve
    /// Q7_ERR_NOT_SENT.</returns>
    public static int PrintTextS(IntPtr handle, string text)
    {
        return Nativo.PrintTextS(handle, Utf8(text));
    }

    /// <summary>Define o alinhamento ao centro ou à direita. Protegida.</summary>
    /// <remarks>
    /// <para>0, à esquerda, é aceito mas não envia nada: a impressora fica como está. Para voltar à
    /// esquerda chame DefinePosicao com Q7_ALIGN_LEFT.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a
    /// impressora.</para>
    /// <para>ESC/POS: ESC a n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="alignment">Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.</param>
    /// <returns>1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.</returns>
    public static int SetAlign(IntPtr handle, int alignment)
    {
        return Nativo.SetAlign(handle, alignment);
    }

    /// <summary>Liga ou desliga o negrito. Protegida, mas o log a registra antes.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.</para>
    /// <para>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja
    /// ImpressaoTexto).</para>
    /// <para>ESC/POS: ESC E n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="on">1 liga, 0 desliga.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int SetTextBold(IntPtr handle, int on)
    {
        return Nativo.SetTextBold(handle, on);
    }

    /// <summary>Escolhe a fonte e desliga o sublinhado, que o mesmo comando define. Protegida, mas
    /// o log a registra antes.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.</para>
    /// <para>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja
    /// ImpressaoTexto).</para>
    /// <para>ESC/POS: ESC ! n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="font">um valor de Q7Font.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int SetTextFont(IntPtr handle, int font)
    {
        return Nativo.SetTextFont(handle, font);
    }

    /// <summary>Guarda o espaçamento entre linhas: é a mesma função que EspacamentoEntreLinhas, e o
    /// log traz o nome dela. Não tem identificador.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.</para>
    /// <para>Efeito: no próximo ImpressaoTexto; a própria função não envia nada.</para>
    /// <para>ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.</para>
    /// </remarks>
    /// <param name="spacing">espaçamento em pontos, de 1 a 255.</param>
    /// <returns>0 ou um código.</returns>
    public static int SetTextLineSpace(int spacing)
    {
        return Nativo.SetTextLineSpace(spacing);
    }

    /// <summary>Imprime um código de barras, como ImpressaoCodigoBarras. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT,
    /// Q7_ERR_BARCODE_WIDTH, Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT,
    /// Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS h, GS w, GS H, GS k m n (função B).</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="type">um valor de Q7Barcode, ou de 65 a 73 para os mesmos.</param>
    /// <param name="data">o conteúdo, como em ImpressaoCodigoBarras.</param>
    /// <param name="width">largura do módulo em pontos, de 1 a 6.</param>
    /// <param name="height">altura em pontos, de 1 a 255.</param>
    /// <param name="hri">posição do texto do código, um valor de Q7Hri.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrintBarCode(IntPtr handle, int type, string data, int width, int height, int hri)
    {
        return Nativo.PrintBarCode(handle, type, Utf8(data), width, height, hri);
    }

    /// <summary>Imprime um QR Code, como ImpressaoQRCode.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY,
    /// Q7_ERR_NOT_SENT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k
    /// Q.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="type">ignorado.</param>
    /// <param name="data">o conteúdo, como em ImpressaoQRCode.</param>
    /// <param name="errorLevel">nível de correção, um valor de Q7QrLevel.</param>
    /// <param name="size">tamanho do módulo em pontos, de 1 a 6.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrintSymbol(IntPtr handle, int type, string data, int errorLevel, int size)
    {
        return Nativo.PrintSymbol(handle, type, Utf8(data), errorLevel, size);
    }

    /// <summary>Falha sempre e nunca imprime: para uma imagem gravada na impressora chame
    /// ImprimeImagemMemoria.</summary>
    /// <remarks>
    /// <para>Programas desta interface podem chamá-la; ela é ImprimeImagemMemoria com a escala 0,
    /// que não existe.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE.</para>
    /// <para>Efeito: nenhum.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="k1">primeiro caractere da chave, do qual conta o byte baixo.</param>
    /// <param name="k2">segundo caractere da chave, do qual conta o byte baixo.</param>
    /// <returns>sempre um código.</returns>
    public static int PrintNVImage(IntPtr handle, int k1, int k2)
    {
        return Nativo.PrintNVImage(handle, k1, k2);
    }

    /// <summary>Não faz nada: as imagens são gravadas com a ferramenta do fabricante da
    /// impressora.</summary>
    /// <remarks>
    /// <para>Efeito: nenhum.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="a">ignorado.</param>
    /// <param name="b">ignorado.</param>
    /// <param name="c">ignorado.</param>
    /// <param name="d">ignorado.</param>
    /// <returns>0.</returns>
    public static int DefineNVImage(int a, int b, int c, int d)
    {
        return Nativo.DefineNVImage(a, b, c, d);
    }

    /// <summary>Avança o papel, como AvancaPapel. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: LF.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="lines">linhas a avançar, a partir de 1; 0 ou menos devolve
    /// Q7_ERR_FAILED.</param>
    /// <returns>0 ou um código.</returns>
    public static int FeedLine(IntPtr handle, int lines)
    {
        return Nativo.FeedLine(handle, lines);
    }

    /// <summary>Avança o papel e corta, como Corte. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: LF, GS V 0.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="lines">linhas a avançar antes; 0 ou menos não avança.</param>
    /// <returns>0 ou um código.</returns>
    public static int CutPaper(IntPtr handle, int lines)
    {
        return Nativo.CutPaper(handle, lines);
    }

    /// <summary>Abre a gaveta, como AbreGaveta. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC p m t1 t2.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="pin">saída da impressora, 0 ou 1.</param>
    /// <param name="onTime">tempo ligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <param name="offTime">tempo desligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <returns>0 ou um código.</returns>
    public static int OpenDrawer(IntPtr handle, int pin, int onTime, int offTime)
    {
        return Nativo.OpenDrawer(handle, pin, onTime, offTime);
    }

    /// <summary>Abre a gaveta; é OpenDrawer com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC p m t1 t2.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="pin">saída da impressora, 0 ou 1.</param>
    /// <param name="onTime">tempo ligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <param name="offTime">tempo desligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <returns>0 ou um código.</returns>
    public static int OpenCashDrawer(IntPtr handle, int pin, int onTime, int offTime)
    {
        return Nativo.OpenCashDrawer(handle, pin, onTime, offTime);
    }

    /// <summary>Pergunta o estado da impressora, com StatusImpressora e Q7_STATUS_ALL.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Qualquer outra resposta, ou nenhuma, devolve Q7_ERR_STATUS_UNAVAILABLE e deixa state
    /// como estava: por USB e serial também sempre que o sinal da gaveta está em nível
    /// baixo.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS a 0, DLE EOT n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="state">recebe um valor de Q7PrinterState; pode ser nulo.</param>
    /// <returns>0 ou um código.</returns>
    public static int GetPrinterState(IntPtr handle, ref int state)
    {
        return Nativo.GetPrinterState(handle, ref state);
    }

    /// <summary>Pergunta o sinal da gaveta, com StatusImpressora e Q7_STATUS_DRAWER.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>state fica como estava quando a impressora não disse nada e por TCP, em que a gaveta
    /// não pode ser perguntada.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS a 0, DLE EOT 1.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="state">recebe 1 ou 0; pode ser nulo.</param>
    /// <param name="polarity">diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível
    /// alto.</param>
    /// <returns>0, também quando state fica como estava, ou um código.</returns>
    public static int GetDrawerState(IntPtr handle, ref int state, int polarity)
    {
        return Nativo.GetDrawerState(handle, ref state, polarity);
    }

    /// <summary>Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS a 0, DLE EOT 1.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="state">recebe 1 ou 0; pode ser nulo.</param>
    /// <param name="polarity">diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível
    /// alto.</param>
    /// <returns>0, também quando state fica como estava, ou um código.</returns>
    public static int GetCashDrawerState(IntPtr handle, ref int state, int polarity)
    {
        return Nativo.GetCashDrawerState(handle, ref state, polarity);
    }

    /// <summary>Entra no modo página, como ModoPagina. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC L.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int SelectPageMode(IntPtr handle)
    {
        return Nativo.SelectPageMode(handle);
    }

    /// <summary>Volta ao modo padrão; é PrtSelectStandardMode com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC S.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int SelectStandardMode(IntPtr handle)
    {
        return Nativo.SelectStandardMode(handle);
    }

    /// <summary>Define a direção de impressão no modo página, como DirecaoImpressao.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: ESC T n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="direction">um valor de Q7Direction.</param>
    /// <returns>0 ou um código.</returns>
    public static int SelectPrintDirectionInPageMode(IntPtr handle, int direction)
    {
        return Nativo.SelectPrintDirectionInPageMode(handle, direction);
    }

    /// <summary>Define a área de impressão no modo página, como DefineAreaImpressao.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: ESC W.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="x">canto esquerdo em pontos, de 0 a 65535.</param>
    /// <param name="y">canto superior em pontos, de 0 a 65535.</param>
    /// <param name="width">largura em pontos, de 0 a 65535.</param>
    /// <param name="height">altura em pontos, de 0 a 65535.</param>
    /// <returns>0 ou um código.</returns>
    public static int SetPrintAreaInPageMode(IntPtr handle, int x, int y, int width, int height)
    {
        return Nativo.SetPrintAreaInPageMode(handle, x, y, width, height);
    }

    /// <summary>Define a posição horizontal absoluta, como PosicaoImpressaoHorizontal.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir.</para>
    /// <para>ESC/POS: ESC $.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="position">pontos, de 0 a 500.</param>
    /// <returns>0 ou um código.</returns>
    public static int SetAbSolutePrintPosition(IntPtr handle, int position)
    {
        return Nativo.SetAbSolutePrintPosition(handle, position);
    }

    /// <summary>Define a posição vertical absoluta no modo página, como PosicaoImpressaoVertical.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: GS $.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="position">pontos, de 0 a 65535.</param>
    /// <returns>0 ou um código.</returns>
    public static int SetAbsoluteVerticalPrintPositionInPageMode(IntPtr handle, int position)
    {
        return Nativo.SetAbsoluteVerticalPrintPositionInPageMode(handle, position);
    }

    /// <summary>Imprime a página e continua no modo página, como ImprimeModoPagina.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC FF.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrintDataInPageMode(IntPtr handle)
    {
        return Nativo.PrintDataInPageMode(handle);
    }

    /// <summary>Apaga a página sem a imprimir, como LimpaBufferModoPagina. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: CAN.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int CancelPrintDataInPageMode(IntPtr handle)
    {
        return Nativo.CancelPrintDataInPageMode(handle);
    }

    /// <summary>Imprime a página e volta ao modo padrão, como ImprimeMPeRetornaPadrao.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: FF.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int SetPrintAndReturnStandardMode(IntPtr handle)
    {
        return Nativo.SetPrintAndReturnStandardMode(handle);
    }

    /// <summary>Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem: é PrinterCreator, e o
    /// nome guardado é o mesmo.</summary>
    /// <remarks>
    /// <para>Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="model">nome do modelo, como em AbreConexaoImpressora.</param>
    /// <returns>0.</returns>
    public static int PrtPrinterCreator(IntPtr handle, string model)
    {
        return Nativo.PrtPrinterCreator(handle, Utf8(model));
    }

    /// <summary>Não libera nada: a porta continua aberta, como em PrinterDestroy.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: nenhum.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtPrinterDestroy(IntPtr handle)
    {
        return Nativo.PrtPrinterDestroy(handle);
    }

    /// <summary>Abre a conexão com o modelo de PrinterCreator; é PortOpen com outro nome.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
    /// Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
    /// Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS I 67, por serial e TCP.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="text">a porta, como em PortOpen: "COM3,9600", "NET,192.168.0.10,9100" ou
    /// "USB".</param>
    /// <returns>0, um código, ou um número positivo de erro do sistema ou da rede
    /// (Q7NetError).</returns>
    public static int PrtPortOpen(IntPtr handle, string text)
    {
        return Nativo.PrtPortOpen(handle, Utf8(text));
    }

    /// <summary>Fecha a conexão, como FechaConexaoImpressora; não é protegida: o log a registra
    /// também quando nada está aberto.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: nenhum.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0, um código, ou, na USB, um número positivo de erro do sistema.</returns>
    public static int PrtPortClose(IntPtr handle)
    {
        return Nativo.PrtPortClose(handle);
    }

    /// <summary>Reinicia a impressora, como InicializaImpressora. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC @.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtPrinterInitialize(IntPtr handle)
    {
        return Nativo.PrtPrinterInitialize(handle);
    }

    /// <summary>Imprime um texto; é PrintText com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE,
    /// Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".</para>
    /// <para>ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="text">o texto, em UTF-8; os fins de linha ("\n") são de quem chama.</param>
    /// <param name="alignment">alinhamento, um valor de Q7Alignment; 0 deixa como está.</param>
    /// <param name="style">soma de valores de Q7Style, de 0 a 15.</param>
    /// <param name="size">tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.</param>
    /// <returns>a quantidade de bytes do texto enviados, ou um código.</returns>
    public static int PrtPrintText(IntPtr handle, string text, int alignment, int style, int size)
    {
        return Nativo.PrtPrintText(handle, Utf8(text), alignment, style, size);
    }

    /// <summary>Define o alinhamento ao centro ou à direita; é SetAlign com outro nome.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a
    /// impressora.</para>
    /// <para>ESC/POS: ESC a n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="alignment">Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT; com Q7_ALIGN_LEFT nada é
    /// enviado.</param>
    /// <returns>1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.</returns>
    public static int PrtSetTextPosition(IntPtr handle, int alignment)
    {
        return Nativo.PrtSetTextPosition(handle, alignment);
    }

    /// <summary>Liga ou desliga o negrito; é SetTextBold com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.</para>
    /// <para>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja
    /// ImpressaoTexto).</para>
    /// <para>ESC/POS: ESC E n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="on">1 liga, 0 desliga.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int PrtSetTextBold(IntPtr handle, int on)
    {
        return Nativo.PrtSetTextBold(handle, on);
    }

    /// <summary>Escolhe a fonte; é SetTextFont com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.</para>
    /// <para>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja
    /// ImpressaoTexto).</para>
    /// <para>ESC/POS: ESC ! n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="font">um valor de Q7Font.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int PrtSetTextFont(IntPtr handle, int font)
    {
        return Nativo.PrtSetTextFont(handle, font);
    }

    /// <summary>Imprime um código de barras; é PrintBarCode com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT,
    /// Q7_ERR_BARCODE_WIDTH, Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT,
    /// Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS h, GS w, GS H, GS k m n (função B).</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="type">um valor de Q7Barcode, ou de 65 a 73 para os mesmos.</param>
    /// <param name="data">o conteúdo, como em ImpressaoCodigoBarras.</param>
    /// <param name="width">largura do módulo em pontos, de 1 a 6.</param>
    /// <param name="height">altura em pontos, de 1 a 255.</param>
    /// <param name="hri">posição do texto do código, um valor de Q7Hri.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtPrintBarCode(IntPtr handle, int type, string data, int width, int height, int hri)
    {
        return Nativo.PrtPrintBarCode(handle, type, Utf8(data), width, height, hri);
    }

    /// <summary>Imprime um QR Code; é PrintSymbol com outro nome.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY,
    /// Q7_ERR_NOT_SENT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora, com o alinhamento em vigor.</para>
    /// <para>ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k
    /// Q.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="type">ignorado.</param>
    /// <param name="data">o conteúdo, como em ImpressaoQRCode.</param>
    /// <param name="errorLevel">nível de correção, um valor de Q7QrLevel.</param>
    /// <param name="size">tamanho do módulo em pontos, de 1 a 6.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtPrintSymbol(IntPtr handle, int type, string data, int errorLevel, int size)
    {
        return Nativo.PrtPrintSymbol(handle, type, Utf8(data), errorLevel, size);
    }

    /// <summary>Avança o papel; é FeedLine com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: LF.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="lines">linhas a avançar, a partir de 1; 0 ou menos devolve
    /// Q7_ERR_FAILED.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtFeedLine(IntPtr handle, int lines)
    {
        return Nativo.PrtFeedLine(handle, lines);
    }

    /// <summary>Avança o papel e corta, como Corte. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: LF, GS V 0.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="lines">linhas a avançar antes; 0 ou menos não avança.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtCutPaper(IntPtr handle, int lines)
    {
        return Nativo.PrtCutPaper(handle, lines);
    }

    /// <summary>Abre a gaveta; é OpenDrawer com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC p m t1 t2.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="pin">saída da impressora, 0 ou 1.</param>
    /// <param name="onTime">tempo ligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <param name="offTime">tempo desligado, em unidades de 2 ms, de 0 a 255.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtOpenDrawer(IntPtr handle, int pin, int onTime, int offTime)
    {
        return Nativo.PrtOpenDrawer(handle, pin, onTime, offTime);
    }

    /// <summary>Pergunta o estado da impressora; é GetPrinterState com outro nome.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS a 0, DLE EOT n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="state">recebe um valor de Q7PrinterState; pode ser nulo.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtCheckPrinterState(IntPtr handle, ref int state)
    {
        return Nativo.PrtCheckPrinterState(handle, ref state);
    }

    /// <summary>Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: GS a 0, DLE EOT 1.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="state">recebe 1 ou 0; pode ser nulo.</param>
    /// <param name="polarity">diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível
    /// alto.</param>
    /// <returns>0, também quando state fica como estava, ou um código.</returns>
    public static int PrtGetDrawerState(IntPtr handle, ref int state, int polarity)
    {
        return Nativo.PrtGetDrawerState(handle, ref state, polarity);
    }

    /// <summary>Entra no modo página; é SelectPageMode com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC L.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtSelectPageMode(IntPtr handle)
    {
        return Nativo.PrtSelectPageMode(handle);
    }

    /// <summary>Volta ao modo padrão; uma página não impressa se perde. Protegida; o log não traz o
    /// nome dela.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC S.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int PrtSelectStandardMode(IntPtr handle)
    {
        return Nativo.PrtSelectStandardMode(handle);
    }

    /// <summary>Define a direção de impressão no modo página; é SelectPrintDirectionInPageMode com
    /// outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: ESC T n.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="direction">um valor de Q7Direction.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtSelectPrintDirectionInPageMode(IntPtr handle, int direction)
    {
        return Nativo.PrtSelectPrintDirectionInPageMode(handle, direction);
    }

    /// <summary>Define a área de impressão no modo página; é SetPrintAreaInPageMode com outro nome.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: ESC W.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="x">canto esquerdo em pontos, de 0 a 65535.</param>
    /// <param name="y">canto superior em pontos, de 0 a 65535.</param>
    /// <param name="width">largura em pontos, de 0 a 65535.</param>
    /// <param name="height">altura em pontos, de 0 a 65535.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtSetPrintAreaInPageMode(IntPtr handle, int x, int y, int width, int height)
    {
        return Nativo.PrtSetPrintAreaInPageMode(handle, x, y, width, height);
    }

    /// <summary>Define a posição vertical absoluta; é SetAbsoluteVerticalPrintPositionInPageMode
    /// com outro nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: no que vier a seguir na página.</para>
    /// <para>ESC/POS: GS $.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <param name="position">pontos, de 0 a 65535.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtSetAbsoluteVerticalPrintPositionInPageMode(IntPtr handle, int position)
    {
        return Nativo.PrtSetAbsoluteVerticalPrintPositionInPageMode(handle, position);
    }

    /// <summary>Imprime a página e continua no modo página; é PrintDataInPageMode com outro nome.
    /// Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC FF.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtPrintDataInPageMode(IntPtr handle)
    {
        return Nativo.PrtPrintDataInPageMode(handle);
    }

    /// <summary>Envia um ESC sozinho, que não apaga a página: para isso chame
    /// CancelPrintDataInPageMode. Protegida.</summary>
    /// <remarks>
    /// <para>A impressora toma o byte seguinte pelo resto de um comando.</para>
    /// <para>Códigos: Q7_ERR_NOT_OPEN.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: ESC.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0, também quando nada foi enviado, ou um código.</returns>
    public static int PrtCancelPrintDataInPageMode(IntPtr handle)
    {
        return Nativo.PrtCancelPrintDataInPageMode(handle);
    }

    /// <summary>Imprime a página e volta ao modo padrão; é SetPrintAndReturnStandardMode com outro
    /// nome. Protegida.</summary>
    /// <remarks>
    /// <para>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.</para>
    /// <para>Efeito: na hora.</para>
    /// <para>ESC/POS: FF.</para>
    /// </remarks>
    /// <param name="handle">ignorado.</param>
    /// <returns>0 ou um código.</returns>
    public static int PrtSetPrintAndReturnStandardMode(IntPtr handle)
    {
        return Nativo.PrtSetPrintAndReturnStandardMode(handle);
    }

    // UTF-8 até o zero que termina o texto.
    private static byte[] Utf8(string texto)
    {
        return texto == null ? null : Encoding.UTF8.GetBytes(texto + "\0");
    }

    // O texto fica com quem chamou, que não o libera.
    private static string Texto(IntPtr texto)
    {
        if (texto == IntPtr.Zero)
            return null;
        var letras = new StringBuilder();
        for (int i = 0; Marshal.ReadByte(texto, i) != 0; i++)
            letras.Append((char)Marshal.ReadByte(texto, i));
        return letras.ToString();
    }

    private static class Nativo
    {
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int AbreConexaoImpressora(int tipo, byte[] modelo, byte[] conexao, int parametro);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int FechaConexaoImpressora();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern IntPtr GetVersaoDLL();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImpressaoTexto(byte[] dados, int posicao, int stilo, int tamanho);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int EspacamentoEntreLinhas(int espacamento);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int DefinePosicao(int posicao);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int InicializaImpressora();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImpressaoQRCode(byte[] dados, int tamanho, int nivelCorrecao);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImpressaoCodigoBarras(int tipo, byte[] dados, int altura, int largura, int HRI);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImprimeImagemMemoria(byte[] chave, int escala);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int Corte(int avanco);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int AvancaPapel(int linhas);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int AbreGaveta(int pino, int ti, int tf);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int AbreGavetaTavlo();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SinalSonoro(int qtd, int tempoInicio, int tempoFim);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int StatusImpressora(int param);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int DirectIO(byte[] comando, int tamanho, byte[] resposta, ref uint tamanhoResposta);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern IntPtr IdImpressora(int tipo);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ModoPagina();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int DirecaoImpressao(int direcao);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int DefineAreaImpressao(int x, int y, int largura, int altura);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PosicaoImpressaoHorizontal(int posicao);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PosicaoImpressaoVertical(int posicao);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImprimeModoPagina();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int LimpaBufferModoPagina();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImprimeMPeRetornaPadrao();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ModoPadrao();
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImprimeXMLSAT(byte[] dados, int param);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImprimeXMLCancelamentoSAT(byte[] dados, byte[] assinaturaQRCODE, int param);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int ImprimeXMLNFCe(byte[] dados, int indexcsc, byte[] csc, int param);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrinterCreator(IntPtr handle, byte[] model);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern void PrinterCreatorS(IntPtr handle, byte[] model);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrinterDestroy(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PortOpen(IntPtr handle, byte[] text);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PortClose(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrinterInitialize(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrintText(IntPtr handle, byte[] text, int alignment, int style, int size);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrintTextS(IntPtr handle, byte[] text);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetAlign(IntPtr handle, int alignment);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetTextBold(IntPtr handle, int on);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetTextFont(IntPtr handle, int font);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetTextLineSpace(int spacing);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrintBarCode(IntPtr handle, int type, byte[] data, int width, int height, int hri);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrintSymbol(IntPtr handle, int type, byte[] data, int errorLevel, int size);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrintNVImage(IntPtr handle, int k1, int k2);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int DefineNVImage(int a, int b, int c, int d);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int FeedLine(IntPtr handle, int lines);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int CutPaper(IntPtr handle, int lines);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int OpenDrawer(IntPtr handle, int pin, int onTime, int offTime);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int OpenCashDrawer(IntPtr handle, int pin, int onTime, int offTime);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int GetPrinterState(IntPtr handle, ref int state);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int GetDrawerState(IntPtr handle, ref int state, int polarity);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int GetCashDrawerState(IntPtr handle, ref int state, int polarity);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SelectPageMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SelectStandardMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SelectPrintDirectionInPageMode(IntPtr handle, int direction);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetPrintAreaInPageMode(IntPtr handle, int x, int y, int width, int height);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetAbSolutePrintPosition(IntPtr handle, int position);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetAbsoluteVerticalPrintPositionInPageMode(IntPtr handle, int position);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrintDataInPageMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int CancelPrintDataInPageMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int SetPrintAndReturnStandardMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrinterCreator(IntPtr handle, byte[] model);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrinterDestroy(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPortOpen(IntPtr handle, byte[] text);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPortClose(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrinterInitialize(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrintText(IntPtr handle, byte[] text, int alignment, int style, int size);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSetTextPosition(IntPtr handle, int alignment);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSetTextBold(IntPtr handle, int on);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSetTextFont(IntPtr handle, int font);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrintBarCode(IntPtr handle, int type, byte[] data, int width, int height, int hri);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrintSymbol(IntPtr handle, int type, byte[] data, int errorLevel, int size);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtFeedLine(IntPtr handle, int lines);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtCutPaper(IntPtr handle, int lines);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtOpenDrawer(IntPtr handle, int pin, int onTime, int offTime);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtCheckPrinterState(IntPtr handle, ref int state);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtGetDrawerState(IntPtr handle, ref int state, int polarity);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSelectPageMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSelectStandardMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSelectPrintDirectionInPageMode(IntPtr handle, int direction);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSetPrintAreaInPageMode(IntPtr handle, int x, int y, int width, int height);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSetAbsoluteVerticalPrintPositionInPageMode(IntPtr handle, int position);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtPrintDataInPageMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtCancelPrintDataInPageMode(IntPtr handle);
        [DllImport(Biblioteca, ExactSpelling = true)]
        internal static extern int PrtSetPrintAndReturnStandardMode(IntPtr handle);
    }
}
