// Gerado a partir de q7_impressora.h por scripts/declarations; não altere.
package q7;

import com.sun.jna.Function;
import com.sun.jna.Library;
import com.sun.jna.Native;
import com.sun.jna.Platform;
import com.sun.jna.Pointer;
import java.util.HashMap;
import java.util.Map;

/**
 * Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.
 *
 * <p>No Windows a biblioteca é de 32 bits: use uma máquina virtual Java de 32 bits. Os textos vão
 * para ela em UTF-8, e os que ela devolve são lidos sem ser liberados.
 */
public final class Q7Impressora {
    /** A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL. */
    public static final String Q7_VERSION_TEXT = "01.01.00";

    // Q7Result: Códigos de retorno.
    /** Sucesso. */
    public static final int Q7_OK = 0;
    /** Tipo de conexão desconhecido. */
    public static final int Q7_ERR_KIND = -2;
    /** Modelo desconhecido, ou a impressora é de outro modelo conhecido. */
    public static final int Q7_ERR_MODEL = -3;
    /** Nenhuma conexão aberta. */
    public static final int Q7_ERR_NOT_OPEN = -4;
    /** A impressora não informou um modelo conhecido. */
    public static final int Q7_ERR_UNKNOWN_PRINTER = -5;
    /** Conexão já aberta. */
    public static final int Q7_ERR_ALREADY_OPEN = -6;
    /** Velocidade serial não permitida. */
    public static final int Q7_ERR_SPEED = -11;
    /** Porta serial não encontrada. */
    public static final int Q7_ERR_SERIAL_NOT_FOUND = -12;
    /** Porta serial em uso ou sem permissão. */
    public static final int Q7_ERR_SERIAL_DENIED = -13;
    /** Porta serial falhou por motivo desconhecido. */
    public static final int Q7_ERR_SERIAL_UNKNOWN = -14;
    /** Impressora USB não encontrada. */
    public static final int Q7_ERR_USB_ABSENT = -21;
    /** A impressora USB não pôde ser aberta. */
    public static final int Q7_ERR_USB_OPEN = -22;
    /** Porta TCP fora da faixa. */
    public static final int Q7_ERR_TCP_PORT = -31;
    /** Alinhamento fora de 0 a 2. */
    public static final int Q7_ERR_ALIGNMENT = -41;
    /** Estilo, negrito ou fonte fora da faixa. */
    public static final int Q7_ERR_STYLE = -42;
    /** Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. */
    public static final int Q7_ERR_SIZE = -43;
    /** Nada foi enviado. */
    public static final int Q7_ERR_NOT_SENT = -44;
    /** Tamanho do módulo do QR Code fora de 1 a 6. */
    public static final int Q7_ERR_QR_SIZE = -51;
    /** Nível de correção do QR Code fora de 1 a 4. */
    public static final int Q7_ERR_QR_LEVEL = -52;
    /** Conteúdo do QR Code vazio. */
    public static final int Q7_ERR_QR_EMPTY = -53;
    /** Altura do código de barras fora de 1 a 255. */
    public static final int Q7_ERR_BARCODE_HEIGHT = -61;
    /** Largura do módulo do código de barras fora de 1 a 6. */
    public static final int Q7_ERR_BARCODE_WIDTH = -62;
    /** Posição do texto do código de barras fora de 1 a 4. */
    public static final int Q7_ERR_BARCODE_HRI = -63;
    /** Tipo de código de barras fora de 0 a 8. */
    public static final int Q7_ERR_BARCODE_TYPE = -64;
    /** Dados inválidos para o tipo de código de barras. */
    public static final int Q7_ERR_BARCODE_DATA = -65;
    /** Documento ou esquema inválido. */
    public static final int Q7_ERR_XSD = -71;
    /** Arquivo de esquema ausente. */
    public static final int Q7_ERR_XSD_MISSING = -72;
    /** A impressora não respondeu. */
    public static final int Q7_ERR_NO_REPLY = -81;
    /** A assinatura não tem 344 caracteres. */
    public static final int Q7_ERR_SIGNATURE = -91;
    /** Versão do leiaute da NFC-e diferente de 4.00. */
    public static final int Q7_ERR_NFCE_VERSION = -101;
    /** Não é uma NFC-e, ou é uma sem o atributo versao. */
    public static final int Q7_ERR_NFCE_NO_VERSION = -102;
    /** Tipo de emissão (tpEmis) ausente ou 0. */
    public static final int Q7_ERR_NFCE_EMISSION = -103;
    /** Opções da NFC-e acima de 65535. */
    public static final int Q7_ERR_NFCE_OPTIONS = -104;
    /** NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. */
    public static final int Q7_ERR_NFCE_MODEL = -105;
    /** Nota sem QR Code. Só com o leiaute 6.0. */
    public static final int Q7_ERR_NFCE_QR = -106;
    /** Quantidade de sinais sonoros acima de 63. */
    public static final int Q7_ERR_BUZZER_COUNT = -111;
    /** Os dois tempos do sinal sonoro acima de 25. */
    public static final int Q7_ERR_BUZZER_TIME = -112;
    /** Pino da gaveta acima de 1. */
    public static final int Q7_ERR_DRAWER_PIN = -121;
    /** Um tempo da gaveta acima de 255. */
    public static final int Q7_ERR_DRAWER_TIME = -122;
    /** Estado não disponível nesta conexão. */
    public static final int Q7_ERR_STATUS_UNAVAILABLE = -126;
    /** Pergunta de estado fora de 1 a 5. */
    public static final int Q7_ERR_STATUS_KIND = -127;
    /** A chave da imagem não são dois caracteres visíveis. */
    public static final int Q7_ERR_IMAGE_KEY = -131;
    /** Escala da imagem fora de 1 a 2. */
    public static final int Q7_ERR_IMAGE_SCALE = -132;
    /** Direção de impressão fora de 0 a 3. */
    public static final int Q7_ERR_DIRECTION = -136;
    /** Posição horizontal acima de 500. */
    public static final int Q7_ERR_POSITION = -137;
    /** Pergunta de identificação fora de 0 a 6. */
    public static final int Q7_ERR_ID_KIND = -402;
    /** Sem resultado: nada foi enviado, ou outra falha. */
    public static final int Q7_ERR_FAILED = -9999;

    // Q7NetError: Números positivos que AbreConexaoImpressora devolve quando a conexão TCP falha.
    /** conexão recusada: parece sucesso, veja as convenções. */
    public static final int Q7_NET_REFUSED = 0;
    /** fechada pelo outro lado. */
    public static final int Q7_NET_CLOSED = 1;
    /** nome ou endereço não encontrado. */
    public static final int Q7_NET_HOST_NOT_FOUND = 2;
    /** o sistema não permitiu. */
    public static final int Q7_NET_NOT_PERMITTED = 3;
    /** faltam recursos ao sistema. */
    public static final int Q7_NET_NO_RESOURCES = 4;
    /** sem resposta em 2000 ms. */
    public static final int Q7_NET_TIMEOUT = 5;
    /** rede fora do alcance. */
    public static final int Q7_NET_UNREACHABLE = 7;

    // Q7Connection: Tipos de conexão.
    /** USB. */
    public static final int Q7_CONNECTION_USB = 1;
    /** porta serial (COM). */
    public static final int Q7_CONNECTION_SERIAL = 2;
    /** rede (TCP). */
    public static final int Q7_CONNECTION_TCP = 3;

    // Q7Alignment: Alinhamentos.
    /** à esquerda; em ImpressaoTexto: deixa o alinhamento como está. */
    public static final int Q7_ALIGN_LEFT = 0;
    /** centralizado. */
    public static final int Q7_ALIGN_CENTER = 1;
    /** à direita. */
    public static final int Q7_ALIGN_RIGHT = 2;

    // Q7Style: Estilos de texto, que se somam.
    /** nenhum. */
    public static final int Q7_STYLE_NORMAL = 0;
    /** fonte pequena; com Q7_STYLE_UNDERLINE, perde-se. */
    public static final int Q7_STYLE_SMALL = 1;
    /** sublinhado. */
    public static final int Q7_STYLE_UNDERLINE = 2;
    /** branco sobre preto. */
    public static final int Q7_STYLE_REVERSE = 4;
    /** negrito. */
    public static final int Q7_STYLE_BOLD = 8;

