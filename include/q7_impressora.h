/** \file q7_impressora.h
 *
 *  Q7_Impressora: impressoras de cupom e documentos fiscais brasileiros por funções simples em C.
 *
 *  Carga. O produto é a biblioteca Q7_Impressora.dll, para Windows de 32 bits: um programa de 64
 *  bits não consegue carregá-la. As funções usam a convenção stdcall e são exportadas sem
 *  decoração. O mesmo código-fonte produz libQ7_Impressora.so no Linux, com a convenção de C.
 *
 *  Convenções
 *   1. Uma sessão. O processo inteiro compartilha uma única sessão de impressora. Qualquer thread
 *      pode chamar: duas ao mesmo tempo se revezam, uma espera que a chamada da outra termine. O
 *      que as duas imprimem, porém, se mistura chamada a chamada. Não é preciso laço de eventos.
 *   2. Textos são UTF-8 e terminam no primeiro byte zero. Programas cujos textos estão na página de
 *      código 1252 (VB6, Delphi antigo) convertem antes; senão as letras acentuadas saem como "?".
 *      A impressora recebe Latin-1; um caractere fora dele sai como "?". Um ponteiro nulo vale como
 *      texto vazio.
 *   3. Resultados. 0 é sucesso, ou uma quantidade de bytes onde a função diz isso; os valores
 *      negativos de Q7Result são falhas. Um número positivo de AbreConexaoImpressora ou de
 *      FechaConexaoImpressora é um número de erro do sistema ou da rede (Q7NetError). Pela USB um
 *      envio que falha devolve o número de erro do sistema, que também é positivo: as funções que
 *      devolvem uma quantidade (ImpressaoTexto, PrintText, PrintTextS) e SetAlign o devolvem como
 *      se fosse uma; todas as outras o tomam por sucesso.
 *   4. Uma conexão TCP recusada é o erro de número 0 e por isso parece sucesso; a chamada seguinte
 *      devolve Q7_ERR_NOT_OPEN. Chame StatusImpressora depois de abrir para ter certeza.
 *   5. Textos devolvidos (GetVersaoDLL, IdImpressora) ficam com quem chamou, que nunca os libera.
 *      São nulos quando a memória acabou.
 *   6. O que sobrevive a FechaConexaoImpressora: o espaçamento entre linhas, o modo página (depois
 *      de ModoPagina os textos não reiniciam mais a impressora), qual via de uma nota em
 *      contingência vem a seguir, o modelo e o nome dado a PrinterCreator.
 *   7. Efeito. Os bytes saem quando a chamada retorna. FechaConexaoImpressora espera até que o que
 *      foi aceito tenha sido entregue, dentro de um limite; terminar o processo sem ela pode perder
 *      o fim. O que espera por uma impressora que não recebe é no máximo 64 MB.
 *
 *  Famílias. As funções em português vêm primeiro. As em inglês, e as Prt depois delas, existem
 *  para programas escritos para duas outras interfaces: são camadas finas sobre as funções em
 *  português e a mesma sessão, e podem ser misturadas com elas à vontade. O primeiro argumento é um
 *  identificador que é ignorado: passe qualquer coisa. "Protegida" quer dizer: enquanto não há
 *  conexão aberta a função devolve Q7_ERR_NOT_OPEN e não faz nada, nem uma linha no log.
 *
 *  Arquivos. A pasta de dados é o valor "data_path" de HKEY_LOCAL_MACHINE\\SOFTWARE\\Q7, na visão
 *  de 64 bits do registro (no Linux, a variável de ambiente Q7_DATA_PATH); sem ele, ou se a pasta
 *  não existe, é a pasta corrente. Nela a biblioteca procura:
 *   - "log_q7.txt": se existe, recebe cada chamada e cada byte enviado. Contém então o CSC e dados
 *     de clientes: apague-o quando tiver servido. Se não puder ser aberto, "Erro ao abrir arquivo!"
 *     vai para a saída padrão, o único texto que a biblioteca escreve lá.
 *   - "q7_usb.ini": os identificadores USB das impressoras do local, lidos uma vez, quando a
 *     biblioteca é carregada. Os da própria biblioteca são fictícios: sem este arquivo nenhuma
 *     impressora USB é encontrada. Um grupo por modelo, com vendor_id e product_id de um a quatro
 *     algarismos hexadecimais.
 *   - "q7_fiscal.ini": as regras dos cupons fiscais, lidas uma vez, quando a biblioteca é carregada.
 *     Sem o arquivo, ou com leiaute=original no grupo [nfce], tudo se imprime como sempre, até o
 *     último byte. Com leiaute=6.0 a NFC-e segue o manual do DANFE NFC-e na versão 6.0: nomes de
 *     todos os meios de pagamento, PIX entre eles, QR Code de qualquer tamanho, nota autorizada sem
 *     aviso de pendência, consumidor estrangeiro, CNPJ com letras, DANFE Simplificado Tipo 2. Outro
 *     valor conta como original. O log diz o valor em vigor.
 *
 *  A biblioteca não cria nenhum deles, e não usa nenhum outro arquivo.
 *
 *  Um cupom em quatro chamadas:
 *  \code
 *    if (AbreConexaoImpressora(Q7_CONNECTION_TCP, "VANTA", "192.168.0.10", 9100) == Q7_OK) {
 *        ImpressaoTexto("Obrigado!\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE);
 *        Corte(4);
 *        FechaConexaoImpressora();
 *    }
 *  \endcode
 */
#ifndef Q7_IMPRESSORA_H
#define Q7_IMPRESSORA_H

/* The comments are read by programs, too: declarations for other languages, the manual and the
 * texts of the result codes are made from this file. Their form:
 *  - A comment that begins with two stars documents what follows it; one that begins with two stars
 *    and "<", what precedes it on its line. Paragraphs are separated by a line with a star alone.
 *  - Every enumeration begins with its purpose. A value of Q7Result is documented as: meaning. Then
 *    "Causas:" and what they are, then "O que fazer:" and what helps. Every value has all three.
 *  - A function's comment begins with one sentence, its effect; remarks follow. Then come its
 *    fields, each on a line of its own and in this order, continued on indented lines: \param name,
 *    one for each argument (\param[bytes]: bytes, not text; \param[out]: written by the function;
 *    \param[in,out]: both); \return; \erros: codes by name, separated by blanks; \efeito: when it
 *    shows; \escpos: the command; \exemplo: C statements.
 *  - \como NAME takes over the fields from \return to \escpos that the function does not have
 *    itself from another one.
 *  - After \exemplo a statement for each line; anything else is plain text. */

/* The library's version, which GetVersaoDLL tells too. The build takes it from here. */
#define Q7_VERSION_MAJOR 1
#define Q7_VERSION_MINOR 1
#define Q7_VERSION_PATCH 0
#define Q7_VERSION_TEXT "01.01.00"

#if defined(_WIN32)
#define Q7_CALL __stdcall
#else
#define Q7_CALL
#endif

#if defined(__GNUC__) && !defined(_WIN32)
#define Q7_API __attribute__((visibility("default")))
#else
#define Q7_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------ códigos de retorno */

