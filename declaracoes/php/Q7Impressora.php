<?php
// Gerado a partir de q7_impressora.h por scripts/declarations; não altere.

declare(strict_types=1);

/**
 * Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.
 *
 * Precisa da extensão FFI. No Windows a biblioteca é de 32 bits: use um PHP de 32 bits. Os textos
 * vão para ela em UTF-8: um que não é UTF-8 é tomado por Windows-1252 e convertido. Os que ela
 * devolve são lidos sem ser liberados.
 */
final class Q7Impressora
{
    /** A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL. */
    public const Q7_VERSION_TEXT = '01.01.00';

    // Q7Result: Códigos de retorno.
    /** Sucesso. */
    public const Q7_OK = 0;
    /** Tipo de conexão desconhecido. */
    public const Q7_ERR_KIND = -2;
    /** Modelo desconhecido, ou a impressora é de outro modelo conhecido. */
    public const Q7_ERR_MODEL = -3;
    /** Nenhuma conexão aberta. */
    public const Q7_ERR_NOT_OPEN = -4;
    /** A impressora não informou um modelo conhecido. */
    public const Q7_ERR_UNKNOWN_PRINTER = -5;
    /** Conexão já aberta. */
    public const Q7_ERR_ALREADY_OPEN = -6;
    /** Velocidade serial não permitida. */
    public const Q7_ERR_SPEED = -11;
    /** Porta serial não encontrada. */
    public const Q7_ERR_SERIAL_NOT_FOUND = -12;
    /** Porta serial em uso ou sem permissão. */
    public const Q7_ERR_SERIAL_DENIED = -13;
    /** Porta serial falhou por motivo desconhecido. */
    public const Q7_ERR_SERIAL_UNKNOWN = -14;
    /** Impressora USB não encontrada. */
    public const Q7_ERR_USB_ABSENT = -21;
    /** A impressora USB não pôde ser aberta. */
    public const Q7_ERR_USB_OPEN = -22;
    /** Porta TCP fora da faixa. */
    public const Q7_ERR_TCP_PORT = -31;
    /** Alinhamento fora de 0 a 2. */
    public const Q7_ERR_ALIGNMENT = -41;
    /** Estilo, negrito ou fonte fora da faixa. */
    public const Q7_ERR_STYLE = -42;
    /** Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. */
    public const Q7_ERR_SIZE = -43;
    /** Nada foi enviado. */
    public const Q7_ERR_NOT_SENT = -44;
    /** Tamanho do módulo do QR Code fora de 1 a 6. */
    public const Q7_ERR_QR_SIZE = -51;
    /** Nível de correção do QR Code fora de 1 a 4. */
    public const Q7_ERR_QR_LEVEL = -52;
    /** Conteúdo do QR Code vazio. */
    public const Q7_ERR_QR_EMPTY = -53;
    /** Altura do código de barras fora de 1 a 255. */
    public const Q7_ERR_BARCODE_HEIGHT = -61;
    /** Largura do módulo do código de barras fora de 1 a 6. */
    public const Q7_ERR_BARCODE_WIDTH = -62;
    /** Posição do texto do código de barras fora de 1 a 4. */
    public const Q7_ERR_BARCODE_HRI = -63;
    /** Tipo de código de barras fora de 0 a 8. */
    public const Q7_ERR_BARCODE_TYPE = -64;
    /** Dados inválidos para o tipo de código de barras. */
    public const Q7_ERR_BARCODE_DATA = -65;
    /** Documento ou esquema inválido. */
    public const Q7_ERR_XSD = -71;
    /** Arquivo de esquema ausente. */
    public const Q7_ERR_XSD_MISSING = -72;
    /** A impressora não respondeu. */
    public const Q7_ERR_NO_REPLY = -81;
    /** A assinatura não tem 344 caracteres. */
    public const Q7_ERR_SIGNATURE = -91;
    /** Versão do leiaute da NFC-e diferente de 4.00. */
    public const Q7_ERR_NFCE_VERSION = -101;
    /** Não é uma NFC-e, ou é uma sem o atributo versao. */
    public const Q7_ERR_NFCE_NO_VERSION = -102;
    /** Tipo de emissão (tpEmis) ausente ou 0. */
    public const Q7_ERR_NFCE_EMISSION = -103;
    /** Opções da NFC-e acima de 65535. */
    public const Q7_ERR_NFCE_OPTIONS = -104;
    /** NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. */
    public const Q7_ERR_NFCE_MODEL = -105;
    /** Nota sem QR Code. Só com o leiaute 6.0. */
    public const Q7_ERR_NFCE_QR = -106;
    /** Quantidade de sinais sonoros acima de 63. */
    public const Q7_ERR_BUZZER_COUNT = -111;
    /** Os dois tempos do sinal sonoro acima de 25. */
    public const Q7_ERR_BUZZER_TIME = -112;
    /** Pino da gaveta acima de 1. */
    public const Q7_ERR_DRAWER_PIN = -121;
    /** Um tempo da gaveta acima de 255. */
    public const Q7_ERR_DRAWER_TIME = -122;
    /** Estado não disponível nesta conexão. */
    public const Q7_ERR_STATUS_UNAVAILABLE = -126;
    /** Pergunta de estado fora de 1 a 5. */
    public const Q7_ERR_STATUS_KIND = -127;
    /** A chave da imagem não são dois caracteres visíveis. */
    public const Q7_ERR_IMAGE_KEY = -131;
    /** Escala da imagem fora de 1 a 2. */
    public const Q7_ERR_IMAGE_SCALE = -132;
    /** Direção de impressão fora de 0 a 3. */
    public const Q7_ERR_DIRECTION = -136;
    /** Posição horizontal acima de 500. */
    public const Q7_ERR_POSITION = -137;
    /** Pergunta de identificação fora de 0 a 6. */
    public const Q7_ERR_ID_KIND = -402;
    /** Sem resultado: nada foi enviado, ou outra falha. */
    public const Q7_ERR_FAILED = -9999;

    // Q7NetError: Números positivos que AbreConexaoImpressora devolve quando a conexão TCP falha.
    /** conexão recusada: parece sucesso, veja as convenções. */
    public const Q7_NET_REFUSED = 0;
    /** fechada pelo outro lado. */
    public const Q7_NET_CLOSED = 1;
    /** nome ou endereço não encontrado. */
    public const Q7_NET_HOST_NOT_FOUND = 2;
    /** o sistema não permitiu. */
    public const Q7_NET_NOT_PERMITTED = 3;
    /** faltam recursos ao sistema. */
    public const Q7_NET_NO_RESOURCES = 4;
    /** sem resposta em 2000 ms. */
    public const Q7_NET_TIMEOUT = 5;
    /** rede fora do alcance. */
    public const Q7_NET_UNREACHABLE = 7;

    // Q7Connection: Tipos de conexão.
    /** USB. */
    public const Q7_CONNECTION_USB = 1;
    /** porta serial (COM). */
    public const Q7_CONNECTION_SERIAL = 2;
    /** rede (TCP). */
    public const Q7_CONNECTION_TCP = 3;

    // Q7Alignment: Alinhamentos.
    /** à esquerda; em ImpressaoTexto: deixa o alinhamento como está. */
    public const Q7_ALIGN_LEFT = 0;
    /** centralizado. */
    public const Q7_ALIGN_CENTER = 1;
    /** à direita. */
    public const Q7_ALIGN_RIGHT = 2;

    // Q7Style: Estilos de texto, que se somam.
    /** nenhum. */
    public const Q7_STYLE_NORMAL = 0;
    /** fonte pequena; com Q7_STYLE_UNDERLINE, perde-se. */
    public const Q7_STYLE_SMALL = 1;
    /** sublinhado. */
    public const Q7_STYLE_UNDERLINE = 2;
    /** branco sobre preto. */
    public const Q7_STYLE_REVERSE = 4;
    /** negrito. */
    public const Q7_STYLE_BOLD = 8;

    // Q7Size: Tamanhos de caractere: (fator de largura - 1) * 16 + (fator de altura - 1), de 0 a
    // 119.
    /** deixa o tamanho como está. */
    public const Q7_SIZE_NORMAL = 0;
    /** altura dupla. */
    public const Q7_SIZE_DOUBLE_HEIGHT = 1;
    /** largura dupla. */
    public const Q7_SIZE_DOUBLE_WIDTH = 16;
    /** largura e altura duplas. */
    public const Q7_SIZE_DOUBLE = 17;
    /** largura e altura triplas. */
    public const Q7_SIZE_TRIPLE = 34;
    /** largura e altura óctuplas. */
    public const Q7_SIZE_LARGEST = 119;

    // Q7Font: Fontes de SetTextFont.
    /** fonte normal. */
    public const Q7_FONT_NORMAL = 0;
    /** fonte pequena. */
    public const Q7_FONT_SMALL = 1;

    // Q7Barcode: Códigos de barras.
    /** UPC-A. */
    public const Q7_BARCODE_UPC_A = 0;
    /** UPC-E. */
    public const Q7_BARCODE_UPC_E = 1;
    /** EAN-13. */
    public const Q7_BARCODE_EAN13 = 2;
    /** EAN-8. */
    public const Q7_BARCODE_EAN8 = 3;
    /** CODE39. */
    public const Q7_BARCODE_CODE39 = 4;
    /** ITF (2 de 5 intercalado). */
    public const Q7_BARCODE_ITF = 5;
    /** CODABAR. */
    public const Q7_BARCODE_CODABAR = 6;
    /** CODE93. */
    public const Q7_BARCODE_CODE93 = 7;
    /** CODE128. */
    public const Q7_BARCODE_CODE128 = 8;