    // Q7Size: Tamanhos de caractere: (fator de largura - 1) * 16 + (fator de altura - 1), de 0 a
    // 119.
    /** deixa o tamanho como está. */
    public static final int Q7_SIZE_NORMAL = 0;
    /** altura dupla. */
    public static final int Q7_SIZE_DOUBLE_HEIGHT = 1;
    /** largura dupla. */
    public static final int Q7_SIZE_DOUBLE_WIDTH = 16;
    /** largura e altura duplas. */
    public static final int Q7_SIZE_DOUBLE = 17;
    /** largura e altura triplas. */
    public static final int Q7_SIZE_TRIPLE = 34;
    /** largura e altura óctuplas. */
    public static final int Q7_SIZE_LARGEST = 119;

    // Q7Font: Fontes de SetTextFont.
    /** fonte normal. */
    public static final int Q7_FONT_NORMAL = 0;
    /** fonte pequena. */
    public static final int Q7_FONT_SMALL = 1;

    // Q7Barcode: Códigos de barras.
    /** UPC-A. */
    public static final int Q7_BARCODE_UPC_A = 0;
    /** UPC-E. */
    public static final int Q7_BARCODE_UPC_E = 1;
    /** EAN-13. */
    public static final int Q7_BARCODE_EAN13 = 2;
    /** EAN-8. */
    public static final int Q7_BARCODE_EAN8 = 3;
    /** CODE39. */
    public static final int Q7_BARCODE_CODE39 = 4;
    /** ITF (2 de 5 intercalado). */
    public static final int Q7_BARCODE_ITF = 5;
    /** CODABAR. */
    public static final int Q7_BARCODE_CODABAR = 6;
    /** CODE93. */
    public static final int Q7_BARCODE_CODE93 = 7;
    /** CODE128. */
    public static final int Q7_BARCODE_CODE128 = 8;

    // Q7Hri: Posições do texto de um código de barras.
    /** acima. */
    public static final int Q7_HRI_ABOVE = 1;
    /** abaixo. */
    public static final int Q7_HRI_BELOW = 2;
    /** acima e abaixo. */
    public static final int Q7_HRI_BOTH = 3;
    /** enviado como está: a impressora decide. */
    public static final int Q7_HRI_OTHER = 4;

    // Q7QrLevel: Níveis de correção de erros do QR Code.
    /** nível L, cerca de 7%. */
    public static final int Q7_QR_LEVEL_L = 1;
    /** nível M, cerca de 15%. */
    public static final int Q7_QR_LEVEL_M = 2;
    /** nível Q, cerca de 25%. */
    public static final int Q7_QR_LEVEL_Q = 3;
    /** nível H, cerca de 30%. */
    public static final int Q7_QR_LEVEL_H = 4;

    // Q7ImageScale: Escalas das imagens gravadas na impressora.
    /** como gravada. */
    public static final int Q7_IMAGE_NORMAL = 1;
    /** largura e altura duplas. */
    public static final int Q7_IMAGE_DOUBLE = 2;

    // Q7Status: O que StatusImpressora pergunta.
    /** sinal da gaveta; não por TCP. */
    public static final int Q7_STATUS_DRAWER = 1;
    /** tampa. */
    public static final int Q7_STATUS_COVER = 2;
    /** papel. */
    public static final int Q7_STATUS_PAPER = 3;
    /** sensor de papel; só por TCP. */
    public static final int Q7_STATUS_SENSOR = 4;
    /** todos os que a conexão tem, numa soma de Q7StateBit. */
    public static final int Q7_STATUS_ALL = 5;

    // Q7State: O que StatusImpressora responde às perguntas de 1 a 4.
    /** sinal da gaveta em nível baixo. */
    public static final int Q7_STATE_DRAWER_LOW = 1;
    /** sinal da gaveta em nível alto. */
    public static final int Q7_STATE_DRAWER_HIGH = 2;
    /** tampa aberta. */
    public static final int Q7_STATE_COVER_OPEN = 3;
    /** tampa fechada. */
    public static final int Q7_STATE_COVER_CLOSED = 4;
    /** há papel. */
    public static final int Q7_STATE_PAPER_PRESENT = 5;
    /** papel perto do fim. */
    public static final int Q7_STATE_PAPER_NEAR_END = 6;
    /** sem papel. */
    public static final int Q7_STATE_PAPER_OUT = 7;
    /** sensor sem sinal. */
    public static final int Q7_STATE_SENSOR_CLEAR = 8;
    /** sensor com sinal. */
    public static final int Q7_STATE_SENSOR_SIGNALLED = 9;

    // Q7StateBit: De que se soma a resposta de StatusImpressora a Q7_STATUS_ALL; 0 é a impressora
    // pronta.
    /** sinal da gaveta em nível baixo. */
    public static final int Q7_STATE_BIT_DRAWER_LOW = 1;
    /** tampa aberta. */
    public static final int Q7_STATE_BIT_COVER_OPEN = 2;
    /** papel perto do fim, ou no fim. */
    public static final int Q7_STATE_BIT_PAPER_NEAR_END = 4;
    /** sem papel; vem com o anterior. */
    public static final int Q7_STATE_BIT_PAPER_OUT = 8;
    /** sensor com sinal. */
    public static final int Q7_STATE_BIT_SENSOR_SIGNALLED = 16;

    // Q7PrinterState: O que GetPrinterState escreve.
    /** pronta. */
    public static final int Q7_PRINTER_READY = 0;
    /** sem papel. */
    public static final int Q7_PRINTER_PAPER_OUT = 1;
    /** tampa aberta. */
    public static final int Q7_PRINTER_COVER_OPEN = 2;
    /** papel perto do fim. */
    public static final int Q7_PRINTER_PAPER_NEAR_END = 4;
    /** tampa aberta e sem papel. */
    public static final int Q7_PRINTER_COVER_OPEN_PAPER_OUT = 5;
    /** tampa aberta e papel perto do fim. */
    public static final int Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END = 6;

    // Q7Identification: O que IdImpressora pergunta.
    /** número do modelo. */
    public static final int Q7_ID_MODEL_NUMBER = 0;
    /** número do tipo. */
    public static final int Q7_ID_TYPE_NUMBER = 1;
    /** versão do firmware. */
    public static final int Q7_ID_FIRMWARE = 2;
    /** fabricante. */
    public static final int Q7_ID_MAKER = 3;
    /** nome do modelo. */
    public static final int Q7_ID_MODEL = 4;
    /** número de série. */
    public static final int Q7_ID_SERIAL = 5;
    /** fontes. */
    public static final int Q7_ID_FONTS = 6;

    // Q7Direction: Direções de impressão no modo página.
    /** da esquerda para a direita. */
    public static final int Q7_DIRECTION_LEFT_TO_RIGHT = 0;
    /** de baixo para cima. */
    public static final int Q7_DIRECTION_BOTTOM_TO_TOP = 1;
    /** da direita para a esquerda. */
    public static final int Q7_DIRECTION_RIGHT_TO_LEFT = 2;
    /** de cima para baixo. */
    public static final int Q7_DIRECTION_TOP_TO_BOTTOM = 3;

    // Q7CfeOption: Opções do CF-e (ImprimeXMLSAT; a primeira também em ImprimeXMLCancelamentoSAT),
    // que se somam.
    /** cabeçalho ao lado da imagem "00" gravada na impressora. */
    public static final int Q7_CFE_LOGO = 1;
    /** sem os itens. */
    public static final int Q7_CFE_NO_ITEMS = 2;
    /** aviso de teste sob o título. */
    public static final int Q7_CFE_TEST = 4;