/** Códigos de retorno. */
enum Q7Result {
    /** Sucesso. Causas: a operação foi feita; na abertura por TCP também a conexão recusada, cujo
     *  número de erro é 0. O que fazer: nada; depois de abrir por TCP chame StatusImpressora, que
     *  devolve -4 se a conexão foi recusada. */
    Q7_OK = 0,
    /** Tipo de conexão desconhecido. Causas: tipo diferente de 1 (USB), 2 (serial) e 3 (TCP); em
     *  PortOpen, um texto sem COM, NET ou USB, ou "COM3" e "NET" sozinhos. O que fazer: passe uma
     *  das constantes de Q7Connection, ou um texto como "COM3,9600", "NET,192.168.0.10,9100" ou
     *  "USB". */
    Q7_ERR_KIND = -2,
    /** Modelo desconhecido, ou a impressora é de outro modelo conhecido. Causas: nome errado; nome
     *  certo de uma impressora que não é a que está ligada nessa porta ou endereço. O que fazer:
     *  confira o nome na lista de AbreConexaoImpressora e o que a impressora diz no autoteste. */
    Q7_ERR_MODEL = -3,
    /** Nenhuma conexão aberta. Causas: AbreConexaoImpressora não foi chamada ou falhou; a conexão
     *  TCP foi recusada (a abertura devolve 0); a conexão já foi fechada; a impressora foi
     *  desligada ou o adaptador serial foi retirado. O que fazer: confira se a impressora está
     *  ligada e na rede e abra de novo. */
    Q7_ERR_NOT_OPEN = -4,
    /** A impressora não informou um modelo conhecido. Causas: impressora desligada ou ocupada, que
     *  não respondeu em 750 ms; velocidade serial diferente da configurada nela; outro equipamento
     *  nessa porta ou endereço. O que fazer: confira cabo, energia, velocidade e endereço e abra de
     *  novo. */
    Q7_ERR_UNKNOWN_PRINTER = -5,
    /** Conexão já aberta. Causas: nenhuma; o código é mantido por compatibilidade e nenhuma função
     *  o devolve. O que fazer: nada; feche a conexão antes de abrir outra. */
    Q7_ERR_ALREADY_OPEN = -6,
    /** Velocidade serial não permitida. Causas: parametro não é uma das nove velocidades; em
     *  PortOpen, velocidade ausente. O que fazer: passe 300, 1200, 2400, 4800, 9600, 19200, 38400,
     *  57600 ou 115200, a mesma que está configurada na impressora. */
    Q7_ERR_SPEED = -11,
    /** Porta serial não encontrada. Causas: nome errado; adaptador USB-serial desligado ou que
     *  mudou de número. O que fazer: veja o nome da porta no Gerenciador de Dispositivos (no Linux,
     *  em /dev). */
    Q7_ERR_SERIAL_NOT_FOUND = -12,
    /** Porta serial em uso ou sem permissão. Causas: outro programa está com a porta aberta; no
     *  Linux, o usuário não está no grupo da porta. O que fazer: feche o outro programa; no Linux,
     *  ponha o usuário no grupo dialout e entre de novo. */
    Q7_ERR_SERIAL_DENIED = -13,
    /** Porta serial falhou por motivo desconhecido. Causas: o sistema recusou a porta sem dizer por
     *  quê, em geral por falha do driver. O que fazer: retire e recoloque o adaptador; atualize o
     *  driver. */
    Q7_ERR_SERIAL_UNKNOWN = -14,
    /** Impressora USB não encontrada. Causas: não há "q7_usb.ini" na pasta de dados, ou os
     *  identificadores nele não são os da impressora; o arquivo mudou depois que a biblioteca foi
     *  carregada; impressora desligada; no Windows, driver que não é o de impressora USB do sistema
     *  (usbprint). O que fazer: copie os identificadores do Gerenciador de Dispositivos (VID e PID)
     *  para "q7_usb.ini" e reinicie o programa. */
    Q7_ERR_USB_ABSENT = -21,
    /** A impressora USB não pôde ser aberta. Causas: outro programa está com ela aberta; falta de
     *  permissão (no Linux, o grupo lp). O que fazer: feche o outro programa; o número de erro do
     *  sistema está no log, na linha "ERRO DE ABERTURA DE PORTA:". */
    Q7_ERR_USB_OPEN = -22,
    /** Porta TCP fora da faixa. Causas: parametro acima de 65536. O que fazer: passe a porta da
     *  impressora, em geral 9100. */
    Q7_ERR_TCP_PORT = -31,
    /** Alinhamento fora de 0 a 2. Causas: valor que não é de Q7Alignment. O que fazer: passe
     *  Q7_ALIGN_LEFT, Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT. */
    Q7_ERR_ALIGNMENT = -41,
    /** Estilo, negrito ou fonte fora da faixa. Causas: stilo fora de 0 a 15; em SetTextBold e
     *  SetTextFont, valor diferente de 0 e 1. O que fazer: some constantes de Q7Style, cada uma uma
     *  só vez. */
    Q7_ERR_STYLE = -42,
    /** Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. Causas: valor calculado errado. O
     *  que fazer: passe um valor de Q7Size; o espaçamento é em pontos. */
    Q7_ERR_SIZE = -43,
    /** Nada foi enviado. Causas: texto vazio; a impressora não recebe e já há 64 MB à espera dela;
     *  um texto de 32768 bytes ou mais por TCP ou serial, cuja contagem dá a volta; SetAlign com 0,
     *  que nunca envia nada. O que fazer: confira o texto e o papel da impressora; imprima textos
     *  longos em partes. */
    Q7_ERR_NOT_SENT = -44,
    /** Tamanho do módulo do QR Code fora de 1 a 6. Causas: argumentos fora de ordem. O que fazer:
     *  passe de 1 a 6 pontos; 4 serve para quase tudo. */
    Q7_ERR_QR_SIZE = -51,
    /** Nível de correção do QR Code fora de 1 a 4. Causas: letra no lugar do número; argumentos
     *  fora de ordem. O que fazer: passe um valor de Q7QrLevel. */
    Q7_ERR_QR_LEVEL = -52,
    /** Conteúdo do QR Code vazio. Causas: texto vazio ou ponteiro nulo. O que fazer: confira de
     *  onde vem o conteúdo. */
    Q7_ERR_QR_EMPTY = -53,
    /** Altura do código de barras fora de 1 a 255. Causas: altura em outra unidade. O que fazer:
     *  passe a altura em pontos; 80 pontos são 10 mm a 8 pontos por milímetro. */
    Q7_ERR_BARCODE_HEIGHT = -61,
    /** Largura do módulo do código de barras fora de 1 a 6. Causas: largura do símbolo inteiro no
     *  lugar da do módulo. O que fazer: passe de 1 a 6 pontos; 2 serve para quase tudo. */
    Q7_ERR_BARCODE_WIDTH = -62,
    /** Posição do texto do código de barras fora de 1 a 4. Causas: 0, que esta função não aceita. O
     *  que fazer: passe um valor de Q7Hri. */
    Q7_ERR_BARCODE_HRI = -63,
    /** Tipo de código de barras fora de 0 a 8. Causas: valor que não é de Q7Barcode. O que fazer:
     *  passe uma das constantes; só PrintBarCode e PrtPrintBarCode aceitam também 65 a 73. */
    Q7_ERR_BARCODE_TYPE = -64,
    /** Dados inválidos para o tipo de código de barras. Causas: quantidade de dígitos errada;
     *  letras onde só cabem dígitos; CODE128 sem "{A", "{B" ou "{C" na frente; ITF com quantidade
     *  ímpar. O que fazer: veja em ImpressaoCodigoBarras o que cada tipo aceita. */
    Q7_ERR_BARCODE_DATA = -65,
    /** Documento ou esquema inválido. Causas: nenhuma; o código pertence à validação por esquema
     *  (XSD) do código-fonte, que nenhuma função da biblioteca usa: nem o devolvem, nem o log o
     *  traz. O que fazer: nada. */
    Q7_ERR_XSD = -71,
    /** Arquivo de esquema ausente. Causas: nenhuma; pertence à validação por esquema (XSD) do
     *  código-fonte, como Q7_ERR_XSD. O que fazer: nada. */
    Q7_ERR_XSD_MISSING = -72,
    /** A impressora não respondeu. Causas: impressora desligada, sem papel ou com a tampa aberta e
     *  que por isso não responde; cabo serial sem o fio de retorno; comando que não tem resposta. O
     *  que fazer: confira a impressora e o cabo e pergunte de novo. */
    Q7_ERR_NO_REPLY = -81,
    /** A assinatura não tem 344 caracteres. Causas: assinatura de outro elemento, cortada ou com
     *  espaços. O que fazer: passe o elemento assinaturaQRCODE da venda cancelada, inteiro. */
    Q7_ERR_SIGNATURE = -91,
    /** Versão do leiaute da NFC-e diferente de 4.00. Causas: documento antigo. O que fazer: passe
     *  uma NFC-e da versão 4.00. */
    Q7_ERR_NFCE_VERSION = -101,
    /** Não é uma NFC-e, ou é uma sem o atributo versao. Causas: foi passado o nome do arquivo em
     *  vez do texto; o XML está cortado ou tem erro; é de outro documento. O que fazer: passe o
     *  texto do XML autorizado, com a raiz nfeProc ou NFe. */
    Q7_ERR_NFCE_NO_VERSION = -102,
    /** Tipo de emissão (tpEmis) ausente ou 0. Causas: nota incompleta; nota sem urlChave. O que
     *  fazer: passe o XML inteiro, com o grupo infNFeSupl. */
    Q7_ERR_NFCE_EMISSION = -103,
    /** Opções da NFC-e acima de 65535. Causas: argumentos fora de ordem. O que fazer: some
     *  constantes de Q7NfceOption. */
    Q7_ERR_NFCE_OPTIONS = -104,
    /** NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. Causas: foi
     *  passada uma NF-e comum, que se imprime em folha A4. O que fazer: passe uma NFC-e (modelo 65)
     *  ou uma NF-e com tpImp 6. */
    Q7_ERR_NFCE_MODEL = -105,
    /** Nota sem QR Code. Só com o leiaute 6.0. Causas: falta o elemento qrCode e não há com que
     *  formá-lo (a chave, o tpAmb, o endereço do estado ou, em contingência, o CSC e o
     *  DigestValue); ou o texto é longo demais para um QR Code desta impressora. O que fazer: passe
     *  o XML com o grupo infNFeSupl inteiro; em contingência sem ele, também o CSC. */
    Q7_ERR_NFCE_QR = -106,
    /** Quantidade de sinais sonoros acima de 63. Causas: valor fora da faixa ou negativo. O que
     *  fazer: passe de 0 a 63. */
    Q7_ERR_BUZZER_COUNT = -111,
    /** Os dois tempos do sinal sonoro acima de 25. Causas: tempos em milissegundos. O que fazer:
     *  passe os tempos em unidades de 100 ms. */
    Q7_ERR_BUZZER_TIME = -112,
    /** Pino da gaveta acima de 1. Causas: número do pino do conector no lugar do da impressora. O
     *  que fazer: passe 0 ou 1. */
    Q7_ERR_DRAWER_PIN = -121,
    /** Um tempo da gaveta acima de 255. Causas: tempo em milissegundos. O que fazer: passe o tempo
     *  em unidades de 2 ms. */
    Q7_ERR_DRAWER_TIME = -122,
    /** Estado não disponível nesta conexão. Causas: a gaveta por TCP; o sensor por USB ou serial;
     *  em GetPrinterState, qualquer resposta que ela não conhece, ou nenhuma. O que fazer: pergunte
     *  por outra conexão ou por outro estado. */
    Q7_ERR_STATUS_UNAVAILABLE = -126,
    /** Pergunta de estado fora de 1 a 5. Causas: valor que não é de Q7Status. O que fazer: passe
     *  uma das constantes. */
    Q7_ERR_STATUS_KIND = -127,
    /** A chave da imagem não são dois caracteres visíveis. Causas: chave vazia, com um só caractere
     *  ou com acento. O que fazer: passe a chave com que a imagem foi gravada, por exemplo "00". */
    Q7_ERR_IMAGE_KEY = -131,
    /** Escala da imagem fora de 1 a 2. Causas: PrintNVImage, que sempre falha assim; valor errado.
     *  O que fazer: passe um valor de Q7ImageScale a ImprimeImagemMemoria. */
    Q7_ERR_IMAGE_SCALE = -132,
    /** Direção de impressão fora de 0 a 3. Causas: ângulo em graus. O que fazer: passe um valor de
     *  Q7Direction. */
    Q7_ERR_DIRECTION = -136,
    /** Posição horizontal acima de 500. Causas: posição em outra unidade. O que fazer: passe de 0 a
     *  500 pontos. */
    Q7_ERR_POSITION = -137,
    /** Pergunta de identificação fora de 0 a 6. Causas: valor que não é de Q7Identification. O que
     *  fazer: passe uma das constantes; IdImpressora devolve este código como o texto "-402". */
    Q7_ERR_ID_KIND = -402,
    /** Sem resultado: nada foi enviado, ou outra falha. Causas: AvancaPapel com 0 linhas ou menos;
     *  DirectIO sem resposta pedida; um cancelamento que não pôde ser lido; a porta serial ou o
     *  fechamento falharam de outro modo; a memória acabou. O que fazer: confira os argumentos; se
     *  persistir, ligue o log. */
    Q7_ERR_FAILED = -9999
};