    // Q7Hri: Posições do texto de um código de barras.
    /** acima. */
    public const Q7_HRI_ABOVE = 1;
    /** abaixo. */
    public const Q7_HRI_BELOW = 2;
    /** acima e abaixo. */
    public const Q7_HRI_BOTH = 3;
    /** enviado como está: a impressora decide. */
    public const Q7_HRI_OTHER = 4;

    // Q7QrLevel: Níveis de correção de erros do QR Code.
    /** nível L, cerca de 7%. */
    public const Q7_QR_LEVEL_L = 1;
    /** nível M, cerca de 15%. */
    public const Q7_QR_LEVEL_M = 2;
    /** nível Q, cerca de 25%. */
    public const Q7_QR_LEVEL_Q = 3;
    /** nível H, cerca de 30%. */
    public const Q7_QR_LEVEL_H = 4;

    // Q7ImageScale: Escalas das imagens gravadas na impressora.
    /** como gravada. */
    public const Q7_IMAGE_NORMAL = 1;
    /** largura e altura duplas. */
    public const Q7_IMAGE_DOUBLE = 2;

    // Q7Status: O que StatusImpressora pergunta.
    /** sinal da gaveta; não por TCP. */
    public const Q7_STATUS_DRAWER = 1;
    /** tampa. */
    public const Q7_STATUS_COVER = 2;
    /** papel. */
    public const Q7_STATUS_PAPER = 3;
    /** sensor de papel; só por TCP. */
    public const Q7_STATUS_SENSOR = 4;
    /** todos os que a conexão tem, numa soma de Q7StateBit. */
    public const Q7_STATUS_ALL = 5;

    // Q7State: O que StatusImpressora responde às perguntas de 1 a 4.
    /** sinal da gaveta em nível baixo. */
    public const Q7_STATE_DRAWER_LOW = 1;
    /** sinal da gaveta em nível alto. */
    public const Q7_STATE_DRAWER_HIGH = 2;
    /** tampa aberta. */
    public const Q7_STATE_COVER_OPEN = 3;
    /** tampa fechada. */
    public const Q7_STATE_COVER_CLOSED = 4;
    /** há papel. */
    public const Q7_STATE_PAPER_PRESENT = 5;
    /** papel perto do fim. */
    public const Q7_STATE_PAPER_NEAR_END = 6;
    /** sem papel. */
    public const Q7_STATE_PAPER_OUT = 7;
    /** sensor sem sinal. */
    public const Q7_STATE_SENSOR_CLEAR = 8;
    /** sensor com sinal. */
    public const Q7_STATE_SENSOR_SIGNALLED = 9;

    // Q7StateBit: De que se soma a resposta de StatusImpressora a Q7_STATUS_ALL; 0 é a impressora
    // pronta.
    /** sinal da gaveta em nível baixo. */
    public const Q7_STATE_BIT_DRAWER_LOW = 1;
    /** tampa aberta. */
    public const Q7_STATE_BIT_COVER_OPEN = 2;
    /** papel perto do fim, ou no fim. */
    public const Q7_STATE_BIT_PAPER_NEAR_END = 4;
    /** sem papel; vem com o anterior. */
    public const Q7_STATE_BIT_PAPER_OUT = 8;
    /** sensor com sinal. */
    public const Q7_STATE_BIT_SENSOR_SIGNALLED = 16;

    // Q7PrinterState: O que GetPrinterState escreve.
    /** pronta. */
    public const Q7_PRINTER_READY = 0;
    /** sem papel. */
    public const Q7_PRINTER_PAPER_OUT = 1;
    /** tampa aberta. */
    public const Q7_PRINTER_COVER_OPEN = 2;
    /** papel perto do fim. */
    public const Q7_PRINTER_PAPER_NEAR_END = 4;
    /** tampa aberta e sem papel. */
    public const Q7_PRINTER_COVER_OPEN_PAPER_OUT = 5;
    /** tampa aberta e papel perto do fim. */
    public const Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END = 6;

    // Q7Identification: O que IdImpressora pergunta.
    /** número do modelo. */
    public const Q7_ID_MODEL_NUMBER = 0;
    /** número do tipo. */
    public const Q7_ID_TYPE_NUMBER = 1;
    /** versão do firmware. */
    public const Q7_ID_FIRMWARE = 2;
    /** fabricante. */
    public const Q7_ID_MAKER = 3;
    /** nome do modelo. */
    public const Q7_ID_MODEL = 4;
    /** número de série. */
    public const Q7_ID_SERIAL = 5;
    /** fontes. */
    public const Q7_ID_FONTS = 6;

    // Q7Direction: Direções de impressão no modo página.
    /** da esquerda para a direita. */
    public const Q7_DIRECTION_LEFT_TO_RIGHT = 0;
    /** de baixo para cima. */
    public const Q7_DIRECTION_BOTTOM_TO_TOP = 1;
    /** da direita para a esquerda. */
    public const Q7_DIRECTION_RIGHT_TO_LEFT = 2;
    /** de cima para baixo. */
    public const Q7_DIRECTION_TOP_TO_BOTTOM = 3;

    // Q7CfeOption: Opções do CF-e (ImprimeXMLSAT; a primeira também em ImprimeXMLCancelamentoSAT),
    // que se somam.
    /** cabeçalho ao lado da imagem "00" gravada na impressora. */
    public const Q7_CFE_LOGO = 1;
    /** sem os itens. */
    public const Q7_CFE_NO_ITEMS = 2;
    /** aviso de teste sob o título. */
    public const Q7_CFE_TEST = 4;

    // Q7NfceOption: Opções da NFC-e (ImprimeXMLNFCe), que se somam.
    /** sem os itens. */
    public const Q7_NFCE_NO_ITEMS = 1;
    /** coluna larga de código, com o GTIN. */
    public const Q7_NFCE_GTIN = 2;
    /** cabeçalho ao lado da imagem "00" gravada na impressora. */
    public const Q7_NFCE_LOGO = 8;
    /** aviso de ambiente de homologação; o leiaute 6.0 segue o tpAmb. */
    public const Q7_NFCE_TEST = 16;
    /** linhas separadoras entre as divisões. */
    public const Q7_NFCE_SEPARATORS = 64;
    /** inscrição estadual do emitente no cabeçalho. */
    public const Q7_NFCE_ISSUER_IE = 128;
    /** número de cada item. */
    public const Q7_NFCE_ITEM_NUMBERS = 256;
    /** uma nota em contingência sai numa só via. */
    public const Q7_NFCE_ONE_COPY = 512;

    // Q7Limit: Limites.
    /** bytes que comportam qualquer resposta de DirectIO. */
    public const Q7_LONGEST_REPLY = 65536;