    // Q7NfceOption: Opções da NFC-e (ImprimeXMLNFCe), que se somam.
    /** sem os itens. */
    public static final int Q7_NFCE_NO_ITEMS = 1;
    /** coluna larga de código, com o GTIN. */
    public static final int Q7_NFCE_GTIN = 2;
    /** cabeçalho ao lado da imagem "00" gravada na impressora. */
    public static final int Q7_NFCE_LOGO = 8;
    /** aviso de ambiente de homologação; o leiaute 6.0 segue o tpAmb. */
    public static final int Q7_NFCE_TEST = 16;
    /** linhas separadoras entre as divisões. */
    public static final int Q7_NFCE_SEPARATORS = 64;
    /** inscrição estadual do emitente no cabeçalho. */
    public static final int Q7_NFCE_ISSUER_IE = 128;
    /** número de cada item. */
    public static final int Q7_NFCE_ITEM_NUMBERS = 256;
    /** uma nota em contingência sai numa só via. */
    public static final int Q7_NFCE_ONE_COPY = 512;

    // Q7Limit: Limites.
    /** bytes que comportam qualquer resposta de DirectIO. */
    public static final int Q7_LONGEST_REPLY = 65536;

    private static final Biblioteca BIBLIOTECA = carregada();

    private Q7Impressora() {
    }