/** Números positivos que AbreConexaoImpressora devolve quando a conexão TCP falha. */
enum Q7NetError {
    Q7_NET_REFUSED = 0,        /**< conexão recusada: parece sucesso, veja as convenções */
    Q7_NET_CLOSED = 1,         /**< fechada pelo outro lado */
    Q7_NET_HOST_NOT_FOUND = 2, /**< nome ou endereço não encontrado */
    Q7_NET_NOT_PERMITTED = 3,  /**< o sistema não permitiu */
    Q7_NET_NO_RESOURCES = 4,   /**< faltam recursos ao sistema */
    Q7_NET_TIMEOUT = 5,        /**< sem resposta em 2000 ms */
    Q7_NET_UNREACHABLE = 7     /**< rede fora do alcance */
};

/* ------------------------------------------------------------------ constantes */

/** Tipos de conexão. */
enum Q7Connection {
    Q7_CONNECTION_USB = 1,    /**< USB */
    Q7_CONNECTION_SERIAL = 2, /**< porta serial (COM) */
    Q7_CONNECTION_TCP = 3     /**< rede (TCP) */
};

/** Alinhamentos. */
enum Q7Alignment {
    Q7_ALIGN_LEFT = 0,   /**< à esquerda; em ImpressaoTexto: deixa o alinhamento como está */
    Q7_ALIGN_CENTER = 1, /**< centralizado */
    Q7_ALIGN_RIGHT = 2   /**< à direita */
};

/** Estilos de texto, que se somam. */
enum Q7Style {
    Q7_STYLE_NORMAL = 0,    /**< nenhum */
    Q7_STYLE_SMALL = 1,     /**< fonte pequena; com Q7_STYLE_UNDERLINE, perde-se */
    Q7_STYLE_UNDERLINE = 2, /**< sublinhado */
    Q7_STYLE_REVERSE = 4,   /**< branco sobre preto */
    Q7_STYLE_BOLD = 8       /**< negrito */
};

/** Tamanhos de caractere: (fator de largura - 1) * 16 + (fator de altura - 1), de 0 a 119. */
enum Q7Size {
    Q7_SIZE_NORMAL = 0,        /**< deixa o tamanho como está */
    Q7_SIZE_DOUBLE_HEIGHT = 1, /**< altura dupla */
    Q7_SIZE_DOUBLE_WIDTH = 16, /**< largura dupla */
    Q7_SIZE_DOUBLE = 17,       /**< largura e altura duplas */
    Q7_SIZE_TRIPLE = 34,       /**< largura e altura triplas */
    Q7_SIZE_LARGEST = 119      /**< largura e altura óctuplas */
};

/** Fontes de SetTextFont. */
enum Q7Font {
    Q7_FONT_NORMAL = 0, /**< fonte normal */
    Q7_FONT_SMALL = 1   /**< fonte pequena */
};

/** Códigos de barras. */
enum Q7Barcode {
    Q7_BARCODE_UPC_A = 0,   /**< UPC-A */
    Q7_BARCODE_UPC_E = 1,   /**< UPC-E */
    Q7_BARCODE_EAN13 = 2,   /**< EAN-13 */
    Q7_BARCODE_EAN8 = 3,    /**< EAN-8 */
    Q7_BARCODE_CODE39 = 4,  /**< CODE39 */
    Q7_BARCODE_ITF = 5,     /**< ITF (2 de 5 intercalado) */
    Q7_BARCODE_CODABAR = 6, /**< CODABAR */
    Q7_BARCODE_CODE93 = 7,  /**< CODE93 */
    Q7_BARCODE_CODE128 = 8  /**< CODE128 */
};

/** Posições do texto de um código de barras. */
enum Q7Hri {
    Q7_HRI_ABOVE = 1, /**< acima */
    Q7_HRI_BELOW = 2, /**< abaixo */
    Q7_HRI_BOTH = 3,  /**< acima e abaixo */
    Q7_HRI_OTHER = 4  /**< enviado como está: a impressora decide */
};

/** Níveis de correção de erros do QR Code. */
enum Q7QrLevel {
    Q7_QR_LEVEL_L = 1, /**< nível L, cerca de 7% */
    Q7_QR_LEVEL_M = 2, /**< nível M, cerca de 15% */
    Q7_QR_LEVEL_Q = 3, /**< nível Q, cerca de 25% */
    Q7_QR_LEVEL_H = 4  /**< nível H, cerca de 30% */
};

/** Escalas das imagens gravadas na impressora. */
enum Q7ImageScale {
    Q7_IMAGE_NORMAL = 1, /**< como gravada */
    Q7_IMAGE_DOUBLE = 2  /**< largura e altura duplas */
};

/** O que StatusImpressora pergunta. */
enum Q7Status {
    Q7_STATUS_DRAWER = 1, /**< sinal da gaveta; não por TCP */
    Q7_STATUS_COVER = 2,  /**< tampa */
    Q7_STATUS_PAPER = 3,  /**< papel */
    Q7_STATUS_SENSOR = 4, /**< sensor de papel; só por TCP */
    Q7_STATUS_ALL = 5     /**< todos os que a conexão tem, numa soma de Q7StateBit */
};

/** O que StatusImpressora responde às perguntas de 1 a 4. */
enum Q7State {
    Q7_STATE_DRAWER_LOW = 1,      /**< sinal da gaveta em nível baixo */
    Q7_STATE_DRAWER_HIGH = 2,     /**< sinal da gaveta em nível alto */
    Q7_STATE_COVER_OPEN = 3,      /**< tampa aberta */
    Q7_STATE_COVER_CLOSED = 4,    /**< tampa fechada */
    Q7_STATE_PAPER_PRESENT = 5,   /**< há papel */
    Q7_STATE_PAPER_NEAR_END = 6,  /**< papel perto do fim */
    Q7_STATE_PAPER_OUT = 7,       /**< sem papel */
    Q7_STATE_SENSOR_CLEAR = 8,    /**< sensor sem sinal */
    Q7_STATE_SENSOR_SIGNALLED = 9 /**< sensor com sinal */
};

/** De que se soma a resposta de StatusImpressora a Q7_STATUS_ALL; 0 é a impressora pronta. */
enum Q7StateBit {
    Q7_STATE_BIT_DRAWER_LOW = 1,       /**< sinal da gaveta em nível baixo */
    Q7_STATE_BIT_COVER_OPEN = 2,       /**< tampa aberta */
    Q7_STATE_BIT_PAPER_NEAR_END = 4,   /**< papel perto do fim, ou no fim */
    Q7_STATE_BIT_PAPER_OUT = 8,        /**< sem papel; vem com o anterior */
    Q7_STATE_BIT_SENSOR_SIGNALLED = 16 /**< sensor com sinal */
};

/** O que GetPrinterState escreve. */
enum Q7PrinterState {
    Q7_PRINTER_READY = 0,                    /**< pronta */
    Q7_PRINTER_PAPER_OUT = 1,                /**< sem papel */
    Q7_PRINTER_COVER_OPEN = 2,               /**< tampa aberta */
    Q7_PRINTER_PAPER_NEAR_END = 4,           /**< papel perto do fim */
    Q7_PRINTER_COVER_OPEN_PAPER_OUT = 5,     /**< tampa aberta e sem papel */
    Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END = 6 /**< tampa aberta e papel perto do fim */
};

/** O que IdImpressora pergunta. */
enum Q7Identification {
    Q7_ID_MODEL_NUMBER = 0, /**< número do modelo */
    Q7_ID_TYPE_NUMBER = 1,  /**< número do tipo */
    Q7_ID_FIRMWARE = 2,     /**< versão do firmware */
    Q7_ID_MAKER = 3,        /**< fabricante */
    Q7_ID_MODEL = 4,        /**< nome do modelo */
    Q7_ID_SERIAL = 5,       /**< número de série */
    Q7_ID_FONTS = 6         /**< fontes */
};