    private const MENSAGENS = [
        self::Q7_OK => 'Sucesso. O que fazer: nada; depois de abrir por TCP chame StatusImpressora, que devolve -4 se a conexão foi recusada.',
        self::Q7_ERR_KIND => 'Tipo de conexão desconhecido. O que fazer: passe uma das constantes de Q7Connection, ou um texto como "COM3,9600", "NET,192.168.0.10,9100" ou "USB".',
        self::Q7_ERR_MODEL => 'Modelo desconhecido, ou a impressora é de outro modelo conhecido. O que fazer: confira o nome na lista de AbreConexaoImpressora e o que a impressora diz no autoteste.',
        self::Q7_ERR_NOT_OPEN => 'Nenhuma conexão aberta. O que fazer: confira se a impressora está ligada e na rede e abra de novo.',
        self::Q7_ERR_UNKNOWN_PRINTER => 'A impressora não informou um modelo conhecido. O que fazer: confira cabo, energia, velocidade e endereço e abra de novo.',
        self::Q7_ERR_ALREADY_OPEN => 'Conexão já aberta. O que fazer: nada; feche a conexão antes de abrir outra.',
        self::Q7_ERR_SPEED => 'Velocidade serial não permitida. O que fazer: passe 300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200, a mesma que está configurada na impressora.',
        self::Q7_ERR_SERIAL_NOT_FOUND => 'Porta serial não encontrada. O que fazer: veja o nome da porta no Gerenciador de Dispositivos (no Linux, em /dev).',
        self::Q7_ERR_SERIAL_DENIED => 'Porta serial em uso ou sem permissão. O que fazer: feche o outro programa; no Linux, ponha o usuário no grupo dialout e entre de novo.',
        self::Q7_ERR_SERIAL_UNKNOWN => 'Porta serial falhou por motivo desconhecido. O que fazer: retire e recoloque o adaptador; atualize o driver.',
        self::Q7_ERR_USB_ABSENT => 'Impressora USB não encontrada. O que fazer: copie os identificadores do Gerenciador de Dispositivos (VID e PID) para "q7_usb.ini" e reinicie o programa.',
        self::Q7_ERR_USB_OPEN => 'A impressora USB não pôde ser aberta. O que fazer: feche o outro programa; o número de erro do sistema está no log, na linha "ERRO DE ABERTURA DE PORTA:".',
        self::Q7_ERR_TCP_PORT => 'Porta TCP fora da faixa. O que fazer: passe a porta da impressora, em geral 9100.',
        self::Q7_ERR_ALIGNMENT => 'Alinhamento fora de 0 a 2. O que fazer: passe Q7_ALIGN_LEFT, Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.',
        self::Q7_ERR_STYLE => 'Estilo, negrito ou fonte fora da faixa. O que fazer: some constantes de Q7Style, cada uma uma só vez.',
        self::Q7_ERR_SIZE => 'Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. O que fazer: passe um valor de Q7Size; o espaçamento é em pontos.',
        self::Q7_ERR_NOT_SENT => 'Nada foi enviado. O que fazer: confira o texto e o papel da impressora; imprima textos longos em partes.',
        self::Q7_ERR_QR_SIZE => 'Tamanho do módulo do QR Code fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 4 serve para quase tudo.',
        self::Q7_ERR_QR_LEVEL => 'Nível de correção do QR Code fora de 1 a 4. O que fazer: passe um valor de Q7QrLevel.',
        self::Q7_ERR_QR_EMPTY => 'Conteúdo do QR Code vazio. O que fazer: confira de onde vem o conteúdo.',
        self::Q7_ERR_BARCODE_HEIGHT => 'Altura do código de barras fora de 1 a 255. O que fazer: passe a altura em pontos; 80 pontos são 10 mm a 8 pontos por milímetro.',
        self::Q7_ERR_BARCODE_WIDTH => 'Largura do módulo do código de barras fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 2 serve para quase tudo.',
        self::Q7_ERR_BARCODE_HRI => 'Posição do texto do código de barras fora de 1 a 4. O que fazer: passe um valor de Q7Hri.',
        self::Q7_ERR_BARCODE_TYPE => 'Tipo de código de barras fora de 0 a 8. O que fazer: passe uma das constantes; só PrintBarCode e PrtPrintBarCode aceitam também 65 a 73.',
        self::Q7_ERR_BARCODE_DATA => 'Dados inválidos para o tipo de código de barras. O que fazer: veja em ImpressaoCodigoBarras o que cada tipo aceita.',
        self::Q7_ERR_XSD => 'Documento ou esquema inválido. O que fazer: nada.',
        self::Q7_ERR_XSD_MISSING => 'Arquivo de esquema ausente. O que fazer: nada.',
        self::Q7_ERR_NO_REPLY => 'A impressora não respondeu. O que fazer: confira a impressora e o cabo e pergunte de novo.',
        self::Q7_ERR_SIGNATURE => 'A assinatura não tem 344 caracteres. O que fazer: passe o elemento assinaturaQRCODE da venda cancelada, inteiro.',
        self::Q7_ERR_NFCE_VERSION => 'Versão do leiaute da NFC-e diferente de 4.00. O que fazer: passe uma NFC-e da versão 4.00.',
        self::Q7_ERR_NFCE_NO_VERSION => 'Não é uma NFC-e, ou é uma sem o atributo versao. O que fazer: passe o texto do XML autorizado, com a raiz nfeProc ou NFe.',
        self::Q7_ERR_NFCE_EMISSION => 'Tipo de emissão (tpEmis) ausente ou 0. O que fazer: passe o XML inteiro, com o grupo infNFeSupl.',
        self::Q7_ERR_NFCE_OPTIONS => 'Opções da NFC-e acima de 65535. O que fazer: some constantes de Q7NfceOption.',
        self::Q7_ERR_NFCE_MODEL => 'NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. O que fazer: passe uma NFC-e (modelo 65) ou uma NF-e com tpImp 6.',
        self::Q7_ERR_NFCE_QR => 'Nota sem QR Code. Só com o leiaute 6.0. O que fazer: passe o XML com o grupo infNFeSupl inteiro; em contingência sem ele, também o CSC.',
        self::Q7_ERR_BUZZER_COUNT => 'Quantidade de sinais sonoros acima de 63. O que fazer: passe de 0 a 63.',
        self::Q7_ERR_BUZZER_TIME => 'Os dois tempos do sinal sonoro acima de 25. O que fazer: passe os tempos em unidades de 100 ms.',
        self::Q7_ERR_DRAWER_PIN => 'Pino da gaveta acima de 1. O que fazer: passe 0 ou 1.',
        self::Q7_ERR_DRAWER_TIME => 'Um tempo da gaveta acima de 255. O que fazer: passe o tempo em unidades de 2 ms.',
        self::Q7_ERR_STATUS_UNAVAILABLE => 'Estado não disponível nesta conexão. O que fazer: pergunte por outra conexão ou por outro estado.',
        self::Q7_ERR_STATUS_KIND => 'Pergunta de estado fora de 1 a 5. O que fazer: passe uma das constantes.',
        self::Q7_ERR_IMAGE_KEY => 'A chave da imagem não são dois caracteres visíveis. O que fazer: passe a chave com que a imagem foi gravada, por exemplo "00".',
        self::Q7_ERR_IMAGE_SCALE => 'Escala da imagem fora de 1 a 2. O que fazer: passe um valor de Q7ImageScale a ImprimeImagemMemoria.',
        self::Q7_ERR_DIRECTION => 'Direção de impressão fora de 0 a 3. O que fazer: passe um valor de Q7Direction.',
        self::Q7_ERR_POSITION => 'Posição horizontal acima de 500. O que fazer: passe de 0 a 500 pontos.',
        self::Q7_ERR_ID_KIND => 'Pergunta de identificação fora de 0 a 6. O que fazer: passe uma das constantes; IdImpressora devolve este código como o texto "-402".',
        self::Q7_ERR_FAILED => 'Sem resultado: nada foi enviado, ou outra falha. O que fazer: confira os argumentos; se persistir, ligue o log.',
    ];

    private const DECLARACOES = [
        ['int', 'AbreConexaoImpressora(int tipo, const char* modelo, const char* conexao, int parametro)'],
        ['int', 'FechaConexaoImpressora(void)'],
        ['char*', 'GetVersaoDLL(void)'],
        ['int', 'ImpressaoTexto(const char* dados, int posicao, int stilo, int tamanho)'],
        ['int', 'EspacamentoEntreLinhas(int espacamento)'],
        ['int', 'DefinePosicao(int posicao)'],
        ['int', 'InicializaImpressora(void)'],
        ['int', 'ImpressaoQRCode(const char* dados, int tamanho, int nivelCorrecao)'],
        ['int', 'ImpressaoCodigoBarras(int tipo, const char* dados, int altura, int largura, int HRI)'],
        ['int', 'ImprimeImagemMemoria(const char* chave, int escala)'],
        ['int', 'Corte(int avanco)'],
        ['int', 'AvancaPapel(int linhas)'],
        ['int', 'AbreGaveta(int pino, int ti, int tf)'],
        ['int', 'AbreGavetaTavlo(void)'],
        ['int', 'SinalSonoro(int qtd, int tempoInicio, int tempoFim)'],
        ['int', 'StatusImpressora(int param)'],
        ['int', 'DirectIO(const char* comando, int tamanho, char* resposta, unsigned int* tamanhoResposta)'],
        ['char*', 'IdImpressora(int tipo)'],
        ['int', 'ModoPagina(void)'],
        ['int', 'DirecaoImpressao(int direcao)'],
        ['int', 'DefineAreaImpressao(int x, int y, int largura, int altura)'],
        ['int', 'PosicaoImpressaoHorizontal(int posicao)'],
        ['int', 'PosicaoImpressaoVertical(int posicao)'],
        ['int', 'ImprimeModoPagina(void)'],
        ['int', 'LimpaBufferModoPagina(void)'],
        ['int', 'ImprimeMPeRetornaPadrao(void)'],
        ['int', 'ModoPadrao(void)'],
        ['int', 'ImprimeXMLSAT(const char* dados, int param)'],
        ['int', 'ImprimeXMLCancelamentoSAT(const char* dados, const char* assinaturaQRCODE, int param)'],
        ['int', 'ImprimeXMLNFCe(const char* dados, int indexcsc, const char* csc, int param)'],
        ['int', 'PrinterCreator(void* handle, const char* model)'],
        ['void', 'PrinterCreatorS(void* handle, const char* model)'],
        ['int', 'PrinterDestroy(void* handle)'],
        ['int', 'PortOpen(void* handle, const char* text)'],
        ['int', 'PortClose(void* handle)'],
        ['int', 'PrinterInitialize(void* handle)'],
        ['int', 'PrintText(void* handle, const char* text, int alignment, int style, int size)'],
        ['int', 'PrintTextS(void* handle, const char* text)'],
        ['int', 'SetAlign(void* handle, int alignment)'],
        ['int', 'SetTextBold(void* handle, int on)'],
        ['int', 'SetTextFont(void* handle, int font)'],
        ['int', 'SetTextLineSpace(int spacing)'],
        ['int', 'PrintBarCode(void* handle, int type, const char* data, int width, int height, int hri)'],
        ['int', 'PrintSymbol(void* handle, int type, const char* data, int errorLevel, int size)'],
        ['int', 'PrintNVImage(void* handle, int k1, int k2)'],
        ['int', 'DefineNVImage(int a, int b, int c, int d)'],
        ['int', 'FeedLine(void* handle, int lines)'],
        ['int', 'CutPaper(void* handle, int lines)'],
        ['int', 'OpenDrawer(void* handle, int pin, int onTime, int offTime)'],
        ['int', 'OpenCashDrawer(void* handle, int pin, int onTime, int offTime)'],
        ['int', 'GetPrinterState(void* handle, int* state)'],
        ['int', 'GetDrawerState(void* handle, int* state, int polarity)'],
        ['int', 'GetCashDrawerState(void* handle, int* state, int polarity)'],
        ['int', 'SelectPageMode(void* handle)'],
        ['int', 'SelectStandardMode(void* handle)'],
        ['int', 'SelectPrintDirectionInPageMode(void* handle, int direction)'],
        ['int', 'SetPrintAreaInPageMode(void* handle, int x, int y, int width, int height)'],
        ['int', 'SetAbSolutePrintPosition(void* handle, int position)'],
        ['int', 'SetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position)'],
        ['int', 'PrintDataInPageMode(void* handle)'],
        ['int', 'CancelPrintDataInPageMode(void* handle)'],
        ['int', 'SetPrintAndReturnStandardMode(void* handle)'],
        ['int', 'PrtPrinterCreator(void* handle, const char* model)'],
        ['int', 'PrtPrinterDestroy(void* handle)'],
        ['int', 'PrtPortOpen(void* handle, const char* text)'],
        ['int', 'PrtPortClose(void* handle)'],
        ['int', 'PrtPrinterInitialize(void* handle)'],
        ['int', 'PrtPrintText(void* handle, const char* text, int alignment, int style, int size)'],
        ['int', 'PrtSetTextPosition(void* handle, int alignment)'],
        ['int', 'PrtSetTextBold(void* handle, int on)'],
        ['int', 'PrtSetTextFont(void* handle, int font)'],
        ['int', 'PrtPrintBarCode(void* handle, int type, const char* data, int width, int height, int hri)'],
        ['int', 'PrtPrintSymbol(void* handle, int type, const char* data, int errorLevel, int size)'],
        ['int', 'PrtFeedLine(void* handle, int lines)'],
        ['int', 'PrtCutPaper(void* handle, int lines)'],
        ['int', 'PrtOpenDrawer(void* handle, int pin, int onTime, int offTime)'],
        ['int', 'PrtCheckPrinterState(void* handle, int* state)'],
        ['int', 'PrtGetDrawerState(void* handle, int* state, int polarity)'],
        ['int', 'PrtSelectPageMode(void* handle)'],
        ['int', 'PrtSelectStandardMode(void* handle)'],
        ['int', 'PrtSelectPrintDirectionInPageMode(void* handle, int direction)'],
        ['int', 'PrtSetPrintAreaInPageMode(void* handle, int x, int y, int width, int height)'],
        ['int', 'PrtSetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position)'],
        ['int', 'PrtPrintDataInPageMode(void* handle)'],
        ['int', 'PrtCancelPrintDataInPageMode(void* handle)'],
        ['int', 'PrtSetPrintAndReturnStandardMode(void* handle)'],
    ];