    /** Diz o que um código de retorno significa e o que fazer. */
    public static String mensagem(int codigo) {
        switch (codigo) {
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

    /**
     * Abre a conexão com a impressora.
     *
     * <p>Modelos e suas colunas por linha, na fonte normal e na pequena: VANTA, VESPA, VOLTA,
     * PINTA, SALVI e DUNEL 48 e 64; ORLA-K e SORBE 42 e 56; RANZA, RANZAPRO e TESMO não têm largura
     * definida.
     *
     * <p>Impressoras seriais e TCP são perguntadas pelo nome do modelo (GS I 67; TESMO: ~HI) e têm
     * 750 ms para responder; a conexão TCP é esperada por até 2000 ms. Uma conexão TCP recusada
     * devolve Q7_OK, veja as convenções.
     *
     * <p>Uma conexão que já está aberta é abandonada, não fechada: chame FechaConexaoImpressora
     * antes.
     *
     * <p>Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
     * Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
     * Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS I 67, por serial e TCP.
     *
     * @param tipo tipo de conexão, um valor de Q7Connection.
     * @param modelo nome do modelo, em maiúsculas ou minúsculas. Enquanto o último resultado é 0
     * (depois da carga, de abrir ou de fechar) qualquer outro nome também passa e deixa o modelo
     * como estava.
     * @param conexao porta serial ("COM3"; no Linux "ttyUSB0" ou um caminho), nome ou endereço TCP;
     * ignorado na USB.
     * @param parametro bits por segundo (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou
     * 115200) ou porta TCP, de 0 a 65535 (9100 é usual); ignorado na USB.
     * @return 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
     */
    public static int AbreConexaoImpressora(int tipo, String modelo, String conexao, int parametro) {
        return BIBLIOTECA.AbreConexaoImpressora(tipo, modelo, conexao, parametro);
    }

    /**
     * Fecha a conexão depois que o que foi aceito foi entregue.
     *
     * <p>Desiste depois de 5 s em que nada anda; o que falta então se perde, e o log diz isso.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: nenhum.
     *
     * @return 0, um código, ou, na USB, um número positivo de erro do sistema.
     */
    public static int FechaConexaoImpressora() {
        return BIBLIOTECA.FechaConexaoImpressora();
    }

    /**
     * Diz a versão da biblioteca.
     *
     * <p>Efeito: nenhum; não precisa de conexão.
     *
     * <p>ESC/POS: nenhum.
     *
     * @return o texto "01.01.00", em memória nova que fica com quem chamou.
     */
    public static String GetVersaoDLL() {
        return texto(BIBLIOTECA.GetVersaoDLL());
    }

    /**
     * Imprime um texto.
     *
     * <p>Se nenhum espaçamento foi guardado (EspacamentoEntreLinhas) e ModoPagina não foi chamada,
     * a impressora é reiniciada antes: alinhamento, estilo e tamanho começam de novo, e uma linha
     * ainda sem "\n" se perde.
     *
     * <p>Por TCP e serial a contagem tem 16 bits e dá a volta em textos de 32768 bytes ou mais:
     * 40000 bytes devolvem Q7_ERR_NOT_SENT embora saiam. Imprima textos assim em partes.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
     *
     * <p>ESC/POS: ESC &#64; ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
     *
     * @param dados o texto, em UTF-8; os fins de linha ("\n") são de quem chama, nenhum é
     * acrescentado.
     * @param posicao alinhamento, um valor de Q7Alignment; 0 deixa como está.
     * @param stilo soma de valores de Q7Style, de 0 a 15. Um estilo vale até a impressora ser
     * reiniciada.
     * @param tamanho tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
     * @return a quantidade de bytes do texto enviados, ou um código.
     */
    public static int ImpressaoTexto(String dados, int posicao, int stilo, int tamanho) {
        return BIBLIOTECA.ImpressaoTexto(dados, posicao, stilo, tamanho);
    }

    /**
     * Guarda o espaçamento entre linhas dos textos que seguem.
     *
     * <p>Depois dela os textos não reiniciam mais a impressora, nem em outra conexão. É a mesma
     * função que SetTextLineSpace.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.
     *
     * <p>Efeito: no próximo ImpressaoTexto; a própria função não envia nada.
     *
     * <p>ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.
     *
     * @param espacamento espaçamento em pontos, de 1 a 255.
     * @return 0 ou um código.
     */
    public static int EspacamentoEntreLinhas(int espacamento) {
        return BIBLIOTECA.EspacamentoEntreLinhas(espacamento);
    }

    /**
     * Define o alinhamento.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir; o próximo ImpressaoTexto o desfaz se reiniciar a impressora.
     *
     * <p>ESC/POS: ESC a n.
     *
     * @param posicao um valor de Q7Alignment; de valores negativos vai o byte baixo.
     * @return 0 ou um código.
     */
    public static int DefinePosicao(int posicao) {
        return BIBLIOTECA.DefinePosicao(posicao);
    }

    /**
     * Reinicia a impressora, que volta às definições de quando é ligada.
     *
     * <p>Uma linha ainda não impressa se perde.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC &#64;.
     *
     * @return 0 ou um código.
     */
    public static int InicializaImpressora() {
        return BIBLIOTECA.InicializaImpressora();
    }

    /**
     * Imprime um QR Code.
     *
     * <p>A SORBE aceita também níveis acima de 4.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY,
     * Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
     *
     * @param dados o conteúdo. ASCII é seguro; em outros textos o comprimento anunciado à
     * impressora conta caracteres, não bytes.
     * @param tamanho tamanho do módulo em pontos, de 1 a 6.
     * @param nivelCorrecao nível de correção, um valor de Q7QrLevel.
     * @return 0 ou um código.
     */
    public static int ImpressaoQRCode(String dados, int tamanho, int nivelCorrecao) {
        return BIBLIOTECA.ImpressaoQRCode(dados, tamanho, nivelCorrecao);
    }

    /**
     * Imprime um código de barras.
     *
     * <p>O que cada tipo aceita: UPC-A 11 ou 12 dígitos; UPC-E 11 ou 12, o primeiro "0"; EAN-13 12
     * ou 13; EAN-8 7 ou 8; CODE39 de 1 a 255 dígitos, letras maiúsculas e " $%*+-./"; ITF dígitos
     * em quantidade par; CODABAR dígitos e "$+-./:" entre um início e um fim, cada um de A a D ou a
     * a d; CODE93 de 1 a 255 caracteres ASCII; CODE128 texto ASCII atrás de um seletor de
     * subconjunto "{A", "{B" ou "{C", e "{C" seguido de pares de dígitos. A SORBE não precisa do
     * seletor e o descarta.
     *
     * <p>A DUNEL não imprime o texto do código; a SORBE mantém a definição própria.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT,
     * Q7_ERR_BARCODE_WIDTH, Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT,
     * Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS h, GS w, GS H, GS k m n (função B).
     *
     * @param tipo um valor de Q7Barcode.
     * @param dados o conteúdo, como acima.
     * @param altura altura em pontos, de 1 a 255.
     * @param largura largura do módulo em pontos, de 1 a 6.
     * @param HRI posição do texto do código, um valor de Q7Hri.
     * @return 0 ou um código.
     */
    public static int ImpressaoCodigoBarras(int tipo, String dados, int altura, int largura, int HRI) {
        return BIBLIOTECA.ImpressaoCodigoBarras(tipo, dados, altura, largura, HRI);
    }

    /**
     * Imprime uma imagem que a ferramenta do fabricante gravou na memória da impressora.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS ( L, função 69.
     *
     * @param chave os dois caracteres da chave da imagem, cada um de 0x20 a 0x7E.
     * @param escala um valor de Q7ImageScale.
     * @return 0 ou um código.
     */
    public static int ImprimeImagemMemoria(String chave, int escala) {
        return BIBLIOTECA.ImprimeImagemMemoria(chave, escala);
    }

    /**
     * Avança o papel e corta.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: LF, GS V 0.
     *
     * @param avanco linhas a avançar antes; 0 ou menos não avança.
     * @return 0 ou um código.
     */
    public static int Corte(int avanco) {
        return BIBLIOTECA.Corte(avanco);
    }

    /**
     * Avança o papel.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: LF.
     *
     * @param linhas linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
     * @return 0 ou um código.
     */
    public static int AvancaPapel(int linhas) {
        return BIBLIOTECA.AvancaPapel(linhas);
    }

    /**
     * Abre a gaveta.
     *
     * <p>Um tempo 0 encurta o comando, e a impressora toma o que vem depois pelos tempos que
     * faltam: passe de 1 a 255.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC p m t1 t2.
     *
     * @param pino saída da impressora, 0 ou 1.
     * @param ti tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param tf tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return 0 ou um código.
     */
    public static int AbreGaveta(int pino, int ti, int tf) {
        return BIBLIOTECA.AbreGaveta(pino, ti, tf);
    }

    /**
     * Abre a gaveta pela saída 0 com os dois tempos em 200 ms.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC p 48 100 100.
     *
     * @return 0 ou um código.
     */
    public static int AbreGavetaTavlo() {
        return BIBLIOTECA.AbreGavetaTavlo();
    }

    /**
     * Dá sinais sonoros.
     *
     * <p>Só um dos dois tempos pode passar de 25.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BUZZER_COUNT, Q7_ERR_BUZZER_TIME, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS ( A, função 97.
     *
     * @param qtd quantidade de sinais, de 0 a 63.
     * @param tempoInicio duração de cada sinal, em unidades de 100 ms.
     * @param tempoFim pausa depois de cada sinal, em unidades de 100 ms.
     * @return 0 ou um código.
     */
    public static int SinalSonoro(int qtd, int tempoInicio, int tempoFim) {
        return BIBLIOTECA.SinalSonoro(qtd, tempoInicio, tempoFim);
    }

    /**
     * Pergunta o estado da impressora.
     *
     * <p>Espera no máximo 1500 ms pela resposta e outro tanto pelo fim dela, a cada pergunta;
     * Q7_STATUS_ALL faz até três.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_STATUS_UNAVAILABLE, Q7_ERR_STATUS_KIND,
     * Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS a 0, DLE EOT n.
     *
     * @param param a pergunta, um valor de Q7Status.
     * @return para as perguntas de 1 a 4 um valor de Q7State; para Q7_STATUS_ALL a soma de valores
     * de Q7StateBit; ou um código.
     */
    public static int StatusImpressora(int param) {
        return BIBLIOTECA.StatusImpressora(param);
    }

    /**
     * Envia bytes como estão e lê uma resposta.
     *
     * <p>Espera no máximo 1500 ms pelo começo da resposta e 500 ms pelo fim. O log não traz o nome
     * da função; traz os bytes enviados.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: o que comando contém.
     *
     * @param comando os bytes; nulo não envia nada.
     * @param tamanho quantidade de bytes; abaixo de 1 não envia nada.
     * @param resposta memória para a resposta, que precisa ser grande o bastante, diga
     * tamanhoResposta o que disser: 1024 bytes comportam qualquer resposta por USB; por serial e
     * TCP vem antes o que a impressora enviou e ninguém leu, e Q7_LONGEST_REPLY bytes comportam
     * tudo.
     * @param tamanhoResposta vetor de um elemento: na entrada, 0 se nenhuma resposta é pedida; na
     * saída, a quantidade de bytes copiados.
     * @return 0 ou um código; Q7_ERR_FAILED quando nenhuma resposta foi pedida, também com resposta
     * ou tamanhoResposta nulos, embora os bytes tenham sido enviados.
     */
    public static int DirectIO(byte[] comando, int tamanho, byte[] resposta, int[] tamanhoResposta) {
        return BIBLIOTECA.DirectIO(comando, tamanho, resposta, tamanhoResposta);
    }

    /**
     * Pergunta à impressora quem ela é.
     *
     * <p>Com 0 e 1 vai um algarismo atrás do comando, que as impressoras tomam por texto: ele
     * aparece na frente da próxima linha impressa.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_ID_KIND.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS I n.
     *
     * @param tipo a pergunta, um valor de Q7Identification.
     * @return a resposta, em Latin-1, até o primeiro byte que não era UTF-8, ou um código em
     * decimal ("-4", "-81", "-402"), em memória nova que fica com quem chamou.
     */
    public static String IdImpressora(int tipo) {
        return texto(BIBLIOTECA.IdImpressora(tipo));
    }

    /**
     * Entra no modo página.
     *
     * <p>Daí em diante os textos não reiniciam mais a impressora, nem depois de ModoPadrao.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC L.
     *
     * @return 0 ou um código.
     */
    public static int ModoPagina() {
        return BIBLIOTECA.ModoPagina();
    }

    /**
     * Define a direção de impressão no modo página.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: ESC T n.
     *
     * @param direcao um valor de Q7Direction.
     * @return 0 ou um código.
     */
    public static int DirecaoImpressao(int direcao) {
        return BIBLIOTECA.DirecaoImpressao(direcao);
    }

    /**
     * Define a área de impressão no modo página.
     *
     * <p>De valores fora da faixa os dois bytes enviados não significam nada.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: ESC W.
     *
     * @param x canto esquerdo em pontos, de 0 a 65535.
     * @param y canto superior em pontos, de 0 a 65535.
     * @param largura largura em pontos, de 0 a 65535.
     * @param altura altura em pontos, de 0 a 65535.
     * @return 0 ou um código.
     */
    public static int DefineAreaImpressao(int x, int y, int largura, int altura) {
        return BIBLIOTECA.DefineAreaImpressao(x, y, largura, altura);
    }

    /**
     * Define a posição horizontal absoluta.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir.
     *
     * <p>ESC/POS: ESC $.
     *
     * @param posicao pontos, de 0 a 500; valores negativos passam, mas os dois bytes enviados não
     * significam nada.
     * @return 0 ou um código.
     */
    public static int PosicaoImpressaoHorizontal(int posicao) {
        return BIBLIOTECA.PosicaoImpressaoHorizontal(posicao);
    }

    /**
     * Define a posição vertical absoluta no modo página.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: GS $.
     *
     * @param posicao pontos, de 0 a 65535; de valores fora da faixa os dois bytes enviados não
     * significam nada.
     * @return 0 ou um código.
     */
    public static int PosicaoImpressaoVertical(int posicao) {
        return BIBLIOTECA.PosicaoImpressaoVertical(posicao);
    }

    /**
     * Imprime a página e continua no modo página.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC FF.
     *
     * @return 0 ou um código.
     */
    public static int ImprimeModoPagina() {
        return BIBLIOTECA.ImprimeModoPagina();
    }

    /**
     * Apaga a página sem a imprimir.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: CAN.
     *
     * @return 0 ou um código.
     */
    public static int LimpaBufferModoPagina() {
        return BIBLIOTECA.LimpaBufferModoPagina();
    }

    /**
     * Imprime a página e volta ao modo padrão.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: FF.
     *
     * @return 0 ou um código.
     */
    public static int ImprimeMPeRetornaPadrao() {
        return BIBLIOTECA.ImprimeMPeRetornaPadrao();
    }

    /**
     * Volta ao modo padrão; uma página não impressa se perde.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC S.
     *
     * @return 0 ou um código.
     */
    public static int ModoPadrao() {
        return BIBLIOTECA.ModoPadrao();
    }

    /**
     * Imprime o extrato de uma venda CF-e do SAT; não corta.
     *
     * <p>De um documento que não pode ser lido saem só os rótulos, e o resultado é 0.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: os das funções de texto, código de barras e QR Code.
     *
     * @param dados o texto do XML autorizado (raiz CFe), não o nome de um arquivo.
     * @param param soma de valores de Q7CfeOption.
     * @return 0 ou um código.
     */
    public static int ImprimeXMLSAT(String dados, int param) {
        return BIBLIOTECA.ImprimeXMLSAT(dados, param);
    }

    /**
     * Imprime o extrato do cancelamento de um CF-e do SAT; não corta.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIGNATURE, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: os das funções de texto, código de barras e QR Code.
     *
     * @param dados o texto do XML do cancelamento (raiz CFeCanc), não o nome de um arquivo.
     * @param assinaturaQRCODE a assinatura da venda cancelada (o elemento desse nome no XML dela),
     * de 344 caracteres.
     * @param param 0 ou Q7_CFE_LOGO.
     * @return 0 ou um código; Q7_ERR_FAILED quando o documento não é um cancelamento.
     */
    public static int ImprimeXMLCancelamentoSAT(String dados, String assinaturaQRCODE, int param) {
        return BIBLIOTECA.ImprimeXMLCancelamentoSAT(dados, assinaturaQRCODE, param);
    }

    /**
     * Imprime o DANFE de uma NFC-e; não corta no fim.
     *
     * <p>Uma nota em contingência sai em duas vias, com um corte entre elas.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NFCE_OPTIONS, Q7_ERR_NFCE_NO_VERSION,
     * Q7_ERR_NFCE_VERSION, Q7_ERR_NFCE_EMISSION, Q7_ERR_NFCE_MODEL, Q7_ERR_NFCE_QR.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: os das funções de texto, de QR Code e do modo página.
     *
     * @param dados o texto do XML (raiz nfeProc ou NFe), versão 4.00, com a urlChave; não o nome de
     * um arquivo.
     * @param indexcsc o identificador do CSC do contribuinte, usado se a nota não tem qrCode.
     * @param csc o CSC do contribuinte, usado se a nota não tem qrCode.
     * @param param soma de valores de Q7NfceOption, no máximo 65535.
     * @return 0 ou um código.
     */
    public static int ImprimeXMLNFCe(String dados, int indexcsc, String csc, int param) {
        return BIBLIOTECA.ImprimeXMLNFCe(dados, indexcsc, csc, param);
    }

    /**
     * Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem.
     *
     * <p>Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @param model nome do modelo, como em AbreConexaoImpressora.
     * @return 0.
     */
    public static int PrinterCreator(Pointer handle, String model) {
        return BIBLIOTECA.PrinterCreator(handle, model);
    }

    /**
     * Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem, como PrinterCreator, sem
     * resultado.
     *
     * <p>Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @param model nome do modelo, como em AbreConexaoImpressora.
     */
    public static void PrinterCreatorS(Pointer handle, String model) {
        BIBLIOTECA.PrinterCreatorS(handle, model);
    }

    /**
     * Não libera nada: a porta continua aberta. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: nenhum.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrinterDestroy(Pointer handle) {
        return BIBLIOTECA.PrinterDestroy(handle);
    }

    /**
     * Abre a conexão com o modelo de PrinterCreator, como AbreConexaoImpressora.
     *
     * <p>O texto é feito de campos separados por "," ou "_", que por isso não podem aparecer em
     * nomes nem em caminhos. O primeiro campo contém, em maiúsculas ou minúsculas, uma das palavras
     *
     * <p>- "COM": ele mesmo é a porta serial e o segundo são os bits por segundo: "COM3,9600";
     *
     * <p>- "NET": o segundo é o nome ou endereço e o terceiro a porta TCP, 9100 se falta ou está
     * vazio: "NET,192.168.0.10,9100";
     *
     * <p>- "USB": não precisa de outros campos.
     *
     * <p>Qualquer outro texto ("COM3" ou "NET" sozinhos também) devolve Q7_ERR_KIND, e a velocidade
     * que falta, Q7_ERR_SPEED.
     *
     * <p>Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
     * Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
     * Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS I 67, por serial e TCP.
     *
     * @param handle ignorado.
     * @param text a porta, como acima.
     * @return 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
     */
    public static int PortOpen(Pointer handle, String text) {
        return BIBLIOTECA.PortOpen(handle, text);
    }

    /**
     * Fecha a conexão, como FechaConexaoImpressora. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @return 0, um código, ou, na USB, um número positivo de erro do sistema.
     */
    public static int PortClose(Pointer handle) {
        return BIBLIOTECA.PortClose(handle);
    }

    /**
     * Reinicia a impressora, como InicializaImpressora. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC &#64;.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrinterInitialize(Pointer handle) {
        return BIBLIOTECA.PrinterInitialize(handle);
    }

    /**
     * Imprime um texto, como ImpressaoTexto. Protegida; o log traz os dois nomes.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
     *
     * <p>ESC/POS: ESC &#64; ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
     *
     * @param handle ignorado.
     * @param text o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
     * @param alignment alinhamento, um valor de Q7Alignment; 0 deixa como está.
     * @param style soma de valores de Q7Style, de 0 a 15.
     * @param size tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
     * @return a quantidade de bytes do texto enviados, ou um código.
     */
    public static int PrintText(Pointer handle, String text, int alignment, int style, int size) {
        return BIBLIOTECA.PrintText(handle, text, alignment, style, size);
    }

    /**
     * Envia os bytes de um texto como estão: sem conversão para Latin-1, sem escolher a tabela de
     * caracteres.
     *
     * <p>Protegida, mas o log a registra antes.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: nenhum além do texto.
     *
     * @param handle ignorado.
     * @param text o texto, que vai até o primeiro byte zero.
     * @return a quantidade de bytes enviados, ou um código; um texto vazio devolve Q7_ERR_NOT_SENT.
     */
    public static int PrintTextS(Pointer handle, String text) {
        return BIBLIOTECA.PrintTextS(handle, text);
    }

    /**
     * Define o alinhamento ao centro ou à direita. Protegida.
     *
     * <p>0, à esquerda, é aceito mas não envia nada: a impressora fica como está. Para voltar à
     * esquerda chame DefinePosicao com Q7_ALIGN_LEFT.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
     *
     * <p>ESC/POS: ESC a n.
     *
     * @param handle ignorado.
     * @param alignment Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.
     * @return 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
     */
    public static int SetAlign(Pointer handle, int alignment) {
        return BIBLIOTECA.SetAlign(handle, alignment);
    }

    /**
     * Liga ou desliga o negrito. Protegida, mas o log a registra antes.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * <p>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * <p>ESC/POS: ESC E n.
     *
     * @param handle ignorado.
     * @param on 1 liga, 0 desliga.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int SetTextBold(Pointer handle, int on) {
        return BIBLIOTECA.SetTextBold(handle, on);
    }

    /**
     * Escolhe a fonte e desliga o sublinhado, que o mesmo comando define. Protegida, mas o log a
     * registra antes.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * <p>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * <p>ESC/POS: ESC ! n.
     *
     * @param handle ignorado.
     * @param font um valor de Q7Font.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int SetTextFont(Pointer handle, int font) {
        return BIBLIOTECA.SetTextFont(handle, font);
    }

    /**
     * Guarda o espaçamento entre linhas: é a mesma função que EspacamentoEntreLinhas, e o log traz
     * o nome dela. Não tem identificador.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.
     *
     * <p>Efeito: no próximo ImpressaoTexto; a própria função não envia nada.
     *
     * <p>ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.
     *
     * @param spacing espaçamento em pontos, de 1 a 255.
     * @return 0 ou um código.
     */
    public static int SetTextLineSpace(int spacing) {
        return BIBLIOTECA.SetTextLineSpace(spacing);
    }

    /**
     * Imprime um código de barras, como ImpressaoCodigoBarras. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT,
     * Q7_ERR_BARCODE_WIDTH, Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT,
     * Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS h, GS w, GS H, GS k m n (função B).
     *
     * @param handle ignorado.
     * @param type um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
     * @param data o conteúdo, como em ImpressaoCodigoBarras.
     * @param width largura do módulo em pontos, de 1 a 6.
     * @param height altura em pontos, de 1 a 255.
     * @param hri posição do texto do código, um valor de Q7Hri.
     * @return 0 ou um código.
     */
    public static int PrintBarCode(Pointer handle, int type, String data, int width, int height, int hri) {
        return BIBLIOTECA.PrintBarCode(handle, type, data, width, height, hri);
    }

    /**
     * Imprime um QR Code, como ImpressaoQRCode.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY,
     * Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
     *
     * @param handle ignorado.
     * @param type ignorado.
     * @param data o conteúdo, como em ImpressaoQRCode.
     * @param errorLevel nível de correção, um valor de Q7QrLevel.
     * @param size tamanho do módulo em pontos, de 1 a 6.
     * @return 0 ou um código.
     */
    public static int PrintSymbol(Pointer handle, int type, String data, int errorLevel, int size) {
        return BIBLIOTECA.PrintSymbol(handle, type, data, errorLevel, size);
    }

    /**
     * Falha sempre e nunca imprime: para uma imagem gravada na impressora chame
     * ImprimeImagemMemoria.
     *
     * <p>Programas desta interface podem chamá-la; ela é ImprimeImagemMemoria com a escala 0, que
     * não existe.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE.
     *
     * <p>Efeito: nenhum.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @param k1 primeiro caractere da chave, do qual conta o byte baixo.
     * @param k2 segundo caractere da chave, do qual conta o byte baixo.
     * @return sempre um código.
     */
    public static int PrintNVImage(Pointer handle, int k1, int k2) {
        return BIBLIOTECA.PrintNVImage(handle, k1, k2);
    }

    /**
     * Não faz nada: as imagens são gravadas com a ferramenta do fabricante da impressora.
     *
     * <p>Efeito: nenhum.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param a ignorado.
     * @param b ignorado.
     * @param c ignorado.
     * @param d ignorado.
     * @return 0.
     */
    public static int DefineNVImage(int a, int b, int c, int d) {
        return BIBLIOTECA.DefineNVImage(a, b, c, d);
    }

    /**
     * Avança o papel, como AvancaPapel. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: LF.
     *
     * @param handle ignorado.
     * @param lines linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
     * @return 0 ou um código.
     */
    public static int FeedLine(Pointer handle, int lines) {
        return BIBLIOTECA.FeedLine(handle, lines);
    }

    /**
     * Avança o papel e corta, como Corte. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: LF, GS V 0.
     *
     * @param handle ignorado.
     * @param lines linhas a avançar antes; 0 ou menos não avança.
     * @return 0 ou um código.
     */
    public static int CutPaper(Pointer handle, int lines) {
        return BIBLIOTECA.CutPaper(handle, lines);
    }

    /**
     * Abre a gaveta, como AbreGaveta. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC p m t1 t2.
     *
     * @param handle ignorado.
     * @param pin saída da impressora, 0 ou 1.
     * @param onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return 0 ou um código.
     */
    public static int OpenDrawer(Pointer handle, int pin, int onTime, int offTime) {
        return BIBLIOTECA.OpenDrawer(handle, pin, onTime, offTime);
    }

    /**
     * Abre a gaveta; é OpenDrawer com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC p m t1 t2.
     *
     * @param handle ignorado.
     * @param pin saída da impressora, 0 ou 1.
     * @param onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return 0 ou um código.
     */
    public static int OpenCashDrawer(Pointer handle, int pin, int onTime, int offTime) {
        return BIBLIOTECA.OpenCashDrawer(handle, pin, onTime, offTime);
    }

    /**
     * Pergunta o estado da impressora, com StatusImpressora e Q7_STATUS_ALL. Protegida.
     *
     * <p>Qualquer outra resposta, ou nenhuma, devolve Q7_ERR_STATUS_UNAVAILABLE e deixa state como
     * estava: por USB e serial também sempre que o sinal da gaveta está em nível baixo.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS a 0, DLE EOT n.
     *
     * @param handle ignorado.
     * @param state vetor de um elemento: recebe um valor de Q7PrinterState; pode ser nulo.
     * @return 0 ou um código.
     */
    public static int GetPrinterState(Pointer handle, int[] state) {
        return BIBLIOTECA.GetPrinterState(handle, state);
    }

    /**
     * Pergunta o sinal da gaveta, com StatusImpressora e Q7_STATUS_DRAWER. Protegida.
     *
     * <p>state fica como estava quando a impressora não disse nada e por TCP, em que a gaveta não
     * pode ser perguntada.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS a 0, DLE EOT 1.
     *
     * @param handle ignorado.
     * @param state vetor de um elemento: recebe 1 ou 0; pode ser nulo.
     * @param polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
     * @return 0, também quando state fica como estava, ou um código.
     */
    public static int GetDrawerState(Pointer handle, int[] state, int polarity) {
        return BIBLIOTECA.GetDrawerState(handle, state, polarity);
    }

    /**
     * Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS a 0, DLE EOT 1.
     *
     * @param handle ignorado.
     * @param state vetor de um elemento: recebe 1 ou 0; pode ser nulo.
     * @param polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
     * @return 0, também quando state fica como estava, ou um código.
     */
    public static int GetCashDrawerState(Pointer handle, int[] state, int polarity) {
        return BIBLIOTECA.GetCashDrawerState(handle, state, polarity);
    }

    /**
     * Entra no modo página, como ModoPagina. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC L.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int SelectPageMode(Pointer handle) {
        return BIBLIOTECA.SelectPageMode(handle);
    }

    /**
     * Volta ao modo padrão; é PrtSelectStandardMode com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC S.
     *
     * @param handle ignorado.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int SelectStandardMode(Pointer handle) {
        return BIBLIOTECA.SelectStandardMode(handle);
    }

    /**
     * Define a direção de impressão no modo página, como DirecaoImpressao. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: ESC T n.
     *
     * @param handle ignorado.
     * @param direction um valor de Q7Direction.
     * @return 0 ou um código.
     */
    public static int SelectPrintDirectionInPageMode(Pointer handle, int direction) {
        return BIBLIOTECA.SelectPrintDirectionInPageMode(handle, direction);
    }

    /**
     * Define a área de impressão no modo página, como DefineAreaImpressao. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: ESC W.
     *
     * @param handle ignorado.
     * @param x canto esquerdo em pontos, de 0 a 65535.
     * @param y canto superior em pontos, de 0 a 65535.
     * @param width largura em pontos, de 0 a 65535.
     * @param height altura em pontos, de 0 a 65535.
     * @return 0 ou um código.
     */
    public static int SetPrintAreaInPageMode(Pointer handle, int x, int y, int width, int height) {
        return BIBLIOTECA.SetPrintAreaInPageMode(handle, x, y, width, height);
    }

    /**
     * Define a posição horizontal absoluta, como PosicaoImpressaoHorizontal. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir.
     *
     * <p>ESC/POS: ESC $.
     *
     * @param handle ignorado.
     * @param position pontos, de 0 a 500.
     * @return 0 ou um código.
     */
    public static int SetAbSolutePrintPosition(Pointer handle, int position) {
        return BIBLIOTECA.SetAbSolutePrintPosition(handle, position);
    }

    /**
     * Define a posição vertical absoluta no modo página, como PosicaoImpressaoVertical. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: GS $.
     *
     * @param handle ignorado.
     * @param position pontos, de 0 a 65535.
     * @return 0 ou um código.
     */
    public static int SetAbsoluteVerticalPrintPositionInPageMode(Pointer handle, int position) {
        return BIBLIOTECA.SetAbsoluteVerticalPrintPositionInPageMode(handle, position);
    }

    /**
     * Imprime a página e continua no modo página, como ImprimeModoPagina. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC FF.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrintDataInPageMode(Pointer handle) {
        return BIBLIOTECA.PrintDataInPageMode(handle);
    }

    /**
     * Apaga a página sem a imprimir, como LimpaBufferModoPagina. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: CAN.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int CancelPrintDataInPageMode(Pointer handle) {
        return BIBLIOTECA.CancelPrintDataInPageMode(handle);
    }

    /**
     * Imprime a página e volta ao modo padrão, como ImprimeMPeRetornaPadrao. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: FF.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int SetPrintAndReturnStandardMode(Pointer handle) {
        return BIBLIOTECA.SetPrintAndReturnStandardMode(handle);
    }

    /**
     * Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem: é PrinterCreator, e o nome
     * guardado é o mesmo.
     *
     * <p>Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @param model nome do modelo, como em AbreConexaoImpressora.
     * @return 0.
     */
    public static int PrtPrinterCreator(Pointer handle, String model) {
        return BIBLIOTECA.PrtPrinterCreator(handle, model);
    }

    /**
     * Não libera nada: a porta continua aberta, como em PrinterDestroy. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: nenhum.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrtPrinterDestroy(Pointer handle) {
        return BIBLIOTECA.PrtPrinterDestroy(handle);
    }

    /**
     * Abre a conexão com o modelo de PrinterCreator; é PortOpen com outro nome.
     *
     * <p>Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
     * Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
     * Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS I 67, por serial e TCP.
     *
     * @param handle ignorado.
     * @param text a porta, como em PortOpen: "COM3,9600", "NET,192.168.0.10,9100" ou "USB".
     * @return 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
     */
    public static int PrtPortOpen(Pointer handle, String text) {
        return BIBLIOTECA.PrtPortOpen(handle, text);
    }

    /**
     * Fecha a conexão, como FechaConexaoImpressora; não é protegida: o log a registra também quando
     * nada está aberto.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: nenhum.
     *
     * @param handle ignorado.
     * @return 0, um código, ou, na USB, um número positivo de erro do sistema.
     */
    public static int PrtPortClose(Pointer handle) {
        return BIBLIOTECA.PrtPortClose(handle);
    }

    /**
     * Reinicia a impressora, como InicializaImpressora. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC &#64;.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrtPrinterInitialize(Pointer handle) {
        return BIBLIOTECA.PrtPrinterInitialize(handle);
    }

    /**
     * Imprime um texto; é PrintText com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
     *
     * <p>ESC/POS: ESC &#64; ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
     *
     * @param handle ignorado.
     * @param text o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
     * @param alignment alinhamento, um valor de Q7Alignment; 0 deixa como está.
     * @param style soma de valores de Q7Style, de 0 a 15.
     * @param size tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
     * @return a quantidade de bytes do texto enviados, ou um código.
     */
    public static int PrtPrintText(Pointer handle, String text, int alignment, int style, int size) {
        return BIBLIOTECA.PrtPrintText(handle, text, alignment, style, size);
    }

    /**
     * Define o alinhamento ao centro ou à direita; é SetAlign com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
     *
     * <p>ESC/POS: ESC a n.
     *
     * @param handle ignorado.
     * @param alignment Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT; com Q7_ALIGN_LEFT nada é enviado.
     * @return 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
     */
    public static int PrtSetTextPosition(Pointer handle, int alignment) {
        return BIBLIOTECA.PrtSetTextPosition(handle, alignment);
    }

    /**
     * Liga ou desliga o negrito; é SetTextBold com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * <p>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * <p>ESC/POS: ESC E n.
     *
     * @param handle ignorado.
     * @param on 1 liga, 0 desliga.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int PrtSetTextBold(Pointer handle, int on) {
        return BIBLIOTECA.PrtSetTextBold(handle, on);
    }

    /**
     * Escolhe a fonte; é SetTextFont com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
     *
     * <p>Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
     *
     * <p>ESC/POS: ESC ! n.
     *
     * @param handle ignorado.
     * @param font um valor de Q7Font.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int PrtSetTextFont(Pointer handle, int font) {
        return BIBLIOTECA.PrtSetTextFont(handle, font);
    }

    /**
     * Imprime um código de barras; é PrintBarCode com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT,
     * Q7_ERR_BARCODE_WIDTH, Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT,
     * Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS h, GS w, GS H, GS k m n (função B).
     *
     * @param handle ignorado.
     * @param type um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
     * @param data o conteúdo, como em ImpressaoCodigoBarras.
     * @param width largura do módulo em pontos, de 1 a 6.
     * @param height altura em pontos, de 1 a 255.
     * @param hri posição do texto do código, um valor de Q7Hri.
     * @return 0 ou um código.
     */
    public static int PrtPrintBarCode(Pointer handle, int type, String data, int width, int height, int hri) {
        return BIBLIOTECA.PrtPrintBarCode(handle, type, data, width, height, hri);
    }

    /**
     * Imprime um QR Code; é PrintSymbol com outro nome.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY,
     * Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora, com o alinhamento em vigor.
     *
     * <p>ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
     *
     * @param handle ignorado.
     * @param type ignorado.
     * @param data o conteúdo, como em ImpressaoQRCode.
     * @param errorLevel nível de correção, um valor de Q7QrLevel.
     * @param size tamanho do módulo em pontos, de 1 a 6.
     * @return 0 ou um código.
     */
    public static int PrtPrintSymbol(Pointer handle, int type, String data, int errorLevel, int size) {
        return BIBLIOTECA.PrtPrintSymbol(handle, type, data, errorLevel, size);
    }

    /**
     * Avança o papel; é FeedLine com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: LF.
     *
     * @param handle ignorado.
     * @param lines linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
     * @return 0 ou um código.
     */
    public static int PrtFeedLine(Pointer handle, int lines) {
        return BIBLIOTECA.PrtFeedLine(handle, lines);
    }

    /**
     * Avança o papel e corta, como Corte. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: LF, GS V 0.
     *
     * @param handle ignorado.
     * @param lines linhas a avançar antes; 0 ou menos não avança.
     * @return 0 ou um código.
     */
    public static int PrtCutPaper(Pointer handle, int lines) {
        return BIBLIOTECA.PrtCutPaper(handle, lines);
    }

    /**
     * Abre a gaveta; é OpenDrawer com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC p m t1 t2.
     *
     * @param handle ignorado.
     * @param pin saída da impressora, 0 ou 1.
     * @param onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
     * @param offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
     * @return 0 ou um código.
     */
    public static int PrtOpenDrawer(Pointer handle, int pin, int onTime, int offTime) {
        return BIBLIOTECA.PrtOpenDrawer(handle, pin, onTime, offTime);
    }

    /**
     * Pergunta o estado da impressora; é GetPrinterState com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS a 0, DLE EOT n.
     *
     * @param handle ignorado.
     * @param state vetor de um elemento: recebe um valor de Q7PrinterState; pode ser nulo.
     * @return 0 ou um código.
     */
    public static int PrtCheckPrinterState(Pointer handle, int[] state) {
        return BIBLIOTECA.PrtCheckPrinterState(handle, state);
    }

    /**
     * Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: GS a 0, DLE EOT 1.
     *
     * @param handle ignorado.
     * @param state vetor de um elemento: recebe 1 ou 0; pode ser nulo.
     * @param polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
     * @return 0, também quando state fica como estava, ou um código.
     */
    public static int PrtGetDrawerState(Pointer handle, int[] state, int polarity) {
        return BIBLIOTECA.PrtGetDrawerState(handle, state, polarity);
    }

    /**
     * Entra no modo página; é SelectPageMode com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC L.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrtSelectPageMode(Pointer handle) {
        return BIBLIOTECA.PrtSelectPageMode(handle);
    }

    /**
     * Volta ao modo padrão; uma página não impressa se perde. Protegida; o log não traz o nome
     * dela.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC S.
     *
     * @param handle ignorado.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int PrtSelectStandardMode(Pointer handle) {
        return BIBLIOTECA.PrtSelectStandardMode(handle);
    }

    /**
     * Define a direção de impressão no modo página; é SelectPrintDirectionInPageMode com outro
     * nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: ESC T n.
     *
     * @param handle ignorado.
     * @param direction um valor de Q7Direction.
     * @return 0 ou um código.
     */
    public static int PrtSelectPrintDirectionInPageMode(Pointer handle, int direction) {
        return BIBLIOTECA.PrtSelectPrintDirectionInPageMode(handle, direction);
    }

    /**
     * Define a área de impressão no modo página; é SetPrintAreaInPageMode com outro nome.
     * Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: ESC W.
     *
     * @param handle ignorado.
     * @param x canto esquerdo em pontos, de 0 a 65535.
     * @param y canto superior em pontos, de 0 a 65535.
     * @param width largura em pontos, de 0 a 65535.
     * @param height altura em pontos, de 0 a 65535.
     * @return 0 ou um código.
     */
    public static int PrtSetPrintAreaInPageMode(Pointer handle, int x, int y, int width, int height) {
        return BIBLIOTECA.PrtSetPrintAreaInPageMode(handle, x, y, width, height);
    }

    /**
     * Define a posição vertical absoluta; é SetAbsoluteVerticalPrintPositionInPageMode com outro
     * nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: no que vier a seguir na página.
     *
     * <p>ESC/POS: GS $.
     *
     * @param handle ignorado.
     * @param position pontos, de 0 a 65535.
     * @return 0 ou um código.
     */
    public static int PrtSetAbsoluteVerticalPrintPositionInPageMode(Pointer handle, int position) {
        return BIBLIOTECA.PrtSetAbsoluteVerticalPrintPositionInPageMode(handle, position);
    }

    /**
     * Imprime a página e continua no modo página; é PrintDataInPageMode com outro nome. Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC FF.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrtPrintDataInPageMode(Pointer handle) {
        return BIBLIOTECA.PrtPrintDataInPageMode(handle);
    }

    /**
     * Envia um ESC sozinho, que não apaga a página: para isso chame CancelPrintDataInPageMode.
     * Protegida.
     *
     * <p>A impressora toma o byte seguinte pelo resto de um comando.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: ESC.
     *
     * @param handle ignorado.
     * @return 0, também quando nada foi enviado, ou um código.
     */
    public static int PrtCancelPrintDataInPageMode(Pointer handle) {
        return BIBLIOTECA.PrtCancelPrintDataInPageMode(handle);
    }

    /**
     * Imprime a página e volta ao modo padrão; é SetPrintAndReturnStandardMode com outro nome.
     * Protegida.
     *
     * <p>Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
     *
     * <p>Efeito: na hora.
     *
     * <p>ESC/POS: FF.
     *
     * @param handle ignorado.
     * @return 0 ou um código.
     */
    public static int PrtSetPrintAndReturnStandardMode(Pointer handle) {
        return BIBLIOTECA.PrtSetPrintAndReturnStandardMode(handle);
    }

    private static Biblioteca carregada() {
        Map<String, Object> opcoes = new HashMap<>();
        opcoes.put(Library.OPTION_STRING_ENCODING, "UTF-8");
        if (Platform.isWindows()) {
            opcoes.put(Library.OPTION_CALLING_CONVENTION, Function.ALT_CONVENTION); // stdcall
        }
        return Native.load("Q7_Impressora", Biblioteca.class, opcoes);
    }

    // O texto fica com quem chamou, que não o libera.
    private static String texto(Pointer texto) {
        return texto == null ? null : texto.getString(0, "ISO-8859-1");
    }

    private interface Biblioteca extends Library {
        int AbreConexaoImpressora(int tipo, String modelo, String conexao, int parametro);

        int FechaConexaoImpressora();

        Pointer GetVersaoDLL();

        int ImpressaoTexto(String dados, int posicao, int stilo, int tamanho);

        int EspacamentoEntreLinhas(int espacamento);

        int DefinePosicao(int posicao);

        int InicializaImpressora();

        int ImpressaoQRCode(String dados, int tamanho, int nivelCorrecao);

        int ImpressaoCodigoBarras(int tipo, String dados, int altura, int largura, int HRI);

        int ImprimeImagemMemoria(String chave, int escala);

        int Corte(int avanco);

        int AvancaPapel(int linhas);

        int AbreGaveta(int pino, int ti, int tf);

        int AbreGavetaTavlo();

        int SinalSonoro(int qtd, int tempoInicio, int tempoFim);

        int StatusImpressora(int param);

        int DirectIO(byte[] comando, int tamanho, byte[] resposta, int[] tamanhoResposta);

        Pointer IdImpressora(int tipo);

        int ModoPagina();

        int DirecaoImpressao(int direcao);

        int DefineAreaImpressao(int x, int y, int largura, int altura);

        int PosicaoImpressaoHorizontal(int posicao);

        int PosicaoImpressaoVertical(int posicao);

        int ImprimeModoPagina();

        int LimpaBufferModoPagina();

        int ImprimeMPeRetornaPadrao();

        int ModoPadrao();

        int ImprimeXMLSAT(String dados, int param);

        int ImprimeXMLCancelamentoSAT(String dados, String assinaturaQRCODE, int param);

        int ImprimeXMLNFCe(String dados, int indexcsc, String csc, int param);

        int PrinterCreator(Pointer handle, String model);

        void PrinterCreatorS(Pointer handle, String model);

        int PrinterDestroy(Pointer handle);

        int PortOpen(Pointer handle, String text);

        int PortClose(Pointer handle);

        int PrinterInitialize(Pointer handle);

        int PrintText(Pointer handle, String text, int alignment, int style, int size);

        int PrintTextS(Pointer handle, String text);

        int SetAlign(Pointer handle, int alignment);

        int SetTextBold(Pointer handle, int on);

        int SetTextFont(Pointer handle, int font);

        int SetTextLineSpace(int spacing);

        int PrintBarCode(Pointer handle, int type, String data, int width, int height, int hri);

        int PrintSymbol(Pointer handle, int type, String data, int errorLevel, int size);

        int PrintNVImage(Pointer handle, int k1, int k2);

        int DefineNVImage(int a, int b, int c, int d);

        int FeedLine(Pointer handle, int lines);

        int CutPaper(Pointer handle, int lines);

        int OpenDrawer(Pointer handle, int pin, int onTime, int offTime);

        int OpenCashDrawer(Pointer handle, int pin, int onTime, int offTime);

        int GetPrinterState(Pointer handle, int[] state);

        int GetDrawerState(Pointer handle, int[] state, int polarity);

        int GetCashDrawerState(Pointer handle, int[] state, int polarity);

        int SelectPageMode(Pointer handle);

        int SelectStandardMode(Pointer handle);

        int SelectPrintDirectionInPageMode(Pointer handle, int direction);

        int SetPrintAreaInPageMode(Pointer handle, int x, int y, int width, int height);

        int SetAbSolutePrintPosition(Pointer handle, int position);

        int SetAbsoluteVerticalPrintPositionInPageMode(Pointer handle, int position);

        int PrintDataInPageMode(Pointer handle);

        int CancelPrintDataInPageMode(Pointer handle);

        int SetPrintAndReturnStandardMode(Pointer handle);

        int PrtPrinterCreator(Pointer handle, String model);

        int PrtPrinterDestroy(Pointer handle);

        int PrtPortOpen(Pointer handle, String text);

        int PrtPortClose(Pointer handle);

        int PrtPrinterInitialize(Pointer handle);

        int PrtPrintText(Pointer handle, String text, int alignment, int style, int size);

        int PrtSetTextPosition(Pointer handle, int alignment);

        int PrtSetTextBold(Pointer handle, int on);

        int PrtSetTextFont(Pointer handle, int font);

        int PrtPrintBarCode(Pointer handle, int type, String data, int width, int height, int hri);

        int PrtPrintSymbol(Pointer handle, int type, String data, int errorLevel, int size);

        int PrtFeedLine(Pointer handle, int lines);

        int PrtCutPaper(Pointer handle, int lines);

        int PrtOpenDrawer(Pointer handle, int pin, int onTime, int offTime);

        int PrtCheckPrinterState(Pointer handle, int[] state);

        int PrtGetDrawerState(Pointer handle, int[] state, int polarity);

        int PrtSelectPageMode(Pointer handle);

        int PrtSelectStandardMode(Pointer handle);

        int PrtSelectPrintDirectionInPageMode(Pointer handle, int direction);

        int PrtSetPrintAreaInPageMode(Pointer handle, int x, int y, int width, int height);

        int PrtSetAbsoluteVerticalPrintPositionInPageMode(Pointer handle, int position);

        int PrtPrintDataInPageMode(Pointer handle);

        int PrtCancelPrintDataInPageMode(Pointer handle);

        int PrtSetPrintAndReturnStandardMode(Pointer handle);
    }
}