/** Direções de impressão no modo página. */
enum Q7Direction {
    Q7_DIRECTION_LEFT_TO_RIGHT = 0, /**< da esquerda para a direita */
    Q7_DIRECTION_BOTTOM_TO_TOP = 1, /**< de baixo para cima */
    Q7_DIRECTION_RIGHT_TO_LEFT = 2, /**< da direita para a esquerda */
    Q7_DIRECTION_TOP_TO_BOTTOM = 3  /**< de cima para baixo */
};

/** Opções do CF-e (ImprimeXMLSAT; a primeira também em ImprimeXMLCancelamentoSAT), que se somam. */
enum Q7CfeOption {
    Q7_CFE_LOGO = 1,     /**< cabeçalho ao lado da imagem "00" gravada na impressora */
    Q7_CFE_NO_ITEMS = 2, /**< sem os itens */
    Q7_CFE_TEST = 4      /**< aviso de teste sob o título */
};

/** Opções da NFC-e (ImprimeXMLNFCe), que se somam. */
enum Q7NfceOption {
    Q7_NFCE_NO_ITEMS = 0x01, /**< sem os itens */
    Q7_NFCE_GTIN = 0x02,     /**< coluna larga de código, com o GTIN */
    Q7_NFCE_LOGO = 0x08,     /**< cabeçalho ao lado da imagem "00" gravada na impressora */
    Q7_NFCE_TEST = 0x10,     /**< aviso de ambiente de homologação; o leiaute 6.0 segue o tpAmb */
    Q7_NFCE_SEPARATORS = 0x40,    /**< linhas separadoras entre as divisões */
    Q7_NFCE_ISSUER_IE = 0x80,     /**< inscrição estadual do emitente no cabeçalho */
    Q7_NFCE_ITEM_NUMBERS = 0x100, /**< número de cada item */
    Q7_NFCE_ONE_COPY = 0x200      /**< uma nota em contingência sai numa só via */
};

/** Limites. */
enum Q7Limit {
    Q7_LONGEST_REPLY = 65536 /**< bytes que comportam qualquer resposta de DirectIO */
};

/* ------------------------------------------------------------------ conexão */

/** Abre a conexão com a impressora.
 *
 *  Modelos e suas colunas por linha, na fonte normal e na pequena: VANTA, VESPA, VOLTA, PINTA,
 *  SALVI e DUNEL 48 e 64; ORLA-K e SORBE 42 e 56; RANZA, RANZAPRO e TESMO não têm largura definida.
 *
 *  Impressoras seriais e TCP são perguntadas pelo nome do modelo (GS I 67; TESMO: ~HI) e têm 750 ms
 *  para responder; a conexão TCP é esperada por até 2000 ms. Uma conexão TCP recusada devolve
 *  Q7_OK, veja as convenções.
 *
 *  Uma conexão que já está aberta é abandonada, não fechada: chame FechaConexaoImpressora antes.
 *
 *  \param tipo tipo de conexão, um valor de Q7Connection.
 *  \param modelo nome do modelo, em maiúsculas ou minúsculas. Enquanto o último resultado é 0
 *    (depois da carga, de abrir ou de fechar) qualquer outro nome também passa e deixa o modelo
 *    como estava.
 *  \param conexao porta serial ("COM3"; no Linux "ttyUSB0" ou um caminho), nome ou endereço TCP;
 *    ignorado na USB.
 *  \param parametro bits por segundo (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200)
 *    ou porta TCP, de 0 a 65535 (9100 é usual); ignorado na USB.
 *  \return 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
 *  \erros Q7_ERR_KIND Q7_ERR_MODEL Q7_ERR_UNKNOWN_PRINTER Q7_ERR_SPEED Q7_ERR_SERIAL_NOT_FOUND
 *    Q7_ERR_SERIAL_DENIED Q7_ERR_SERIAL_UNKNOWN Q7_ERR_USB_ABSENT Q7_ERR_USB_OPEN Q7_ERR_TCP_PORT
 *    Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos GS I 67, por serial e TCP.
 *  \exemplo AbreConexaoImpressora(Q7_CONNECTION_SERIAL, "VESPA", "COM3", 9600); */
Q7_API int Q7_CALL AbreConexaoImpressora(int tipo, const char* modelo, const char* conexao,
                                         int parametro);

/** Fecha a conexão depois que o que foi aceito foi entregue.
 *
 *  Desiste depois de 5 s em que nada anda; o que falta então se perde, e o log diz isso.
 *
 *  \return 0, um código, ou, na USB, um número positivo de erro do sistema.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos nenhum.
 *  \exemplo FechaConexaoImpressora(); */
Q7_API int Q7_CALL FechaConexaoImpressora(void);

/** Diz a versão da biblioteca.
 *
 *  \return o texto "01.01.00", em memória nova que fica com quem chamou.
 *  \efeito nenhum; não precisa de conexão.
 *  \escpos nenhum.
 *  \exemplo puts(GetVersaoDLL()); */
Q7_API char* Q7_CALL GetVersaoDLL(void);

/* ------------------------------------------------------------------ texto */

/** Imprime um texto.
 *
 *  Se nenhum espaçamento foi guardado (EspacamentoEntreLinhas) e ModoPagina não foi chamada, a
 *  impressora é reiniciada antes: alinhamento, estilo e tamanho começam de novo, e uma linha ainda
 *  sem "\n" se perde.
 *
 *  Por TCP e serial a contagem tem 16 bits e dá a volta em textos de 32768 bytes ou mais: 40000
 *  bytes devolvem Q7_ERR_NOT_SENT embora saiam. Imprima textos assim em partes.
 *
 *  \param dados o texto, em UTF-8; os fins de linha ("\n") são de quem chama, nenhum é
 *    acrescentado.
 *  \param posicao alinhamento, um valor de Q7Alignment; 0 deixa como está.
 *  \param stilo soma de valores de Q7Style, de 0 a 15. Um estilo vale até a impressora ser
 *    reiniciada.
 *  \param tamanho tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
 *  \return a quantidade de bytes do texto enviados, ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_ALIGNMENT Q7_ERR_STYLE Q7_ERR_SIZE Q7_ERR_NOT_SENT
 *  \efeito na hora; a impressora imprime cada linha quando recebe o seu "\n".
 *  \escpos ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
 *  \exemplo ImpressaoTexto("TOTAL R$ 10,00\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_NORMAL); */
Q7_API int Q7_CALL ImpressaoTexto(const char* dados, int posicao, int stilo, int tamanho);

/** Guarda o espaçamento entre linhas dos textos que seguem.
 *
 *  Depois dela os textos não reiniciam mais a impressora, nem em outra conexão. É a mesma função
 *  que SetTextLineSpace.
 *
 *  \param espacamento espaçamento em pontos, de 1 a 255.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_SIZE
 *  \efeito no próximo ImpressaoTexto; a própria função não envia nada.
 *  \escpos ESC 3 n, com o próximo ImpressaoTexto.
 *  \exemplo EspacamentoEntreLinhas(40);
 *    ImpressaoTexto("Total\n", Q7_ALIGN_LEFT, Q7_STYLE_NORMAL, Q7_SIZE_NORMAL); */
Q7_API int Q7_CALL EspacamentoEntreLinhas(int espacamento);

/** Define o alinhamento.
 *
 *  \param posicao um valor de Q7Alignment; de valores negativos vai o byte baixo.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_ALIGNMENT Q7_ERR_NOT_SENT
 *  \efeito no que vier a seguir; o próximo ImpressaoTexto o desfaz se reiniciar a impressora.
 *  \escpos ESC a n.
 *  \exemplo DefinePosicao(Q7_ALIGN_CENTER); */
Q7_API int Q7_CALL DefinePosicao(int posicao);

/** Reinicia a impressora, que volta às definições de quando é ligada.
 *
 *  Uma linha ainda não impressa se perde.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos ESC @.
 *  \exemplo InicializaImpressora(); */
Q7_API int Q7_CALL InicializaImpressora(void);

/* ------------------------------------------------------------------ símbolos */

/** Imprime um QR Code.
 *
 *  A SORBE aceita também níveis acima de 4.
 *
 *  \param dados o conteúdo. ASCII é seguro; em outros textos o comprimento anunciado à impressora
 *    conta caracteres, não bytes.
 *  \param tamanho tamanho do módulo em pontos, de 1 a 6.
 *  \param nivelCorrecao nível de correção, um valor de Q7QrLevel.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_QR_SIZE Q7_ERR_QR_LEVEL Q7_ERR_QR_EMPTY Q7_ERR_NOT_SENT
 *    Q7_ERR_FAILED
 *  \efeito na hora, com o alinhamento em vigor.
 *  \escpos GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
 *  \exemplo ImpressaoQRCode("https://exemplo.com.br", 4, Q7_QR_LEVEL_M); */
Q7_API int Q7_CALL ImpressaoQRCode(const char* dados, int tamanho, int nivelCorrecao);