    private static ?FFI $biblioteca = null;

    /** Diz o que um código de retorno significa e o que fazer. */
    public static function mensagem(int $codigo): string
    {
        if ($codigo > 0) {
            return "Erro do sistema ou da rede, de número $codigo.";
        }
        return self::MENSAGENS[$codigo] ?? "Código desconhecido: $codigo.";
    }

    /**
     * Abre a conexão com a impressora.
     *
     * Modelos e suas colunas por linha, na fonte normal e na pequena: VANTA, VESPA, VOLTA, PINTA,
     * SALVI e DUNEL 48 e 64; ORLA-K e SORBE 42 e 56; RANZA, RANZAPRO e TESMO não têm largura
     * definida.
     *
     * Impressoras seriais e TCP são perguntadas pelo nome do modelo (GS I 67; TESMO: ~HI) e têm 750
     * ms para responder; a conexão TCP é esperada por até 2000 ms. Uma conexão TCP recusada devolve
     * Q7_OK, veja as convenções.
     *
     * Uma conexão que já está aberta é abandonada, não fechada: chame FechaConexaoImpressora antes.
     *
     * Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
     * Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
     * Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS I 67, por serial e TCP.
     *
     * @param int $tipo tipo de conexão, um valor de Q7Connection.
     * @param string|null $modelo nome do modelo, em maiúsculas ou minúsculas. Enquanto o último
     * resultado é 0 (depois da carga, de abrir ou de fechar) qualquer outro nome também passa e
     * deixa o modelo como estava.
     * @param string|null $conexao porta serial ("COM3"; no Linux "ttyUSB0" ou um caminho), nome ou
     * endereço TCP; ignorado na USB.
     * @param int $parametro bits por segundo (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou
     * 115200) ou porta TCP, de 0 a 65535 (9100 é usual); ignorado na USB.
     * @return int 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
     */
    public static function AbreConexaoImpressora(int $tipo, ?string $modelo, ?string $conexao, int $parametro): int
    {
        return self::biblioteca()->AbreConexaoImpressora($tipo, self::utf8($modelo), self::utf8($conexao), $parametro);
    }

    /**
     * Fecha a conexão depois que o que foi aceito foi entregue.
     *
     * Desiste depois de 5 s em que nada anda; o que falta então se perde, e o log diz isso.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: nenhum.
     *
     * @return int 0, um código, ou, na USB, um número positivo de erro do sistema.
     */
    public static function FechaConexaoImpressora(): int
    {
        return self::biblioteca()->FechaConexaoImpressora();
    }

    /**
     * Diz a versão da biblioteca.
     *
     * Efeito: nenhum; não precisa de conexão.
     *
     * ESC/POS: nenhum.
     *
     * @return string|null o texto "01.01.00", em memória nova que fica com quem chamou.
     */
    public static function GetVersaoDLL(): ?string
    {
        return self::texto(self::biblioteca()->GetVersaoDLL());
    }

    /**
     * Imprime um texto.
     *
     * Se nenhum espaçamento foi guardado (EspacamentoEntreLinhas) e ModoPagina não foi chamada, a
     * impressora é reiniciada antes: alinhamento, estilo e tamanho começam de novo, e uma linha
     * ainda sem "\n" se perde.
     *
     * Por TCP e serial a contagem tem 16 bits e dá a volta em textos de 32768 bytes ou mais: 40000
     * bytes devolvem Q7_ERR_NOT_SENT embora saiam. Imprima textos assim em partes.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
     *
     * ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
     *
     * @param string|null $dados o texto, em UTF-8; os fins de linha ("\n") são de quem chama,
     * nenhum é acrescentado.
     * @param int $posicao alinhamento, um valor de Q7Alignment; 0 deixa como está.
     * @param int $stilo soma de valores de Q7Style, de 0 a 15. Um estilo vale até a impressora ser
     * reiniciada.
     * @param int $tamanho tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
     * @return int a quantidade de bytes do texto enviados, ou um código.
     */
    public static function ImpressaoTexto(?string $dados, int $posicao, int $stilo, int $tamanho): int
    {
        return self::biblioteca()->ImpressaoTexto(self::utf8($dados), $posicao, $stilo, $tamanho);
    }

    /**
     * Guarda o espaçamento entre linhas dos textos que seguem.
     *
     * Depois dela os textos não reiniciam mais a impressora, nem em outra conexão. É a mesma função
     * que SetTextLineSpace.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.
     *
     * Efeito: no próximo ImpressaoTexto; a própria função não envia nada.
     *
     * ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.
     *
     * @param int $espacamento espaçamento em pontos, de 1 a 255.
     * @return int 0 ou um código.
     */
    public static function EspacamentoEntreLinhas(int $espacamento): int
    {
        return self::biblioteca()->EspacamentoEntreLinhas($espacamento);
    }

    /**
     * Define o alinhamento.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir; o próximo ImpressaoTexto o desfaz se reiniciar a impressora.
     *
     * ESC/POS: ESC a n.
     *
     * @param int $posicao um valor de Q7Alignment; de valores negativos vai o byte baixo.
     * @return int 0 ou um código.
     */
    public static function DefinePosicao(int $posicao): int
    {
        return self::biblioteca()->DefinePosicao($posicao);
    }

    /**
     * Reinicia a impressora, que volta às definições de quando é ligada.
     *
     * Uma linha ainda não impressa se perde.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC @.
     *
     * @return int 0 ou um código.
     */
    public static function InicializaImpressora(): int
    {
        return self::biblioteca()->InicializaImpressora();
    }

    /**
     * Imprime um QR Code.
     *
     * A SORBE aceita também níveis acima de 4.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
     * Q7_ERR_FAILED.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
     *
     * @param string|null $dados o conteúdo. ASCII é seguro; em outros textos o comprimento
     * anunciado à impressora conta caracteres, não bytes.
     * @param int $tamanho tamanho do módulo em pontos, de 1 a 6.
     * @param int $nivelCorrecao nível de correção, um valor de Q7QrLevel.
     * @return int 0 ou um código.
     */
    public static function ImpressaoQRCode(?string $dados, int $tamanho, int $nivelCorrecao): int
    {
        return self::biblioteca()->ImpressaoQRCode(self::utf8($dados), $tamanho, $nivelCorrecao);
    }

    /**
     * Imprime um código de barras.
     *
     * O que cada tipo aceita: UPC-A 11 ou 12 dígitos; UPC-E 11 ou 12, o primeiro "0"; EAN-13 12 ou
     * 13; EAN-8 7 ou 8; CODE39 de 1 a 255 dígitos, letras maiúsculas e " $%*+-./"; ITF dígitos em
     * quantidade par; CODABAR dígitos e "$+-./:" entre um início e um fim, cada um de A a D ou a a
     * d; CODE93 de 1 a 255 caracteres ASCII; CODE128 texto ASCII atrás de um seletor de subconjunto
     * "{A", "{B" ou "{C", e "{C" seguido de pares de dígitos. A SORBE não precisa do seletor e o
     * descarta.
     *
     * A DUNEL não imprime o texto do código; a SORBE mantém a definição própria.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
     * Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS h, GS w, GS H, GS k m n (função B).
     *
     * @param int $tipo um valor de Q7Barcode.
     * @param string|null $dados o conteúdo, como acima.
     * @param int $altura altura em pontos, de 1 a 255.
     * @param int $largura largura do módulo em pontos, de 1 a 6.
     * @param int $HRI posição do texto do código, um valor de Q7Hri.
     * @return int 0 ou um código.
     */
    public static function ImpressaoCodigoBarras(int $tipo, ?string $dados, int $altura, int $largura, int $HRI): int
    {
        return self::biblioteca()->ImpressaoCodigoBarras($tipo, self::utf8($dados), $altura, $largura, $HRI);
    }

    /**
     * Imprime uma imagem que a ferramenta do fabricante gravou na memória da impressora.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS ( L, função 69.
     *
     * @param string|null $chave os dois caracteres da chave da imagem, cada um de 0x20 a 0x7E.
     * @param int $escala um valor de Q7ImageScale.
     * @return int 0 ou um código.
     */
    public static function ImprimeImagemMemoria(?string $chave, int $escala): int
    {
        return self::biblioteca()->ImprimeImagemMemoria(self::utf8($chave), $escala);
    }

    /**
     * Avança o papel e corta.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: LF, GS V 0.
     *
     * @param int $avanco linhas a avançar antes; 0 ou menos não avança.
     * @return int 0 ou um código.
     */
    public static function Corte(int $avanco): int
    {
        return self::biblioteca()->Corte($avanco);
    }

    /**
     * Avança o papel.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: LF.
     *
     * @param int $linhas linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
     * @return int 0 ou um código.
     */
    public static function AvancaPapel(int $linhas): int
    {
        return self::biblioteca()->AvancaPapel($linhas);
    }

    /**
     * Abre a gaveta.
     *
     * Um tempo 0 encurta o comando, e a impressora toma o que vem depois pelos tempos que faltam:
     * passe de 1 a 255.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC p m t1 t2.
     *
     * @param int $pino saída da impressora, 0 ou 1.
     * @param int $ti tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param int $tf tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return int 0 ou um código.
     */
    public static function AbreGaveta(int $pino, int $ti, int $tf): int
    {
        return self::biblioteca()->AbreGaveta($pino, $ti, $tf);
    }

    /**
     * Abre a gaveta pela saída 0 com os dois tempos em 200 ms.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC p 48 100 100.
     *
     * @return int 0 ou um código.
     */
    public static function AbreGavetaTavlo(): int
    {
        return self::biblioteca()->AbreGavetaTavlo();
    }

    /**
     * Dá sinais sonoros.
     *
     * Só um dos dois tempos pode passar de 25.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BUZZER_COUNT, Q7_ERR_BUZZER_TIME, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS ( A, função 97.
     *
     * @param int $qtd quantidade de sinais, de 0 a 63.
     * @param int $tempoInicio duração de cada sinal, em unidades de 100 ms.
     * @param int $tempoFim pausa depois de cada sinal, em unidades de 100 ms.
     * @return int 0 ou um código.
     */
    public static function SinalSonoro(int $qtd, int $tempoInicio, int $tempoFim): int
    {
        return self::biblioteca()->SinalSonoro($qtd, $tempoInicio, $tempoFim);
    }

    /**
     * Pergunta o estado da impressora.
     *
     * Espera no máximo 1500 ms pela resposta e outro tanto pelo fim dela, a cada pergunta;
     * Q7_STATUS_ALL faz até três.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_STATUS_UNAVAILABLE, Q7_ERR_STATUS_KIND,
     * Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS a 0, DLE EOT n.
     *
     * @param int $param a pergunta, um valor de Q7Status.
     * @return int para as perguntas de 1 a 4 um valor de Q7State; para Q7_STATUS_ALL a soma de
     * valores de Q7StateBit; ou um código.
     */
    public static function StatusImpressora(int $param): int
    {
        return self::biblioteca()->StatusImpressora($param);
    }

    /**
     * Envia bytes como estão e lê uma resposta.
     *
     * Espera no máximo 1500 ms pelo começo da resposta e 500 ms pelo fim. O log não traz o nome da
     * função; traz os bytes enviados.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: o que comando contém.
     *
     * @param string $comando os bytes; nulo não envia nada.
     * @param int $tamanho quantidade de bytes; abaixo de 1 não envia nada.
     * @param string|null $resposta memória para a resposta, que precisa ser grande o bastante, diga
     * tamanhoResposta o que disser: 1024 bytes comportam qualquer resposta por USB; por serial e
     * TCP vem antes o que a impressora enviou e ninguém leu, e Q7_LONGEST_REPLY bytes comportam
     * tudo.
     * @param int $tamanhoResposta na entrada, 0 se nenhuma resposta é pedida; na saída, a
     * quantidade de bytes copiados.
     * @return int 0 ou um código; Q7_ERR_FAILED quando nenhuma resposta foi pedida, também com
     * resposta ou tamanhoResposta nulos, embora os bytes tenham sido enviados.
     */
    public static function DirectIO(string $comando, int $tamanho, ?string &$resposta, int &$tamanhoResposta): int
    {
        $_resposta = FFI::new('char[' . self::Q7_LONGEST_REPLY . ']');
        $_tamanhoResposta = FFI::new('unsigned int');
        $_tamanhoResposta->cdata = $tamanhoResposta ?? -1;
        $resultado = self::biblioteca()->DirectIO($comando, $tamanho, $_resposta, FFI::addr($_tamanhoResposta));
        $tamanhoResposta = $_tamanhoResposta->cdata;
        $resposta = $resultado === self::Q7_OK ? FFI::string($_resposta, $tamanhoResposta) : null;
        return $resultado;
    }

    /**
     * Pergunta à impressora quem ela é.
     *
     * Com 0 e 1 vai um algarismo atrás do comando, que as impressoras tomam por texto: ele aparece
     * na frente da próxima linha impressa.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_ID_KIND.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS I n.
     *
     * @param int $tipo a pergunta, um valor de Q7Identification.
     * @return string|null a resposta, em Latin-1, até o primeiro byte que não era UTF-8, ou um
     * código em decimal ("-4", "-81", "-402"), em memória nova que fica com quem chamou.
     */
    public static function IdImpressora(int $tipo): ?string
    {
        return self::texto(self::biblioteca()->IdImpressora($tipo));
    }

    /**
     * Entra no modo página.
     *
     * Daí em diante os textos não reiniciam mais a impressora, nem depois de ModoPadrao.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC L.
     *
     * @return int 0 ou um código.
     */
    public static function ModoPagina(): int
    {
        return self::biblioteca()->ModoPagina();
    }

    /**
     * Define a direção de impressão no modo página.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: ESC T n.
     *
     * @param int $direcao um valor de Q7Direction.
     * @return int 0 ou um código.
     */
    public static function DirecaoImpressao(int $direcao): int
    {
        return self::biblioteca()->DirecaoImpressao($direcao);
    }

    /**
     * Define a área de impressão no modo página.
     *
     * De valores fora da faixa os dois bytes enviados não significam nada.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: ESC W.
     *
     * @param int $x canto esquerdo em pontos, de 0 a 65535.
     * @param int $y canto superior em pontos, de 0 a 65535.
     * @param int $largura largura em pontos, de 0 a 65535.
     * @param int $altura altura em pontos, de 0 a 65535.
     * @return int 0 ou um código.
     */
    public static function DefineAreaImpressao(int $x, int $y, int $largura, int $altura): int
    {
        return self::biblioteca()->DefineAreaImpressao($x, $y, $largura, $altura);
    }

    /**
     * Define a posição horizontal absoluta.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir.
     *
     * ESC/POS: ESC $.
     *
     * @param int $posicao pontos, de 0 a 500; valores negativos passam, mas os dois bytes enviados
     * não significam nada.
     * @return int 0 ou um código.
     */
    public static function PosicaoImpressaoHorizontal(int $posicao): int
    {
        return self::biblioteca()->PosicaoImpressaoHorizontal($posicao);
    }

    /**
     * Define a posição vertical absoluta no modo página.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: GS $.
     *
     * @param int $posicao pontos, de 0 a 65535; de valores fora da faixa os dois bytes enviados não
     * significam nada.
     * @return int 0 ou um código.
     */
    public static function PosicaoImpressaoVertical(int $posicao): int
    {
        return self::biblioteca()->PosicaoImpressaoVertical($posicao);
    }

    /**
     * Imprime a página e continua no modo página.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC FF.
     *
     * @return int 0 ou um código.
     */
    public static function ImprimeModoPagina(): int
    {
        return self::biblioteca()->ImprimeModoPagina();
    }

    /**
     * Apaga a página sem a imprimir.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: CAN.
     *
     * @return int 0 ou um código.
     */
    public static function LimpaBufferModoPagina(): int
    {
        return self::biblioteca()->LimpaBufferModoPagina();
    }

    /**
     * Imprime a página e volta ao modo padrão.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: FF.
     *
     * @return int 0 ou um código.
     */
    public static function ImprimeMPeRetornaPadrao(): int
    {
        return self::biblioteca()->ImprimeMPeRetornaPadrao();
    }

    /**
     * Volta ao modo padrão; uma página não impressa se perde.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC S.
     *
     * @return int 0 ou um código.
     */
    public static function ModoPadrao(): int
    {
        return self::biblioteca()->ModoPadrao();
    }

    /**
     * Imprime o extrato de uma venda CF-e do SAT; não corta.
     *
     * De um documento que não pode ser lido saem só os rótulos, e o resultado é 0.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: os das funções de texto, código de barras e QR Code.
     *
     * @param string|null $dados o texto do XML autorizado (raiz CFe), não o nome de um arquivo.
     * @param int $param soma de valores de Q7CfeOption.
     * @return int 0 ou um código.
     */
    public static function ImprimeXMLSAT(?string $dados, int $param): int
    {
        return self::biblioteca()->ImprimeXMLSAT(self::utf8($dados), $param);
    }