/** Imprime um código de barras.
 *
 *  O que cada tipo aceita: UPC-A 11 ou 12 dígitos; UPC-E 11 ou 12, o primeiro "0"; EAN-13 12 ou 13;
 *  EAN-8 7 ou 8; CODE39 de 1 a 255 dígitos, letras maiúsculas e " $%*+-./"; ITF dígitos em
 *  quantidade par; CODABAR dígitos e "$+-./:" entre um início e um fim, cada um de A a D ou a a d;
 *  CODE93 de 1 a 255 caracteres ASCII; CODE128 texto ASCII atrás de um seletor de subconjunto "{A",
 *  "{B" ou "{C", e "{C" seguido de pares de dígitos. A SORBE não precisa do seletor e o descarta.
 *
 *  A DUNEL não imprime o texto do código; a SORBE mantém a definição própria.
 *
 *  \param tipo um valor de Q7Barcode.
 *  \param dados o conteúdo, como acima.
 *  \param altura altura em pontos, de 1 a 255.
 *  \param largura largura do módulo em pontos, de 1 a 6.
 *  \param HRI posição do texto do código, um valor de Q7Hri.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_BARCODE_TYPE Q7_ERR_BARCODE_HEIGHT Q7_ERR_BARCODE_WIDTH
 *    Q7_ERR_BARCODE_HRI Q7_ERR_BARCODE_DATA Q7_ERR_NOT_SENT Q7_ERR_FAILED
 *  \efeito na hora, com o alinhamento em vigor.
 *  \escpos GS h, GS w, GS H, GS k m n (função B).
 *  \exemplo ImpressaoCodigoBarras(Q7_BARCODE_EAN13, "7891000315507", 80, 2, Q7_HRI_BELOW); */
Q7_API int Q7_CALL ImpressaoCodigoBarras(int tipo, const char* dados, int altura, int largura,
                                         int HRI);

/** Imprime uma imagem que a ferramenta do fabricante gravou na memória da impressora.
 *
 *  \param chave os dois caracteres da chave da imagem, cada um de 0x20 a 0x7E.
 *  \param escala um valor de Q7ImageScale.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_IMAGE_KEY Q7_ERR_IMAGE_SCALE Q7_ERR_NOT_SENT
 *  \efeito na hora, com o alinhamento em vigor.
 *  \escpos GS ( L, função 69.
 *  \exemplo ImprimeImagemMemoria("00", Q7_IMAGE_NORMAL); */
Q7_API int Q7_CALL ImprimeImagemMemoria(const char* chave, int escala);

/* ------------------------------------------------------------------ papel, gaveta, sinal sonoro */

/** Avança o papel e corta.
 *
 *  \param avanco linhas a avançar antes; 0 ou menos não avança.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos LF, GS V 0.
 *  \exemplo Corte(4); */
Q7_API int Q7_CALL Corte(int avanco);

/** Avança o papel.
 *
 *  \param linhas linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos LF.
 *  \exemplo AvancaPapel(2); */
Q7_API int Q7_CALL AvancaPapel(int linhas);

/** Abre a gaveta.
 *
 *  Um tempo 0 encurta o comando, e a impressora toma o que vem depois pelos tempos que faltam:
 *  passe de 1 a 255.
 *
 *  \param pino saída da impressora, 0 ou 1.
 *  \param ti tempo ligado, em unidades de 2 ms, de 0 a 255.
 *  \param tf tempo desligado, em unidades de 2 ms, de 0 a 255.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_DRAWER_PIN Q7_ERR_DRAWER_TIME Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos ESC p m t1 t2.
 *  \exemplo AbreGaveta(0, 50, 200); */
Q7_API int Q7_CALL AbreGaveta(int pino, int ti, int tf);

/** Abre a gaveta pela saída 0 com os dois tempos em 200 ms.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos ESC p 48 100 100.
 *  \exemplo AbreGavetaTavlo(); */
Q7_API int Q7_CALL AbreGavetaTavlo(void);

/** Dá sinais sonoros.
 *
 *  Só um dos dois tempos pode passar de 25.
 *
 *  \param qtd quantidade de sinais, de 0 a 63.
 *  \param tempoInicio duração de cada sinal, em unidades de 100 ms.
 *  \param tempoFim pausa depois de cada sinal, em unidades de 100 ms.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_BUZZER_COUNT Q7_ERR_BUZZER_TIME Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos GS ( A, função 97.
 *  \exemplo SinalSonoro(3, 2, 2); */
Q7_API int Q7_CALL SinalSonoro(int qtd, int tempoInicio, int tempoFim);

/* ------------------------------------------------------------------ estado e acesso direto */

/** Pergunta o estado da impressora.
 *
 *  Espera no máximo 1500 ms pela resposta e outro tanto pelo fim dela, a cada pergunta;
 *  Q7_STATUS_ALL faz até três.
 *
 *  \param param a pergunta, um valor de Q7Status.
 *  \return para as perguntas de 1 a 4 um valor de Q7State; para Q7_STATUS_ALL a soma de valores de
 *    Q7StateBit; ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NO_REPLY Q7_ERR_STATUS_UNAVAILABLE Q7_ERR_STATUS_KIND
 *    Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos GS a 0, DLE EOT n.
 *  \exemplo if (StatusImpressora(Q7_STATUS_PAPER) == Q7_STATE_PAPER_OUT) puts("sem papel"); */
Q7_API int Q7_CALL StatusImpressora(int param);

/** Envia bytes como estão e lê uma resposta.
 *
 *  Espera no máximo 1500 ms pelo começo da resposta e 500 ms pelo fim. O log não traz o nome da
 *  função; traz os bytes enviados.
 *
 *  \param[bytes] comando os bytes; nulo não envia nada.
 *  \param tamanho quantidade de bytes; abaixo de 1 não envia nada.
 *  \param[out] resposta memória para a resposta, que precisa ser grande o bastante, diga
 *    tamanhoResposta o que disser: 1024 bytes comportam qualquer resposta por USB; por serial e TCP
 *    vem antes o que a impressora enviou e ninguém leu, e Q7_LONGEST_REPLY bytes comportam tudo.
 *  \param[in,out] tamanhoResposta na entrada, 0 se nenhuma resposta é pedida; na saída, a
 *    quantidade de bytes copiados.
 *  \return 0 ou um código; Q7_ERR_FAILED quando nenhuma resposta foi pedida, também com resposta ou
 *    tamanhoResposta nulos, embora os bytes tenham sido enviados.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NO_REPLY Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos o que comando contém.
 *  \exemplo char resposta[Q7_LONGEST_REPLY];
 *    unsigned int quantos = sizeof resposta;
 *    DirectIO("\x1D\x49\x43", 3, resposta, &quantos); */
Q7_API int Q7_CALL DirectIO(const char* comando, int tamanho, char* resposta,
                            unsigned int* tamanhoResposta);

/** Pergunta à impressora quem ela é.
 *
 *  Com 0 e 1 vai um algarismo atrás do comando, que as impressoras tomam por texto: ele aparece na
 *  frente da próxima linha impressa.
 *
 *  \param tipo a pergunta, um valor de Q7Identification.
 *  \return a resposta, em Latin-1, até o primeiro byte que não era UTF-8, ou um código em decimal
 *    ("-4", "-81", "-402"), em memória nova que fica com quem chamou.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NO_REPLY Q7_ERR_ID_KIND
 *  \efeito na hora.
 *  \escpos GS I n.
 *  \exemplo puts(IdImpressora(Q7_ID_MODEL)); */
Q7_API char* Q7_CALL IdImpressora(int tipo);

/* ------------------------------------------------------------------ modo página */

/** Entra no modo página.
 *
 *  Daí em diante os textos não reiniciam mais a impressora, nem depois de ModoPadrao.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos ESC L.
 *  \exemplo ModoPagina(); */
Q7_API int Q7_CALL ModoPagina(void);

/** Define a direção de impressão no modo página.
 *
 *  \param direcao um valor de Q7Direction.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_DIRECTION Q7_ERR_NOT_SENT
 *  \efeito no que vier a seguir na página.
 *  \escpos ESC T n.
 *  \exemplo DirecaoImpressao(Q7_DIRECTION_LEFT_TO_RIGHT); */
Q7_API int Q7_CALL DirecaoImpressao(int direcao);

/** Define a área de impressão no modo página.
 *
 *  De valores fora da faixa os dois bytes enviados não significam nada.
 *
 *  \param x canto esquerdo em pontos, de 0 a 65535.
 *  \param y canto superior em pontos, de 0 a 65535.
 *  \param largura largura em pontos, de 0 a 65535.
 *  \param altura altura em pontos, de 0 a 65535.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito no que vier a seguir na página.
 *  \escpos ESC W.
 *  \exemplo DefineAreaImpressao(0, 0, 512, 1000); */
Q7_API int Q7_CALL DefineAreaImpressao(int x, int y, int largura, int altura);

/** Define a posição horizontal absoluta.
 *
 *  \param posicao pontos, de 0 a 500; valores negativos passam, mas os dois bytes enviados não
 *    significam nada.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_POSITION Q7_ERR_NOT_SENT
 *  \efeito no que vier a seguir.
 *  \escpos ESC $.
 *  \exemplo PosicaoImpressaoHorizontal(300); */
Q7_API int Q7_CALL PosicaoImpressaoHorizontal(int posicao);

/** Define a posição vertical absoluta no modo página.
 *
 *  \param posicao pontos, de 0 a 65535; de valores fora da faixa os dois bytes enviados não
 *    significam nada.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito no que vier a seguir na página.
 *  \escpos GS $.
 *  \exemplo PosicaoImpressaoVertical(50); */
Q7_API int Q7_CALL PosicaoImpressaoVertical(int posicao);

/** Imprime a página e continua no modo página.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos ESC FF.
 *  \exemplo ImprimeModoPagina(); */
Q7_API int Q7_CALL ImprimeModoPagina(void);

/** Apaga a página sem a imprimir.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos CAN.
 *  \exemplo LimpaBufferModoPagina(); */
Q7_API int Q7_CALL LimpaBufferModoPagina(void);

/** Imprime a página e volta ao modo padrão.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos FF.
 *  \exemplo ImprimeMPeRetornaPadrao(); */
Q7_API int Q7_CALL ImprimeMPeRetornaPadrao(void);