    /**
     * Imprime o extrato do cancelamento de um CF-e do SAT; não corta.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIGNATURE, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: os das funções de texto, código de barras e QR Code.
     *
     * @param string|null $dados o texto do XML do cancelamento (raiz CFeCanc), não o nome de um
     * arquivo.
     * @param string|null $assinaturaQRCODE a assinatura da venda cancelada (o elemento desse nome
     * no XML dela), de 344 caracteres.
     * @param int $param 0 ou Q7_CFE_LOGO.
     * @return int 0 ou um código; Q7_ERR_FAILED quando o documento não é um cancelamento.
     */
    public static function ImprimeXMLCancelamentoSAT(?string $dados, ?string $assinaturaQRCODE, int $param): int
    {
        return self::biblioteca()->ImprimeXMLCancelamentoSAT(self::utf8($dados), self::utf8($assinaturaQRCODE), $param);
    }

    /**
     * Imprime o DANFE de uma NFC-e; não corta no fim.
     *
     * Uma nota em contingência sai em duas vias, com um corte entre elas.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NFCE_OPTIONS, Q7_ERR_NFCE_NO_VERSION, Q7_ERR_NFCE_VERSION,
     * Q7_ERR_NFCE_EMISSION, Q7_ERR_NFCE_MODEL, Q7_ERR_NFCE_QR.
     *
     * Efeito: na hora.
     *
     * ESC/POS: os das funções de texto, de QR Code e do modo página.
     *
     * @param string|null $dados o texto do XML (raiz nfeProc ou NFe), versão 4.00, com a urlChave;
     * não o nome de um arquivo.
     * @param int $indexcsc o identificador do CSC do contribuinte, usado se a nota não tem qrCode.
     * @param string|null $csc o CSC do contribuinte, usado se a nota não tem qrCode.
     * @param int $param soma de valores de Q7NfceOption, no máximo 65535.
     * @return int 0 ou um código.
     */
    public static function ImprimeXMLNFCe(?string $dados, int $indexcsc, ?string $csc, int $param): int
    {
        return self::biblioteca()->ImprimeXMLNFCe(self::utf8($dados), $indexcsc, self::utf8($csc), $param);
    }

    /**
     * Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem.
     *
     * Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @param string|null $model nome do modelo, como em AbreConexaoImpressora.
     * @return int 0.
     */
    public static function PrinterCreator($handle, ?string $model): int
    {
        return self::biblioteca()->PrinterCreator(null, self::utf8($model));
    }

    /**
     * Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem, como PrinterCreator, sem
     * resultado.
     *
     * Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @param string|null $model nome do modelo, como em AbreConexaoImpressora.
     * @return void
     */
    public static function PrinterCreatorS($handle, ?string $model): void
    {
        self::biblioteca()->PrinterCreatorS(null, self::utf8($model));
    }

    /**
     * Não libera nada: a porta continua aberta. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: nenhum.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrinterDestroy($handle): int
    {
        return self::biblioteca()->PrinterDestroy(null);
    }

    /**
     * Abre a conexão com o modelo de PrinterCreator, como AbreConexaoImpressora.
     *
     * O texto é feito de campos separados por "," ou "_", que por isso não podem aparecer em nomes
     * nem em caminhos. O primeiro campo contém, em maiúsculas ou minúsculas, uma das palavras
     *
     * - "COM": ele mesmo é a porta serial e o segundo são os bits por segundo: "COM3,9600";
     *
     * - "NET": o segundo é o nome ou endereço e o terceiro a porta TCP, 9100 se falta ou está
     * vazio: "NET,192.168.0.10,9100";
     *
     * - "USB": não precisa de outros campos.
     *
     * Qualquer outro texto ("COM3" ou "NET" sozinhos também) devolve Q7_ERR_KIND, e a velocidade
     * que falta, Q7_ERR_SPEED.
     *
     * Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
     * Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
     * Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS I 67, por serial e TCP.
     *
     * @param mixed $handle ignorado.
     * @param string|null $text a porta, como acima.
     * @return int 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
     */
    public static function PortOpen($handle, ?string $text): int
    {
        return self::biblioteca()->PortOpen(null, self::utf8($text));
    }

    /**
     * Fecha a conexão, como FechaConexaoImpressora. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @return int 0, um código, ou, na USB, um número positivo de erro do sistema.
     */
    public static function PortClose($handle): int
    {
        return self::biblioteca()->PortClose(null);
    }

    /**
     * Reinicia a impressora, como InicializaImpressora. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC @.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrinterInitialize($handle): int
    {
        return self::biblioteca()->PrinterInitialize(null);
    }

    /**
     * Imprime um texto, como ImpressaoTexto. Protegida; o log traz os dois nomes.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
     *
     * ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
     *
     * @param mixed $handle ignorado.
     * @param string|null $text o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
     * @param int $alignment alinhamento, um valor de Q7Alignment; 0 deixa como está.
     * @param int $style soma de valores de Q7Style, de 0 a 15.
     * @param int $size tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
     * @return int a quantidade de bytes do texto enviados, ou um código.
     */
    public static function PrintText($handle, ?string $text, int $alignment, int $style, int $size): int
    {
        return self::biblioteca()->PrintText(null, self::utf8($text), $alignment, $style, $size);
    }

    /**
     * Envia os bytes de um texto como estão: sem conversão para Latin-1, sem escolher a tabela de
     * caracteres.
     *
     * Protegida, mas o log a registra antes.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: nenhum além do texto.
     *
     * @param mixed $handle ignorado.
     * @param string|null $text o texto, que vai até o primeiro byte zero.
     * @return int a quantidade de bytes enviados, ou um código; um texto vazio devolve
     * Q7_ERR_NOT_SENT.
     */
    public static function PrintTextS($handle, ?string $text): int
    {
        return self::biblioteca()->PrintTextS(null, self::utf8($text));
    }

    /**
     * Define o alinhamento ao centro ou à direita. Protegida.
     *
     * 0, à esquerda, é aceito mas não envia nada: a impressora fica como está. Para voltar à
     * esquerda chame DefinePosicao com Q7_ALIGN_LEFT.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
     *
     * ESC/POS: ESC a n.
     *
     * @param mixed $handle ignorado.
     * @param int $alignment Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.
     * @return int 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
     */
    public static function SetAlign($handle, int $alignment): int
    {
        return self::biblioteca()->SetAlign(null, $alignment);
    }

    /**
     * Liga ou desliga o negrito. Protegida, mas o log a registra antes.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * ESC/POS: ESC E n.
     *
     * @param mixed $handle ignorado.
     * @param int $on 1 liga, 0 desliga.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function SetTextBold($handle, int $on): int
    {
        return self::biblioteca()->SetTextBold(null, $on);
    }

    /**
     * Escolhe a fonte e desliga o sublinhado, que o mesmo comando define. Protegida, mas o log a
     * registra antes.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * ESC/POS: ESC ! n.
     *
     * @param mixed $handle ignorado.
     * @param int $font um valor de Q7Font.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function SetTextFont($handle, int $font): int
    {
        return self::biblioteca()->SetTextFont(null, $font);
    }

    /**
     * Guarda o espaçamento entre linhas: é a mesma função que EspacamentoEntreLinhas, e o log traz
     * o nome dela. Não tem identificador.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.
     *
     * Efeito: no próximo ImpressaoTexto; a própria função não envia nada.
     *
     * ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.
     *
     * @param int $spacing espaçamento em pontos, de 1 a 255.
     * @return int 0 ou um código.
     */
    public static function SetTextLineSpace(int $spacing): int
    {
        return self::biblioteca()->SetTextLineSpace($spacing);
    }

    /**
     * Imprime um código de barras, como ImpressaoCodigoBarras. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
     * Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS h, GS w, GS H, GS k m n (função B).
     *
     * @param mixed $handle ignorado.
     * @param int $type um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
     * @param string|null $data o conteúdo, como em ImpressaoCodigoBarras.
     * @param int $width largura do módulo em pontos, de 1 a 6.
     * @param int $height altura em pontos, de 1 a 255.
     * @param int $hri posição do texto do código, um valor de Q7Hri.
     * @return int 0 ou um código.
     */
    public static function PrintBarCode($handle, int $type, ?string $data, int $width, int $height, int $hri): int
    {
        return self::biblioteca()->PrintBarCode(null, $type, self::utf8($data), $width, $height, $hri);
    }

    /**
     * Imprime um QR Code, como ImpressaoQRCode.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
     * Q7_ERR_FAILED.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
     *
     * @param mixed $handle ignorado.
     * @param int $type ignorado.
     * @param string|null $data o conteúdo, como em ImpressaoQRCode.
     * @param int $errorLevel nível de correção, um valor de Q7QrLevel.
     * @param int $size tamanho do módulo em pontos, de 1 a 6.
     * @return int 0 ou um código.
     */
    public static function PrintSymbol($handle, int $type, ?string $data, int $errorLevel, int $size): int
    {
        return self::biblioteca()->PrintSymbol(null, $type, self::utf8($data), $errorLevel, $size);
    }

    /**
     * Falha sempre e nunca imprime: para uma imagem gravada na impressora chame
     * ImprimeImagemMemoria.
     *
     * Programas desta interface podem chamá-la; ela é ImprimeImagemMemoria com a escala 0, que não
     * existe.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE.
     *
     * Efeito: nenhum.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @param int $k1 primeiro caractere da chave, do qual conta o byte baixo.
     * @param int $k2 segundo caractere da chave, do qual conta o byte baixo.
     * @return int sempre um código.
     */
    public static function PrintNVImage($handle, int $k1, int $k2): int
    {
        return self::biblioteca()->PrintNVImage(null, $k1, $k2);
    }