/** Volta ao modo padrão; uma página não impressa se perde.
 *
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos ESC S.
 *  \exemplo ModoPadrao(); */
Q7_API int Q7_CALL ModoPadrao(void);

/* ------------------------------------------------------------------ documentos fiscais */

/** Imprime o extrato de uma venda CF-e do SAT; não corta.
 *
 *  De um documento que não pode ser lido saem só os rótulos, e o resultado é 0.
 *
 *  \param dados o texto do XML autorizado (raiz CFe), não o nome de um arquivo.
 *  \param param soma de valores de Q7CfeOption.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN
 *  \efeito na hora.
 *  \escpos os das funções de texto, código de barras e QR Code.
 *  \exemplo const char* xml = "<CFe><infCFe/></CFe>";
 *    ImprimeXMLSAT(xml, Q7_CFE_NO_ITEMS);
 *    Corte(4); */
Q7_API int Q7_CALL ImprimeXMLSAT(const char* dados, int param);

/** Imprime o extrato do cancelamento de um CF-e do SAT; não corta.
 *
 *  \param dados o texto do XML do cancelamento (raiz CFeCanc), não o nome de um arquivo.
 *  \param assinaturaQRCODE a assinatura da venda cancelada (o elemento desse nome no XML dela), de
 *    344 caracteres.
 *  \param param 0 ou Q7_CFE_LOGO.
 *  \return 0 ou um código; Q7_ERR_FAILED quando o documento não é um cancelamento.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_SIGNATURE Q7_ERR_FAILED
 *  \efeito na hora.
 *  \escpos os das funções de texto, código de barras e QR Code.
 *  \exemplo const char* xml = "<CFeCanc><infCFe/></CFeCanc>";
 *    const char* assinatura = "os 344 caracteres do elemento assinaturaQRCODE";
 *    ImprimeXMLCancelamentoSAT(xml, assinatura, 0);
 *    Corte(4); */
Q7_API int Q7_CALL ImprimeXMLCancelamentoSAT(const char* dados, const char* assinaturaQRCODE,
                                             int param);

/** Imprime o DANFE de uma NFC-e; não corta no fim.
 *
 *  Uma nota em contingência sai em duas vias, com um corte entre elas.
 *
 *  \param dados o texto do XML (raiz nfeProc ou NFe), versão 4.00, com a urlChave; não o nome de um
 *    arquivo.
 *  \param indexcsc o identificador do CSC do contribuinte, usado se a nota não tem qrCode.
 *  \param csc o CSC do contribuinte, usado se a nota não tem qrCode.
 *  \param param soma de valores de Q7NfceOption, no máximo 65535.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NFCE_OPTIONS Q7_ERR_NFCE_NO_VERSION Q7_ERR_NFCE_VERSION
 *    Q7_ERR_NFCE_EMISSION Q7_ERR_NFCE_MODEL Q7_ERR_NFCE_QR
 *  \efeito na hora.
 *  \escpos os das funções de texto, de QR Code e do modo página.
 *  \exemplo const char* xml = "<NFe><infNFe versao=\"4.00\"/></NFe>";
 *    ImprimeXMLNFCe(xml, 1, "0123456789", Q7_NFCE_SEPARATORS | Q7_NFCE_ISSUER_IE);
 *    Corte(4); */
Q7_API int Q7_CALL ImprimeXMLNFCe(const char* dados, int indexcsc, const char* csc, int param);

/* ------------------------------------------------------------------ família em inglês: porta */

/** Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem.
 *
 *  \param handle ignorado.
 *  \param model nome do modelo, como em AbreConexaoImpressora.
 *  \return 0.
 *  \efeito no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
 *  \escpos nenhum.
 *  \exemplo PrinterCreator(0, "VANTA"); */
Q7_API int Q7_CALL PrinterCreator(void* handle, const char* model);

/** Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem, como PrinterCreator, sem
 *  resultado.
 *
 *  \param handle ignorado.
 *  \param model nome do modelo, como em AbreConexaoImpressora.
 *  \efeito no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
 *  \escpos nenhum.
 *  \exemplo PrinterCreatorS(0, "VANTA"); */
Q7_API void Q7_CALL PrinterCreatorS(void* handle, const char* model);

/** Não libera nada: a porta continua aberta. Protegida.
 *
 *  \param handle ignorado.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN
 *  \efeito nenhum.
 *  \escpos nenhum.
 *  \exemplo PrinterDestroy(0); */
Q7_API int Q7_CALL PrinterDestroy(void* handle);

/** Abre a conexão com o modelo de PrinterCreator, como AbreConexaoImpressora.
 *
 *  O texto é feito de campos separados por "," ou "_", que por isso não podem aparecer em nomes nem
 *  em caminhos. O primeiro campo contém, em maiúsculas ou minúsculas, uma das palavras
 *   - "COM": ele mesmo é a porta serial e o segundo são os bits por segundo: "COM3,9600";
 *   - "NET": o segundo é o nome ou endereço e o terceiro a porta TCP, 9100 se falta ou está vazio:
 *     "NET,192.168.0.10,9100";
 *   - "USB": não precisa de outros campos.
 *
 *  Qualquer outro texto ("COM3" ou "NET" sozinhos também) devolve Q7_ERR_KIND, e a velocidade que
 *  falta, Q7_ERR_SPEED.
 *
 *  \param handle ignorado.
 *  \param text a porta, como acima.
 *  \como AbreConexaoImpressora
 *  \exemplo PrinterCreator(0, "VANTA");
 *    PortOpen(0, "USB"); */
Q7_API int Q7_CALL PortOpen(void* handle, const char* text);

/** Fecha a conexão, como FechaConexaoImpressora. Protegida.
 *
 *  \param handle ignorado.
 *  \como FechaConexaoImpressora
 *  \exemplo PortClose(0); */
Q7_API int Q7_CALL PortClose(void* handle);

/** Reinicia a impressora, como InicializaImpressora. Protegida.
 *
 *  \param handle ignorado.
 *  \como InicializaImpressora
 *  \exemplo PrinterInitialize(0); */
Q7_API int Q7_CALL PrinterInitialize(void* handle);

/* ------------------------------------------------------------------ família em inglês: texto */

/** Imprime um texto, como ImpressaoTexto. Protegida; o log traz os dois nomes.
 *
 *  \param handle ignorado.
 *  \param text o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
 *  \param alignment alinhamento, um valor de Q7Alignment; 0 deixa como está.
 *  \param style soma de valores de Q7Style, de 0 a 15.
 *  \param size tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
 *  \como ImpressaoTexto
 *  \exemplo PrintText(0, "TOTAL R$ 10,00\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_NORMAL); */
Q7_API int Q7_CALL PrintText(void* handle, const char* text, int alignment, int style, int size);

/** Envia os bytes de um texto como estão: sem conversão para Latin-1, sem escolher a tabela de
 *  caracteres.
 *
 *  Protegida, mas o log a registra antes.
 *
 *  \param handle ignorado.
 *  \param text o texto, que vai até o primeiro byte zero.
 *  \return a quantidade de bytes enviados, ou um código; um texto vazio devolve Q7_ERR_NOT_SENT.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_NOT_SENT
 *  \efeito na hora.
 *  \escpos nenhum além do texto.
 *  \exemplo PrintTextS(0, "TOTAL 10,00\n"); */
Q7_API int Q7_CALL PrintTextS(void* handle, const char* text);

/** Define o alinhamento ao centro ou à direita. Protegida.
 *
 *  0, à esquerda, é aceito mas não envia nada: a impressora fica como está. Para voltar à esquerda
 *  chame DefinePosicao com Q7_ALIGN_LEFT.
 *
 *  \param handle ignorado.
 *  \param alignment Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.
 *  \return 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_ALIGNMENT Q7_ERR_NOT_SENT
 *  \efeito no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
 *  \escpos ESC a n.
 *  \exemplo SetAlign(0, Q7_ALIGN_CENTER); */
Q7_API int Q7_CALL SetAlign(void* handle, int alignment);

/** Liga ou desliga o negrito. Protegida, mas o log a registra antes.
 *
 *  \param handle ignorado.
 *  \param on 1 liga, 0 desliga.
 *  \return 0, também quando nada foi enviado, ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_STYLE
 *  \efeito no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
 *  \escpos ESC E n.
 *  \exemplo SetTextBold(0, 1); */
Q7_API int Q7_CALL SetTextBold(void* handle, int on);

/** Escolhe a fonte e desliga o sublinhado, que o mesmo comando define. Protegida, mas o log a
 *  registra antes.
 *
 *  \param handle ignorado.
 *  \param font um valor de Q7Font.
 *  \return 0, também quando nada foi enviado, ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_STYLE
 *  \efeito no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
 *  \escpos ESC ! n.
 *  \exemplo SetTextFont(0, Q7_FONT_SMALL); */
Q7_API int Q7_CALL SetTextFont(void* handle, int font);

/** Guarda o espaçamento entre linhas: é a mesma função que EspacamentoEntreLinhas, e o log traz o
 *  nome dela. Não tem identificador.
 *
 *  \param spacing espaçamento em pontos, de 1 a 255.
 *  \como EspacamentoEntreLinhas
 *  \exemplo SetTextLineSpace(40); */
Q7_API int Q7_CALL SetTextLineSpace(int spacing);

/* ------------------------------------------------------------------ família em inglês: símbolos */