    /**
     * Não faz nada: as imagens são gravadas com a ferramenta do fabricante da impressora.
     *
     * Efeito: nenhum.
     *
     * ESC/POS: nenhum.
     *
     * @param int $a ignorado.
     * @param int $b ignorado.
     * @param int $c ignorado.
     * @param int $d ignorado.
     * @return int 0.
     */
    public static function DefineNVImage(int $a, int $b, int $c, int $d): int
    {
        return self::biblioteca()->DefineNVImage($a, $b, $c, $d);
    }

    /**
     * Avança o papel, como AvancaPapel. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: LF.
     *
     * @param mixed $handle ignorado.
     * @param int $lines linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
     * @return int 0 ou um código.
     */
    public static function FeedLine($handle, int $lines): int
    {
        return self::biblioteca()->FeedLine(null, $lines);
    }

    /**
     * Avança o papel e corta, como Corte. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: LF, GS V 0.
     *
     * @param mixed $handle ignorado.
     * @param int $lines linhas a avançar antes; 0 ou menos não avança.
     * @return int 0 ou um código.
     */
    public static function CutPaper($handle, int $lines): int
    {
        return self::biblioteca()->CutPaper(null, $lines);
    }

    /**
     * Abre a gaveta, como AbreGaveta. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC p m t1 t2.
     *
     * @param mixed $handle ignorado.
     * @param int $pin saída da impressora, 0 ou 1.
     * @param int $onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param int $offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return int 0 ou um código.
     */
    public static function OpenDrawer($handle, int $pin, int $onTime, int $offTime): int
    {
        return self::biblioteca()->OpenDrawer(null, $pin, $onTime, $offTime);
    }

    /**
     * Abre a gaveta; é OpenDrawer com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC p m t1 t2.
     *
     * @param mixed $handle ignorado.
     * @param int $pin saída da impressora, 0 ou 1.
     * @param int $onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param int $offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return int 0 ou um código.
     */
    public static function OpenCashDrawer($handle, int $pin, int $onTime, int $offTime): int
    {
        return self::biblioteca()->OpenCashDrawer(null, $pin, $onTime, $offTime);
    }

    /**
     * Pergunta o estado da impressora, com StatusImpressora e Q7_STATUS_ALL. Protegida.
     *
     * Qualquer outra resposta, ou nenhuma, devolve Q7_ERR_STATUS_UNAVAILABLE e deixa state como
     * estava: por USB e serial também sempre que o sinal da gaveta está em nível baixo.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS a 0, DLE EOT n.
     *
     * @param mixed $handle ignorado.
     * @param int|null $state recebe um valor de Q7PrinterState; pode ser nulo.
     * @return int 0 ou um código.
     */
    public static function GetPrinterState($handle, ?int &$state): int
    {
        $_state = FFI::new('int');
        $_state->cdata = $state ?? -1;
        $resultado = self::biblioteca()->GetPrinterState(null, FFI::addr($_state));
        $state = $_state->cdata;
        return $resultado;
    }

    /**
     * Pergunta o sinal da gaveta, com StatusImpressora e Q7_STATUS_DRAWER. Protegida.
     *
     * state fica como estava quando a impressora não disse nada e por TCP, em que a gaveta não pode
     * ser perguntada.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS a 0, DLE EOT 1.
     *
     * @param mixed $handle ignorado.
     * @param int|null $state recebe 1 ou 0; pode ser nulo.
     * @param int $polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível
     * alto.
     * @return int 0, também quando state fica como estava, ou um código.
     */
    public static function GetDrawerState($handle, ?int &$state, int $polarity): int
    {
        $_state = FFI::new('int');
        $_state->cdata = $state ?? -1;
        $resultado = self::biblioteca()->GetDrawerState(null, FFI::addr($_state), $polarity);
        $state = $_state->cdata;
        return $resultado;
    }

    /**
     * Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS a 0, DLE EOT 1.
     *
     * @param mixed $handle ignorado.
     * @param int|null $state recebe 1 ou 0; pode ser nulo.
     * @param int $polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível
     * alto.
     * @return int 0, também quando state fica como estava, ou um código.
     */
    public static function GetCashDrawerState($handle, ?int &$state, int $polarity): int
    {
        $_state = FFI::new('int');
        $_state->cdata = $state ?? -1;
        $resultado = self::biblioteca()->GetCashDrawerState(null, FFI::addr($_state), $polarity);
        $state = $_state->cdata;
        return $resultado;
    }

    /**
     * Entra no modo página, como ModoPagina. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC L.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function SelectPageMode($handle): int
    {
        return self::biblioteca()->SelectPageMode(null);
    }

    /**
     * Volta ao modo padrão; é PrtSelectStandardMode com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC S.
     *
     * @param mixed $handle ignorado.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function SelectStandardMode($handle): int
    {
        return self::biblioteca()->SelectStandardMode(null);
    }

    /**
     * Define a direção de impressão no modo página, como DirecaoImpressao. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: ESC T n.
     *
     * @param mixed $handle ignorado.
     * @param int $direction um valor de Q7Direction.
     * @return int 0 ou um código.
     */
    public static function SelectPrintDirectionInPageMode($handle, int $direction): int
    {
        return self::biblioteca()->SelectPrintDirectionInPageMode(null, $direction);
    }

    /**
     * Define a área de impressão no modo página, como DefineAreaImpressao. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: ESC W.
     *
     * @param mixed $handle ignorado.
     * @param int $x canto esquerdo em pontos, de 0 a 65535.
     * @param int $y canto superior em pontos, de 0 a 65535.
     * @param int $width largura em pontos, de 0 a 65535.
     * @param int $height altura em pontos, de 0 a 65535.
     * @return int 0 ou um código.
     */
    public static function SetPrintAreaInPageMode($handle, int $x, int $y, int $width, int $height): int
    {
        return self::biblioteca()->SetPrintAreaInPageMode(null, $x, $y, $width, $height);
    }

    /**
     * Define a posição horizontal absoluta, como PosicaoImpressaoHorizontal. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir.
     *
     * ESC/POS: ESC $.
     *
     * @param mixed $handle ignorado.
     * @param int $position pontos, de 0 a 500.
     * @return int 0 ou um código.
     */
    public static function SetAbSolutePrintPosition($handle, int $position): int
    {
        return self::biblioteca()->SetAbSolutePrintPosition(null, $position);
    }

    /**
     * Define a posição vertical absoluta no modo página, como PosicaoImpressaoVertical. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: GS $.
     *
     * @param mixed $handle ignorado.
     * @param int $position pontos, de 0 a 65535.
     * @return int 0 ou um código.
     */
    public static function SetAbsoluteVerticalPrintPositionInPageMode($handle, int $position): int
    {
        return self::biblioteca()->SetAbsoluteVerticalPrintPositionInPageMode(null, $position);
    }

    /**
     * Imprime a página e continua no modo página, como ImprimeModoPagina. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC FF.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrintDataInPageMode($handle): int
    {
        return self::biblioteca()->PrintDataInPageMode(null);
    }

    /**
     * Apaga a página sem a imprimir, como LimpaBufferModoPagina. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: CAN.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function CancelPrintDataInPageMode($handle): int
    {
        return self::biblioteca()->CancelPrintDataInPageMode(null);
    }

    /**
     * Imprime a página e volta ao modo padrão, como ImprimeMPeRetornaPadrao. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: FF.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function SetPrintAndReturnStandardMode($handle): int
    {
        return self::biblioteca()->SetPrintAndReturnStandardMode(null);
    }

    /**
     * Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem: é PrinterCreator, e o nome
     * guardado é o mesmo.
     *
     * Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @param string|null $model nome do modelo, como em AbreConexaoImpressora.
     * @return int 0.
     */
    public static function PrtPrinterCreator($handle, ?string $model): int
    {
        return self::biblioteca()->PrtPrinterCreator(null, self::utf8($model));
    }

    /**
     * Não libera nada: a porta continua aberta, como em PrinterDestroy. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: nenhum.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrtPrinterDestroy($handle): int
    {
        return self::biblioteca()->PrtPrinterDestroy(null);
    }

    /**
     * Abre a conexão com o modelo de PrinterCreator; é PortOpen com outro nome.
     *
     * Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
     * Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
     * Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS I 67, por serial e TCP.
     *
     * @param mixed $handle ignorado.
     * @param string|null $text a porta, como em PortOpen: "COM3,9600", "NET,192.168.0.10,9100" ou
     * "USB".
     * @return int 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
     */
    public static function PrtPortOpen($handle, ?string $text): int
    {
        return self::biblioteca()->PrtPortOpen(null, self::utf8($text));
    }

    /**
     * Fecha a conexão, como FechaConexaoImpressora; não é protegida: o log a registra também quando
     * nada está aberto.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: nenhum.
     *
     * @param mixed $handle ignorado.
     * @return int 0, um código, ou, na USB, um número positivo de erro do sistema.
     */
    public static function PrtPortClose($handle): int
    {
        return self::biblioteca()->PrtPortClose(null);
    }

    /**
     * Reinicia a impressora, como InicializaImpressora. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC @.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrtPrinterInitialize($handle): int
    {
        return self::biblioteca()->PrtPrinterInitialize(null);
    }

    /**
     * Imprime um texto; é PrintText com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
     *
     * ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
     *
     * @param mixed $handle ignorado.
     * @param string|null $text o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
     * @param int $alignment alinhamento, um valor de Q7Alignment; 0 deixa como está.
     * @param int $style soma de valores de Q7Style, de 0 a 15.
     * @param int $size tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
     * @return int a quantidade de bytes do texto enviados, ou um código.
     */
    public static function PrtPrintText($handle, ?string $text, int $alignment, int $style, int $size): int
    {
        return self::biblioteca()->PrtPrintText(null, self::utf8($text), $alignment, $style, $size);
    }

    /**
     * Define o alinhamento ao centro ou à direita; é SetAlign com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
     *
     * ESC/POS: ESC a n.
     *
     * @param mixed $handle ignorado.
     * @param int $alignment Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT; com Q7_ALIGN_LEFT nada é enviado.
     * @return int 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
     */
    public static function PrtSetTextPosition($handle, int $alignment): int
    {
        return self::biblioteca()->PrtSetTextPosition(null, $alignment);
    }

    /**
     * Liga ou desliga o negrito; é SetTextBold com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * ESC/POS: ESC E n.
     *
     * @param mixed $handle ignorado.
     * @param int $on 1 liga, 0 desliga.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function PrtSetTextBold($handle, int $on): int
    {
        return self::biblioteca()->PrtSetTextBold(null, $on);
    }

    /**
     * Escolhe a fonte; é SetTextFont com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * ESC/POS: ESC ! n.
     *
     * @param mixed $handle ignorado.
     * @param int $font um valor de Q7Font.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function PrtSetTextFont($handle, int $font): int
    {
        return self::biblioteca()->PrtSetTextFont(null, $font);
    }

    /**
     * Imprime um código de barras; é PrintBarCode com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
     * Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS h, GS w, GS H, GS k m n (função B).
     *
     * @param mixed $handle ignorado.
     * @param int $type um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
     * @param string|null $data o conteúdo, como em ImpressaoCodigoBarras.
     * @param int $width largura do módulo em pontos, de 1 a 6.
     * @param int $height altura em pontos, de 1 a 255.
     * @param int $hri posição do texto do código, um valor de Q7Hri.
     * @return int 0 ou um código.
     */
    public static function PrtPrintBarCode($handle, int $type, ?string $data, int $width, int $height, int $hri): int
    {
        return self::biblioteca()->PrtPrintBarCode(null, $type, self::utf8($data), $width, $height, $hri);
    }

    /**
     * Imprime um QR Code; é PrintSymbol com outro nome.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
     * Q7_ERR_FAILED.
     *
     * Efeito: na hora, com o alinhamento em vigor.
     *
     * ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
     *
     * @param mixed $handle ignorado.
     * @param int $type ignorado.
     * @param string|null $data o conteúdo, como em ImpressaoQRCode.
     * @param int $errorLevel nível de correção, um valor de Q7QrLevel.
     * @param int $size tamanho do módulo em pontos, de 1 a 6.
     * @return int 0 ou um código.
     */
    public static function PrtPrintSymbol($handle, int $type, ?string $data, int $errorLevel, int $size): int
    {
        return self::biblioteca()->PrtPrintSymbol(null, $type, self::utf8($data), $errorLevel, $size);
    }

    /**
     * Avança o papel; é FeedLine com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: LF.
     *
     * @param mixed $handle ignorado.
     * @param int $lines linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
     * @return int 0 ou um código.
     */
    public static function PrtFeedLine($handle, int $lines): int
    {
        return self::biblioteca()->PrtFeedLine(null, $lines);
    }

    /**
     * Avança o papel e corta, como Corte. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: LF, GS V 0.
     *
     * @param mixed $handle ignorado.
     * @param int $lines linhas a avançar antes; 0 ou menos não avança.
     * @return int 0 ou um código.
     */
    public static function PrtCutPaper($handle, int $lines): int
    {
        return self::biblioteca()->PrtCutPaper(null, $lines);
    }

    /**
     * Abre a gaveta; é OpenDrawer com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC p m t1 t2.
     *
     * @param mixed $handle ignorado.
     * @param int $pin saída da impressora, 0 ou 1.
     * @param int $onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param int $offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return int 0 ou um código.
     */
    public static function PrtOpenDrawer($handle, int $pin, int $onTime, int $offTime): int
    {
        return self::biblioteca()->PrtOpenDrawer(null, $pin, $onTime, $offTime);
    }

    /**
     * Pergunta o estado da impressora; é GetPrinterState com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS a 0, DLE EOT n.
     *
     * @param mixed $handle ignorado.
     * @param int|null $state recebe um valor de Q7PrinterState; pode ser nulo.
     * @return int 0 ou um código.
     */
    public static function PrtCheckPrinterState($handle, ?int &$state): int
    {
        $_state = FFI::new('int');
        $_state->cdata = $state ?? -1;
        $resultado = self::biblioteca()->PrtCheckPrinterState(null, FFI::addr($_state));
        $state = $_state->cdata;
        return $resultado;
    }

    /**
     * Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: GS a 0, DLE EOT 1.
     *
     * @param mixed $handle ignorado.
     * @param int|null $state recebe 1 ou 0; pode ser nulo.
     * @param int $polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível
     * alto.
     * @return int 0, também quando state fica como estava, ou um código.
     */
    public static function PrtGetDrawerState($handle, ?int &$state, int $polarity): int
    {
        $_state = FFI::new('int');
        $_state->cdata = $state ?? -1;
        $resultado = self::biblioteca()->PrtGetDrawerState(null, FFI::addr($_state), $polarity);
        $state = $_state->cdata;
        return $resultado;
    }

    /**
     * Entra no modo página; é SelectPageMode com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC L.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrtSelectPageMode($handle): int
    {
        return self::biblioteca()->PrtSelectPageMode(null);
    }

    /**
     * Volta ao modo padrão; uma página não impressa se perde. Protegida; o log não traz o nome
     * dela.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC S.
     *
     * @param mixed $handle ignorado.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function PrtSelectStandardMode($handle): int
    {
        return self::biblioteca()->PrtSelectStandardMode(null);
    }

    /**
     * Define a direção de impressão no modo página; é SelectPrintDirectionInPageMode com outro
     * nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: ESC T n.
     *
     * @param mixed $handle ignorado.
     * @param int $direction um valor de Q7Direction.
     * @return int 0 ou um código.
     */
    public static function PrtSelectPrintDirectionInPageMode($handle, int $direction): int
    {
        return self::biblioteca()->PrtSelectPrintDirectionInPageMode(null, $direction);
    }

    /**
     * Define a área de impressão no modo página; é SetPrintAreaInPageMode com outro nome.
     * Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: ESC W.
     *
     * @param mixed $handle ignorado.
     * @param int $x canto esquerdo em pontos, de 0 a 65535.
     * @param int $y canto superior em pontos, de 0 a 65535.
     * @param int $width largura em pontos, de 0 a 65535.
     * @param int $height altura em pontos, de 0 a 65535.
     * @return int 0 ou um código.
     */
    public static function PrtSetPrintAreaInPageMode($handle, int $x, int $y, int $width, int $height): int
    {
        return self::biblioteca()->PrtSetPrintAreaInPageMode(null, $x, $y, $width, $height);
    }

    /**
     * Define a posição vertical absoluta; é SetAbsoluteVerticalPrintPositionInPageMode com outro
     * nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: no que vier a seguir na página.
     *
     * ESC/POS: GS $.
     *
     * @param mixed $handle ignorado.
     * @param int $position pontos, de 0 a 65535.
     * @return int 0 ou um código.
     */
    public static function PrtSetAbsoluteVerticalPrintPositionInPageMode($handle, int $position): int
    {
        return self::biblioteca()->PrtSetAbsoluteVerticalPrintPositionInPageMode(null, $position);
    }

    /**
     * Imprime a página e continua no modo página; é PrintDataInPageMode com outro nome. Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC FF.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrtPrintDataInPageMode($handle): int
    {
        return self::biblioteca()->PrtPrintDataInPageMode(null);
    }

    /**
     * Envia um ESC sozinho, que não apaga a página: para isso chame CancelPrintDataInPageMode.
     * Protegida.
     *
     * A impressora toma o byte seguinte pelo resto de um comando.
     *
     * Códigos: Q7_ERR_NOT_OPEN.
     *
     * Efeito: na hora.
     *
     * ESC/POS: ESC.
     *
     * @param mixed $handle ignorado.
     * @return int 0, também quando nada foi enviado, ou um código.
     */
    public static function PrtCancelPrintDataInPageMode($handle): int
    {
        return self::biblioteca()->PrtCancelPrintDataInPageMode(null);
    }

    /**
     * Imprime a página e volta ao modo padrão; é SetPrintAndReturnStandardMode com outro nome.
     * Protegida.
     *
     * Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * Efeito: na hora.
     *
     * ESC/POS: FF.
     *
     * @param mixed $handle ignorado.
     * @return int 0 ou um código.
     */
    public static function PrtSetPrintAndReturnStandardMode($handle): int
    {
        return self::biblioteca()->PrtSetPrintAndReturnStandardMode(null);
    }

    private static function biblioteca(): FFI
    {
        if (self::$biblioteca === null) {
            $noWindows = PHP_OS_FAMILY === 'Windows';
            $declaracoes = '';
            foreach (self::DECLARACOES as [$tipo, $resto]) {
                $declaracoes .= $tipo . ($noWindows ? ' __stdcall ' : ' ') . $resto . ";\n";
            }
            $nome = $noWindows ? 'Q7_Impressora.dll' : 'libQ7_Impressora.so';
            self::$biblioteca = FFI::cdef($declaracoes, $nome);
        }
        return self::$biblioteca;
    }

    private static function utf8(?string $texto): ?string
    {
        if ($texto === null || preg_match('//u', $texto) === 1) {
            return $texto;
        }
        return iconv('WINDOWS-1252', 'UTF-8//IGNORE', $texto);
    }

    // O texto fica com quem chamou, que não o libera.
    private static function texto(?FFI\CData $texto): ?string
    {
        return $texto === null ? null : iconv('ISO-8859-1', 'UTF-8', FFI::string($texto));
    }
}