/** Imprime um código de barras, como ImpressaoCodigoBarras. Protegida.
 *
 *  \param handle ignorado.
 *  \param type um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
 *  \param data o conteúdo, como em ImpressaoCodigoBarras.
 *  \param width largura do módulo em pontos, de 1 a 6.
 *  \param height altura em pontos, de 1 a 255.
 *  \param hri posição do texto do código, um valor de Q7Hri.
 *  \como ImpressaoCodigoBarras
 *  \exemplo PrintBarCode(0, Q7_BARCODE_EAN13, "7891000315507", 2, 80, Q7_HRI_BELOW); */
Q7_API int Q7_CALL PrintBarCode(void* handle, int type, const char* data, int width, int height,
                                int hri);

/** Imprime um QR Code, como ImpressaoQRCode.
 *
 *  \param handle ignorado.
 *  \param type ignorado.
 *  \param data o conteúdo, como em ImpressaoQRCode.
 *  \param errorLevel nível de correção, um valor de Q7QrLevel.
 *  \param size tamanho do módulo em pontos, de 1 a 6.
 *  \como ImpressaoQRCode
 *  \exemplo PrintSymbol(0, 0, "https://exemplo.com.br", Q7_QR_LEVEL_M, 4); */
Q7_API int Q7_CALL PrintSymbol(void* handle, int type, const char* data, int errorLevel, int size);

/** Falha sempre e nunca imprime: para uma imagem gravada na impressora chame ImprimeImagemMemoria.
 *
 *  Programas desta interface podem chamá-la; ela é ImprimeImagemMemoria com a escala 0, que não
 *  existe.
 *
 *  \param handle ignorado.
 *  \param k1 primeiro caractere da chave, do qual conta o byte baixo.
 *  \param k2 segundo caractere da chave, do qual conta o byte baixo.
 *  \return sempre um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_IMAGE_KEY Q7_ERR_IMAGE_SCALE
 *  \efeito nenhum.
 *  \escpos nenhum.
 *  \exemplo PrintNVImage(0, '0', '0'); */
Q7_API int Q7_CALL PrintNVImage(void* handle, int k1, int k2);

/** Não faz nada: as imagens são gravadas com a ferramenta do fabricante da impressora.
 *
 *  \param a ignorado.
 *  \param b ignorado.
 *  \param c ignorado.
 *  \param d ignorado.
 *  \return 0.
 *  \efeito nenhum.
 *  \escpos nenhum.
 *  \exemplo DefineNVImage(0, 0, 0, 0); */
Q7_API int Q7_CALL DefineNVImage(int a, int b, int c, int d);

/* ------------------------------------------------------------------ família em inglês: papel */

/** Avança o papel, como AvancaPapel. Protegida.
 *
 *  \param handle ignorado.
 *  \param lines linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
 *  \como AvancaPapel
 *  \exemplo FeedLine(0, 2); */
Q7_API int Q7_CALL FeedLine(void* handle, int lines);

/** Avança o papel e corta, como Corte. Protegida.
 *
 *  \param handle ignorado.
 *  \param lines linhas a avançar antes; 0 ou menos não avança.
 *  \como Corte
 *  \exemplo CutPaper(0, 4); */
Q7_API int Q7_CALL CutPaper(void* handle, int lines);

/** Abre a gaveta, como AbreGaveta. Protegida.
 *
 *  \param handle ignorado.
 *  \param pin saída da impressora, 0 ou 1.
 *  \param onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
 *  \param offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
 *  \como AbreGaveta
 *  \exemplo OpenDrawer(0, 0, 50, 200); */
Q7_API int Q7_CALL OpenDrawer(void* handle, int pin, int onTime, int offTime);

/** Abre a gaveta; é OpenDrawer com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param pin saída da impressora, 0 ou 1.
 *  \param onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
 *  \param offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
 *  \como AbreGaveta
 *  \exemplo OpenCashDrawer(0, 0, 50, 200); */
Q7_API int Q7_CALL OpenCashDrawer(void* handle, int pin, int onTime, int offTime);

/* ------------------------------------------------------------------ família em inglês: estado */

/** Pergunta o estado da impressora, com StatusImpressora e Q7_STATUS_ALL. Protegida.
 *
 *  Qualquer outra resposta, ou nenhuma, devolve Q7_ERR_STATUS_UNAVAILABLE e deixa state como
 *  estava: por USB e serial também sempre que o sinal da gaveta está em nível baixo.
 *
 *  \param handle ignorado.
 *  \param[out] state recebe um valor de Q7PrinterState; pode ser nulo.
 *  \return 0 ou um código.
 *  \erros Q7_ERR_NOT_OPEN Q7_ERR_STATUS_UNAVAILABLE
 *  \efeito na hora.
 *  \escpos GS a 0, DLE EOT n.
 *  \exemplo int estado = Q7_PRINTER_READY;
 *    GetPrinterState(0, &estado);
 *    if (estado == Q7_PRINTER_PAPER_OUT) puts("sem papel"); */
Q7_API int Q7_CALL GetPrinterState(void* handle, int* state);

/** Pergunta o sinal da gaveta, com StatusImpressora e Q7_STATUS_DRAWER. Protegida.
 *
 *  state fica como estava quando a impressora não disse nada e por TCP, em que a gaveta não pode
 *  ser perguntada.
 *
 *  \param handle ignorado.
 *  \param[out] state recebe 1 ou 0; pode ser nulo.
 *  \param polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
 *  \return 0, também quando state fica como estava, ou um código.
 *  \erros Q7_ERR_NOT_OPEN
 *  \efeito na hora.
 *  \escpos GS a 0, DLE EOT 1.
 *  \exemplo int estado = -1;
 *    GetDrawerState(0, &estado, 1); */
Q7_API int Q7_CALL GetDrawerState(void* handle, int* state, int polarity);

/** Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param[out] state recebe 1 ou 0; pode ser nulo.
 *  \param polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
 *  \como GetDrawerState
 *  \exemplo int estado = -1;
 *    GetCashDrawerState(0, &estado, 1); */
Q7_API int Q7_CALL GetCashDrawerState(void* handle, int* state, int polarity);

/* ------------------------------------------------------------------ família em inglês: modo
 * página */

/** Entra no modo página, como ModoPagina. Protegida.
 *
 *  \param handle ignorado.
 *  \como ModoPagina
 *  \exemplo SelectPageMode(0); */
Q7_API int Q7_CALL SelectPageMode(void* handle);

/** Volta ao modo padrão; é PrtSelectStandardMode com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \como PrtSelectStandardMode
 *  \exemplo SelectStandardMode(0); */
Q7_API int Q7_CALL SelectStandardMode(void* handle);

/** Define a direção de impressão no modo página, como DirecaoImpressao. Protegida.
 *
 *  \param handle ignorado.
 *  \param direction um valor de Q7Direction.
 *  \como DirecaoImpressao
 *  \exemplo SelectPrintDirectionInPageMode(0, Q7_DIRECTION_LEFT_TO_RIGHT); */
Q7_API int Q7_CALL SelectPrintDirectionInPageMode(void* handle, int direction);

/** Define a área de impressão no modo página, como DefineAreaImpressao. Protegida.
 *
 *  \param handle ignorado.
 *  \param x canto esquerdo em pontos, de 0 a 65535.
 *  \param y canto superior em pontos, de 0 a 65535.
 *  \param width largura em pontos, de 0 a 65535.
 *  \param height altura em pontos, de 0 a 65535.
 *  \como DefineAreaImpressao
 *  \exemplo SetPrintAreaInPageMode(0, 0, 0, 512, 1000); */
Q7_API int Q7_CALL SetPrintAreaInPageMode(void* handle, int x, int y, int width, int height);

/** Define a posição horizontal absoluta, como PosicaoImpressaoHorizontal. Protegida.
 *
 *  \param handle ignorado.
 *  \param position pontos, de 0 a 500.
 *  \como PosicaoImpressaoHorizontal
 *  \exemplo SetAbSolutePrintPosition(0, 300); */
Q7_API int Q7_CALL SetAbSolutePrintPosition(void* handle, int position);

/** Define a posição vertical absoluta no modo página, como PosicaoImpressaoVertical. Protegida.
 *
 *  \param handle ignorado.
 *  \param position pontos, de 0 a 65535.
 *  \como PosicaoImpressaoVertical
 *  \exemplo SetAbsoluteVerticalPrintPositionInPageMode(0, 50); */
Q7_API int Q7_CALL SetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position);

/** Imprime a página e continua no modo página, como ImprimeModoPagina. Protegida.
 *
 *  \param handle ignorado.
 *  \como ImprimeModoPagina
 *  \exemplo PrintDataInPageMode(0); */
Q7_API int Q7_CALL PrintDataInPageMode(void* handle);

/** Apaga a página sem a imprimir, como LimpaBufferModoPagina. Protegida.
 *
 *  \param handle ignorado.
 *  \como LimpaBufferModoPagina
 *  \exemplo CancelPrintDataInPageMode(0); */
Q7_API int Q7_CALL CancelPrintDataInPageMode(void* handle);

/** Imprime a página e volta ao modo padrão, como ImprimeMPeRetornaPadrao. Protegida.
 *
 *  \param handle ignorado.
 *  \como ImprimeMPeRetornaPadrao
 *  \exemplo SetPrintAndReturnStandardMode(0); */
Q7_API int Q7_CALL SetPrintAndReturnStandardMode(void* handle);

/* ------------------------------------------------------------------ família Prt */

/** Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem: é PrinterCreator, e o nome
 *  guardado é o mesmo.
 *
 *  \param handle ignorado.
 *  \param model nome do modelo, como em AbreConexaoImpressora.
 *  \como PrinterCreator
 *  \exemplo PrtPrinterCreator(0, "VANTA"); */
Q7_API int Q7_CALL PrtPrinterCreator(void* handle, const char* model);

/** Não libera nada: a porta continua aberta, como em PrinterDestroy. Protegida.
 *
 *  \param handle ignorado.
 *  \como PrinterDestroy
 *  \exemplo PrtPrinterDestroy(0); */
Q7_API int Q7_CALL PrtPrinterDestroy(void* handle);

/** Abre a conexão com o modelo de PrinterCreator; é PortOpen com outro nome.
 *
 *  \param handle ignorado.
 *  \param text a porta, como em PortOpen: "COM3,9600", "NET,192.168.0.10,9100" ou "USB".
 *  \como AbreConexaoImpressora
 *  \exemplo PrtPrinterCreator(0, "VANTA");
 *    PrtPortOpen(0, "NET,192.168.0.10,9100"); */
Q7_API int Q7_CALL PrtPortOpen(void* handle, const char* text);

/** Fecha a conexão, como FechaConexaoImpressora; não é protegida: o log a registra também quando
 *  nada está aberto.
 *
 *  \param handle ignorado.
 *  \como FechaConexaoImpressora
 *  \exemplo PrtPortClose(0); */
Q7_API int Q7_CALL PrtPortClose(void* handle);

/** Reinicia a impressora, como InicializaImpressora. Protegida.
 *
 *  \param handle ignorado.
 *  \como InicializaImpressora
 *  \exemplo PrtPrinterInitialize(0); */
Q7_API int Q7_CALL PrtPrinterInitialize(void* handle);

/** Imprime um texto; é PrintText com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param text o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
 *  \param alignment alinhamento, um valor de Q7Alignment; 0 deixa como está.
 *  \param style soma de valores de Q7Style, de 0 a 15.
 *  \param size tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
 *  \como ImpressaoTexto
 *  \exemplo PrtPrintText(0, "TOTAL R$ 10,00\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_NORMAL); */
Q7_API int Q7_CALL PrtPrintText(void* handle, const char* text, int alignment, int style, int size);

/** Define o alinhamento ao centro ou à direita; é SetAlign com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param alignment Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT; com Q7_ALIGN_LEFT nada é enviado.
 *  \como SetAlign
 *  \exemplo PrtSetTextPosition(0, Q7_ALIGN_CENTER); */
Q7_API int Q7_CALL PrtSetTextPosition(void* handle, int alignment);

/** Liga ou desliga o negrito; é SetTextBold com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param on 1 liga, 0 desliga.
 *  \como SetTextBold
 *  \exemplo PrtSetTextBold(0, 1); */
Q7_API int Q7_CALL PrtSetTextBold(void* handle, int on);

/** Escolhe a fonte; é SetTextFont com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param font um valor de Q7Font.
 *  \como SetTextFont
 *  \exemplo PrtSetTextFont(0, Q7_FONT_SMALL); */
Q7_API int Q7_CALL PrtSetTextFont(void* handle, int font);

/** Imprime um código de barras; é PrintBarCode com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param type um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
 *  \param data o conteúdo, como em ImpressaoCodigoBarras.
 *  \param width largura do módulo em pontos, de 1 a 6.
 *  \param height altura em pontos, de 1 a 255.
 *  \param hri posição do texto do código, um valor de Q7Hri.
 *  \como ImpressaoCodigoBarras
 *  \exemplo PrtPrintBarCode(0, Q7_BARCODE_EAN13, "7891000315507", 2, 80, Q7_HRI_BELOW); */
Q7_API int Q7_CALL PrtPrintBarCode(void* handle, int type, const char* data, int width, int height,
                                   int hri);

/** Imprime um QR Code; é PrintSymbol com outro nome.
 *
 *  \param handle ignorado.
 *  \param type ignorado.
 *  \param data o conteúdo, como em ImpressaoQRCode.
 *  \param errorLevel nível de correção, um valor de Q7QrLevel.
 *  \param size tamanho do módulo em pontos, de 1 a 6.
 *  \como ImpressaoQRCode
 *  \exemplo PrtPrintSymbol(0, 0, "https://exemplo.com.br", Q7_QR_LEVEL_M, 4); */
Q7_API int Q7_CALL PrtPrintSymbol(void* handle, int type, const char* data, int errorLevel,
                                  int size);

/** Avança o papel; é FeedLine com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param lines linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
 *  \como AvancaPapel
 *  \exemplo PrtFeedLine(0, 2); */
Q7_API int Q7_CALL PrtFeedLine(void* handle, int lines);

/** Avança o papel e corta, como Corte. Protegida.
 *
 *  \param handle ignorado.
 *  \param lines linhas a avançar antes; 0 ou menos não avança.
 *  \como Corte
 *  \exemplo PrtCutPaper(0, 4); */
Q7_API int Q7_CALL PrtCutPaper(void* handle, int lines);

/** Abre a gaveta; é OpenDrawer com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param pin saída da impressora, 0 ou 1.
 *  \param onTime tempo ligado, em unidades de 2 ms, de 0 a 255.
 *  \param offTime tempo desligado, em unidades de 2 ms, de 0 a 255.
 *  \como AbreGaveta
 *  \exemplo PrtOpenDrawer(0, 0, 50, 200); */
Q7_API int Q7_CALL PrtOpenDrawer(void* handle, int pin, int onTime, int offTime);

/** Pergunta o estado da impressora; é GetPrinterState com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param[out] state recebe um valor de Q7PrinterState; pode ser nulo.
 *  \como GetPrinterState
 *  \exemplo int estado = Q7_PRINTER_READY;
 *    PrtCheckPrinterState(0, &estado); */
Q7_API int Q7_CALL PrtCheckPrinterState(void* handle, int* state);

/** Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param[out] state recebe 1 ou 0; pode ser nulo.
 *  \param polarity diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
 *  \como GetDrawerState
 *  \exemplo int estado = -1;
 *    PrtGetDrawerState(0, &estado, 1); */
Q7_API int Q7_CALL PrtGetDrawerState(void* handle, int* state, int polarity);

/** Entra no modo página; é SelectPageMode com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \como ModoPagina
 *  \exemplo PrtSelectPageMode(0); */
Q7_API int Q7_CALL PrtSelectPageMode(void* handle);

/** Volta ao modo padrão; uma página não impressa se perde. Protegida; o log não traz o nome dela.
 *
 *  \param handle ignorado.
 *  \return 0, também quando nada foi enviado, ou um código.
 *  \erros Q7_ERR_NOT_OPEN
 *  \efeito na hora.
 *  \escpos ESC S.
 *  \exemplo PrtSelectStandardMode(0); */
Q7_API int Q7_CALL PrtSelectStandardMode(void* handle);

/** Define a direção de impressão no modo página; é SelectPrintDirectionInPageMode com outro nome.
 *  Protegida.
 *
 *  \param handle ignorado.
 *  \param direction um valor de Q7Direction.
 *  \como DirecaoImpressao
 *  \exemplo PrtSelectPrintDirectionInPageMode(0, Q7_DIRECTION_LEFT_TO_RIGHT); */
Q7_API int Q7_CALL PrtSelectPrintDirectionInPageMode(void* handle, int direction);

/** Define a área de impressão no modo página; é SetPrintAreaInPageMode com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \param x canto esquerdo em pontos, de 0 a 65535.
 *  \param y canto superior em pontos, de 0 a 65535.
 *  \param width largura em pontos, de 0 a 65535.
 *  \param height altura em pontos, de 0 a 65535.
 *  \como DefineAreaImpressao
 *  \exemplo PrtSetPrintAreaInPageMode(0, 0, 0, 512, 1000); */
Q7_API int Q7_CALL PrtSetPrintAreaInPageMode(void* handle, int x, int y, int width, int height);

/** Define a posição vertical absoluta; é SetAbsoluteVerticalPrintPositionInPageMode com outro nome.
 *  Protegida.
 *
 *  \param handle ignorado.
 *  \param position pontos, de 0 a 65535.
 *  \como PosicaoImpressaoVertical
 *  \exemplo PrtSetAbsoluteVerticalPrintPositionInPageMode(0, 50); */
Q7_API int Q7_CALL PrtSetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position);

/** Imprime a página e continua no modo página; é PrintDataInPageMode com outro nome. Protegida.
 *
 *  \param handle ignorado.
 *  \como ImprimeModoPagina
 *  \exemplo PrtPrintDataInPageMode(0); */
Q7_API int Q7_CALL PrtPrintDataInPageMode(void* handle);

/** Envia um ESC sozinho, que não apaga a página: para isso chame CancelPrintDataInPageMode.
 *  Protegida.
 *
 *  A impressora toma o byte seguinte pelo resto de um comando.
 *
 *  \param handle ignorado.
 *  \return 0, também quando nada foi enviado, ou um código.
 *  \erros Q7_ERR_NOT_OPEN
 *  \efeito na hora.
 *  \escpos ESC.
 *  \exemplo PrtCancelPrintDataInPageMode(0); */
Q7_API int Q7_CALL PrtCancelPrintDataInPageMode(void* handle);

/** Imprime a página e volta ao modo padrão; é SetPrintAndReturnStandardMode com outro nome.
 *  Protegida.
 *
 *  \param handle ignorado.
 *  \como ImprimeMPeRetornaPadrao
 *  \exemplo PrtSetPrintAndReturnStandardMode(0); */
Q7_API int Q7_CALL PrtSetPrintAndReturnStandardMode(void* handle);

#ifdef __cplusplus
}
#endif

#endif /* Q7_IMPRESSORA_H */
