/** \file q7_impressora.h
 *  Q7_Impressora: receipt printers and Brazilian fiscal documents behind a flat C interface.
 *
 *  Loading. The product is the 32-bit Windows library Q7_Impressora.dll: a 64-bit program cannot
 *  load it. Its functions use the stdcall convention and are exported undecorated. The same source
 *  builds libQ7_Impressora.so on Linux with the plain C convention.
 *
 *  Conventions
 *   1. One session. The whole process shares one printer session. Call from one thread at a time;
 *      the thread may change between calls. No event loop and no Qt application are needed.
 *   2. Text is UTF-8 and ends at the first zero byte. Programs whose strings are in code page 1252
 *      (VB6, older Delphi) convert them first; otherwise accented letters print as "?". The printer
 *      receives Latin-1; a character outside it prints as "?". A null pointer reads as empty text.
 *   3. Results. 0, or a count of bytes where a function says so, is success; the codes of
 *      Q7Result are failures. A positive number from AbreConexaoImpressora or
 *      FechaConexaoImpressora is an error number of the system or the socket layer. Over USB a
 *      failed write gives the system's error number, which is positive too: the functions that
 *      return a count (ImpressaoTexto, PrintText, PrintTextS) and SetAlign return it as if it were
 *      one, all others take it for a success.
 *   4. A refused TCP connection is error number 0 and so reads as success; the next call answers
 *      Q7_ERR_NOT_OPEN. Call StatusImpressora after opening to be sure.
 *   5. Returned texts (GetVersaoDLL, IdImpressora) stay with the caller, who never frees them. They
 *      are null where memory is at its end.
 *   6. Kept across FechaConexaoImpressora: the line spacing, page mode (texts stop resetting the
 *      printer once ModoPagina was called), which copy of a contingency note comes next, the model
 *      and the name given to PrinterCreator.
 *   7. Effect. Bytes leave when the call returns. FechaConexaoImpressora waits until what was
 *      accepted has been handed over, within a bound; ending the process without it may lose a tail.
 *
 *  Families. The Portuguese functions come first. The English ones, and the Prt ones behind them,
 *  are there for programs written for two other interfaces: thin layers over the Portuguese
 *  functions and the same session, to be mixed with them at will. Their first argument is a handle
 *  that is ignored: pass anything. "Guarded" means: while no connection is open the function
 *  returns -4 and does nothing at all, no line in the log either. Where no results are listed they
 *  are those of the function named.
 *
 *  Files. The data folder is the registry value "data_path" under HKEY_LOCAL_MACHINE\\SOFTWARE\\Q7,
 *  64-bit view (on Linux the environment variable Q7_DATA_PATH), else the working folder. A file
 *  "log_q7.txt" that exists there receives every call and every byte sent. It then holds the CSC
 *  and customers' data: delete it when it has served. Where it cannot be opened, "Erro ao abrir
 *  arquivo!" goes to standard output, the only text that ever does. "q7_conf.ini" holds the settings; its paths
 *  are written with "/". "q7_usb.ini" may give the USB identifiers of a site's printers.
 *
 *  A receipt in four calls:
 *  \code
 *    if (AbreConexaoImpressora(3, "VANTA", "192.168.0.10", 9100) == 0) {
 *        ImpressaoTexto("Obrigado!\n", 1, 8, 17);
 *        Corte(4);
 *        FechaConexaoImpressora();
 *    }
 *  \endcode
 */
#ifndef Q7_IMPRESSORA_H
#define Q7_IMPRESSORA_H

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

/** Result codes. -71 and -72 are kept for the log, -402 comes as text from IdImpressora, and -6 is
 *  kept for compatibility: no function returns it. */
enum Q7Result {
    Q7_OK = 0,
    Q7_ERR_KIND = -2,              /**< connection kind not 1, 2 or 3 */
    Q7_ERR_MODEL = -3,             /**< model unknown, or the printer is another known model */
    Q7_ERR_NOT_OPEN = -4,          /**< no open connection */
    Q7_ERR_UNKNOWN_PRINTER = -5,   /**< the printer named no known model, or nothing in time */
    Q7_ERR_ALREADY_OPEN = -6,      /**< connection already open */
    Q7_ERR_SPEED = -11,            /**< serial speed not one of the nine allowed */
    Q7_ERR_SERIAL_NOT_FOUND = -12, /**< serial port not found */
    Q7_ERR_SERIAL_DENIED = -13,    /**< serial port in use or not permitted */
    Q7_ERR_SERIAL_UNKNOWN = -14,   /**< serial port failed for an unknown reason */
    Q7_ERR_USB_ABSENT = -21,       /**< no USB printer with the model's identifiers is present */
    Q7_ERR_USB_OPEN = -22,         /**< the USB printer could not be opened */
    Q7_ERR_TCP_PORT = -31,         /**< TCP port number out of range */
    Q7_ERR_ALIGNMENT = -41,        /**< alignment out of 0..2 */
    Q7_ERR_STYLE = -42,            /**< text style, weight or font out of range */
    Q7_ERR_SIZE = -43,             /**< character size out of 0..119, line spacing out of 1..255 */
    Q7_ERR_NOT_SENT = -44,         /**< nothing was written */
    Q7_ERR_QR_SIZE = -51,          /**< QR module size out of 1..6 */
    Q7_ERR_QR_LEVEL = -52,         /**< QR error correction level out of 1..4 */
    Q7_ERR_QR_EMPTY = -53,         /**< QR data empty */
    Q7_ERR_BARCODE_HEIGHT = -61,   /**< barcode height out of 1..255 */
    Q7_ERR_BARCODE_WIDTH = -62,    /**< barcode module width out of 1..6 */
    Q7_ERR_BARCODE_HRI = -63,      /**< barcode text position out of 1..4 */
    Q7_ERR_BARCODE_TYPE = -64,     /**< barcode type out of 0..8 */
    Q7_ERR_BARCODE_DATA = -65,     /**< data invalid for the barcode type */
    Q7_ERR_XSD = -71,              /**< schema invalid, or document does not conform */
    Q7_ERR_XSD_MISSING = -72,      /**< schema file missing */
    Q7_ERR_NO_REPLY = -81,         /**< no reply could be read from the printer */
    Q7_ERR_SIGNATURE = -91,        /**< QR signature not 344 characters long */
    Q7_ERR_NFCE_VERSION = -101,    /**< NFC-e layout version is not 4.00 */
    Q7_ERR_NFCE_NO_VERSION = -102, /**< no NFC-e, or one without the attribute versao */
    Q7_ERR_NFCE_EMISSION = -103,   /**< emission type (tpEmis) missing or 0 */
    Q7_ERR_NFCE_OPTIONS = -104,    /**< NFC-e option bits above 65535 */
    Q7_ERR_BUZZER_COUNT = -111,    /**< buzzer count 64 or more */
    Q7_ERR_BUZZER_TIME = -112,     /**< both buzzer times above 25 */
    Q7_ERR_DRAWER_PIN = -121,      /**< drawer pin above 1 */
    Q7_ERR_DRAWER_TIME = -122,     /**< a drawer time above 255 */
    Q7_ERR_STATUS_UNAVAILABLE = -126, /**< status not available on this kind of connection */
    Q7_ERR_STATUS_KIND = -127,        /**< status kind out of 1..5 */
    Q7_ERR_IMAGE_KEY = -131,          /**< image key is not two printable characters */
    Q7_ERR_IMAGE_SCALE = -132,        /**< image scale out of 1..2 */
    Q7_ERR_DIRECTION = -136,          /**< print direction out of 0..3 */
    Q7_ERR_POSITION = -137,           /**< horizontal position above 500 */
    Q7_ERR_ID_KIND = -402,            /**< identification kind out of 0..6 */
    Q7_ERR_FAILED = -9999             /**< no result: nothing was sent, or any other failure */
};

/* ------------------------------------------------------------------ connection */

/** Opens the connection to the printer.
 *  tipo: 1 USB, 2 serial port, 3 network (TCP).
 *  modelo: model name, in any letter case: VANTA, VESPA, VOLTA, ORLA-K, PINTA, RANZA, RANZAPRO,
 *    SORBE, SALVI, DUNEL or TESMO. While the last result is 0 (after loading, opening or closing)
 *    any other name passes too and leaves the model as it was.
 *  conexao: serial port name ("COM3"; on Linux "ttyUSB0" or a path), host name or address for TCP;
 *    ignored for USB.
 *  parametro: bits per second (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200), TCP port
 *    (9100 is usual); ignored for USB.
 *  Serial and TCP printers are asked for their model name (GS I 67; TESMO: ~HI) for up to 750 ms; a
 *  TCP connection is awaited for up to 2000 ms.
 *  Returns 0; -2 kind; -3 model unknown, or another model answered; -5 no known model answered;
 *  -11 speed; -12, -13, -14 serial port; -21, -22 USB; -31 TCP port; -9999 other failure; a
 *  positive system or socket error number (socket: 1 closed by the other side, 2 host not found,
 *  5 timed out). A refused TCP connection returns 0, see the conventions above.
 *  A connection that is open already is abandoned, not closed: call FechaConexaoImpressora first.
 *  Example: AbreConexaoImpressora(2, "VESPA", "COM3", 9600); */
Q7_API int Q7_CALL AbreConexaoImpressora(int tipo, const char* modelo, const char* conexao,
                                         int parametro);

/** Closes the connection once what was accepted has been handed over (gives up after 5 s without
 *  progress).
 *  Returns 0; -4 not open; -9999 could not be closed; over USB a positive system error number.
 *  Example: FechaConexaoImpressora(); */
Q7_API int Q7_CALL FechaConexaoImpressora(void);

/** Returns the library's version, "01.01.00", in new memory that is the caller's.
 *  Example: puts(GetVersaoDLL()); */
Q7_API char* Q7_CALL GetVersaoDLL(void);

/* ------------------------------------------------------------------ text */

/** Prints text.
 *  dados: the text; line ends ("\n") are the caller's, none is added.
 *  posicao: 0 leaves the alignment as it is, 1 centre, 2 right.
 *  stilo: sum of 1 small font, 2 underline, 4 white on black, 8 emphasised; 1 and 2 together give
 *    underline alone. A style lasts until the printer is reset.
 *  tamanho: 0..119, (width factor - 1) * 16 + (height factor - 1); 17 is double width and height,
 *    0 leaves the size as it is.
 *  Unless a line spacing is stored or page mode was entered, the printer is reset first, so that
 *  alignment, style and size start anew.
 *  Returns the count of bytes of the text written; -4; -41 posicao; -42 stilo; -43 tamanho;
 *  -44 nothing written. Texts of 32768 bytes and more print, but over a serial port or TCP their
 *  count wraps (16 bits): 40000 bytes return -44 although they print. Print such texts in parts.
 *  ESC/POS: ESC @ or ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
 *  Example: ImpressaoTexto("TOTAL R$ 10,00\n", 1, 8, 0); */
Q7_API int Q7_CALL ImpressaoTexto(const char* dados, int posicao, int stilo, int tamanho);

/** Stores the line spacing of the texts that follow; sends nothing itself. Once stored, texts no
 *  longer reset the printer. Same function as SetTextLineSpace.
 *  espacamento: dots, 1..255.
 *  Returns 0; -4; -43 out of range.
 *  ESC/POS: ESC 3 n, sent by the next ImpressaoTexto.
 *  Example: EspacamentoEntreLinhas(40); ImpressaoTexto("Total\n", 0, 0, 0); */
Q7_API int Q7_CALL EspacamentoEntreLinhas(int espacamento);

/** Sets the alignment. posicao: 0 left, 1 centre, 2 right; of negative values the low byte is sent.
 *  The next ImpressaoTexto undoes it where it resets the printer (see there).
 *  Returns 0; -4; -41 above 2; -44.
 *  ESC/POS: ESC a n.
 *  Example: DefinePosicao(1); */
Q7_API int Q7_CALL DefinePosicao(int posicao);

/** Resets the printer to its power-on settings; an unprinted line is lost.
 *  Returns 0; -4; -44.
 *  ESC/POS: ESC @.
 *  Example: InicializaImpressora(); */
Q7_API int Q7_CALL InicializaImpressora(void);

/* ------------------------------------------------------------------ symbols */

/** Prints a QR code.
 *  dados: the content; ASCII is safe, for other text the announced length counts characters.
 *  tamanho: module size in dots, 1..6. nivelCorrecao: 1 L, 2 M, 3 Q, 4 H.
 *  Returns 0; -4; -51 tamanho; -52 nivelCorrecao; -53 empty; -44; -9999. On SORBE the levels above
 *  4 pass too.
 *  ESC/POS: GS ( k functions 167, 169, 180, 181; ORLA-K: GS o, GS k 11; SORBE: GS k Q.
 *  Example: ImpressaoQRCode("https://exemplo.com.br", 4, 2); */
Q7_API int Q7_CALL ImpressaoQRCode(const char* dados, int tamanho, int nivelCorrecao);

/** Prints a barcode.
 *  tipo: 0 UPC-A, 1 UPC-E, 2 EAN-13, 3 EAN-8, 4 CODE39, 5 ITF, 6 CODABAR, 7 CODE93, 8 CODE128.
 *  dados: digits for 0..3 (11 or 12, 11 or 12 from "0", 12 or 13, 7 or 8) and for 5 (an even
 *    number); for 4 1..255 digits, capitals and " $%*+-./"; for 6 digits and "$+-./:" between a
 *    start and a stop, A..D or a..d; for 7 1..255 ASCII characters; for 8 text behind a subset
 *    selector "{A", "{B" or "{C", where "{C" is followed by pairs of digits. SORBE needs no selector
 *    and drops one.
 *  altura: dots, 1..255. largura: module width in dots, 1..6.
 *  HRI: text position, 1 above, 2 below, 3 both; 4 is sent as it is. DUNEL prints no text; SORBE
 *    keeps its own setting.
 *  Returns 0; -4; -64 tipo; -61 altura; -62 largura; -63 HRI; -65 dados; -44; -9999.
 *  ESC/POS: GS h, GS w, GS H, GS k m n (function B).
 *  Example: ImpressaoCodigoBarras(2, "7891000315507", 80, 2, 2); */
Q7_API int Q7_CALL ImpressaoCodigoBarras(int tipo, const char* dados, int altura, int largura,
                                         int HRI);

/** Prints a graphic stored in the printer's non-volatile memory by the maker's own tool.
 *  chave: the key's two characters, each 0x20..0x7E. escala: 1 as stored, 2 doubled.
 *  Returns 0; -4; -131 chave; -132 escala; -44.
 *  ESC/POS: GS ( L function 69.
 *  Example: ImprimeImagemMemoria("00", 1); */
Q7_API int Q7_CALL ImprimeImagemMemoria(const char* chave, int escala);

/* ------------------------------------------------------------------ paper, drawer, buzzer */

/** Feeds and cuts. avanco: lines to feed first; 0 or less feeds none.
 *  Returns 0; -4; -44.
 *  ESC/POS: LF, GS V 0.
 *  Example: Corte(4); */
Q7_API int Q7_CALL Corte(int avanco);

/** Feeds paper. linhas: lines, from 1.
 *  Returns 0; -4; -44; -9999 when linhas is 0 or less.
 *  ESC/POS: LF.
 *  Example: AvancaPapel(2); */
Q7_API int Q7_CALL AvancaPapel(int linhas);

/** Opens the cash drawer. pino: 0 or 1. ti, tf: on and off times in units of 2 ms, 0..255. A 0 ends
 *  the command early, and the printer takes what is printed next for the missing times: give 1..255.
 *  Returns 0; -4; -121 pino; -122 ti or tf; -9999.
 *  ESC/POS: ESC p m t1 t2.
 *  Example: AbreGaveta(0, 50, 200); */
Q7_API int Q7_CALL AbreGaveta(int pino, int ti, int tf);

/** Opens the cash drawer on pin 0 with both times at 200 ms.
 *  Returns 0; -4; -44.
 *  ESC/POS: ESC p 48 100 100.
 *  Example: AbreGavetaTavlo(); */
Q7_API int Q7_CALL AbreGavetaTavlo(void);

/** Sounds the buzzer. qtd: 0..63 times. tempoInicio, tempoFim: on and off times in units of 100 ms;
 *  one of the two may be above 25.
 *  Returns 0; -4; -111 qtd; -112 both times above 25; -44.
 *  ESC/POS: ESC ( A function 97.
 *  Example: SinalSonoro(3, 2, 2); */
Q7_API int Q7_CALL SinalSonoro(int qtd, int tempoInicio, int tempoFim);

/* ------------------------------------------------------------------ status and raw access */

/** Asks the printer for its state; waits at most 1500 ms for a reply, then as long for its end.
 *  param: 1 drawer (not over TCP), 2 cover, 3 paper, 4 paper sensor (TCP alone), 5 all of them.
 *  Returns for 1: 1 drawer signal low, 2 high; for 2: 3 cover open, 4 closed; for 3: 5 paper
 *  present, 6 near end, 7 out; for 4: 8 or 9 (signalled); for 5 the sum of 1 drawer signal low,
 *  2 cover open, 4 paper near end or out, 8 paper out, 16 signalled; -4; -81 no reply; -126 not
 *  available here; -127 param.
 *  ESC/POS: GS a 0, DLE EOT n.
 *  Example: if (StatusImpressora(3) == 7) puts("sem papel"); */
Q7_API int Q7_CALL StatusImpressora(int param);

/** Sends bytes as they are and reads a reply, waiting at most 1500 ms for its start and 500 ms for
 *  its end. Not logged by name; the bytes sent are.
 *  comando, tamanho: the bytes and their count. resposta: buffer for the reply, which must be large
 *  enough, whatever tamanhoResposta says: 1024 bytes hold every reply over USB; over a serial port or
 *  TCP what the printer sent before and nobody read comes first, 65536 bytes hold all.
 *  tamanhoResposta: in, 0 for no reply wanted; out, the count of bytes copied.
 *  Returns 0; -4; -81 no reply; -9999 when no reply was wanted, resposta or tamanhoResposta null
 *  included. A null comando or a tamanho below 1 sends nothing.
 *  Example: char reply[65536]; unsigned n = sizeof reply; DirectIO("\x1D\x49\x43", 3, reply, &n); */
Q7_API int Q7_CALL DirectIO(const char* comando, int tamanho, char* resposta,
                            unsigned int* tamanhoResposta);

/** Asks the printer who it is. tipo: 0 model id, 1 type id, 2 firmware version, 3 maker, 4 model
 *  name, 5 serial number, 6 fonts.
 *  With 0 and 1 the digit 1 or 2 goes behind the command, which printers take for text: it stands
 *  in front of the next line printed.
 *  Returns new memory that is the caller's: the reply up to the first byte that is no UTF-8,
 *  or a code in decimal ("-4", "-81", "-402").
 *  ESC/POS: GS I n.
 *  Example: puts(IdImpressora(4)); */
Q7_API char* Q7_CALL IdImpressora(int tipo);

/* ------------------------------------------------------------------ page mode */

/** Enters page mode; from then on texts no longer reset the printer, even after ModoPadrao.
 *  Returns 0; -4; -44. ESC/POS: ESC L. Example: ModoPagina(); */
Q7_API int Q7_CALL ModoPagina(void);

/** Sets the print direction. direcao: 0 left to right, 1 bottom to top, 2 right to left, 3 top to
 *  bottom. Returns 0; -4; -136; -44. ESC/POS: ESC T n. Example: DirecaoImpressao(0); */
Q7_API int Q7_CALL DirecaoImpressao(int direcao);

/** Sets the print area, all in dots, 0..65535. x, y: its corner. largura, altura: its width and
 *  height. Of values outside, the two bytes sent mean nothing.
 *  Returns 0; -4; -44. ESC/POS: ESC W. Example: DefineAreaImpressao(0, 0, 512, 1000); */
Q7_API int Q7_CALL DefineAreaImpressao(int x, int y, int largura, int altura);

/** Sets the absolute horizontal position. posicao: dots, 0..500; negative values pass, but
 *  the two bytes sent mean nothing.
 *  Returns 0; -4; -137; -44. ESC/POS: ESC $. Example: PosicaoImpressaoHorizontal(300); */
Q7_API int Q7_CALL PosicaoImpressaoHorizontal(int posicao);

/** Sets the absolute vertical position in page mode. posicao: dots, 0..65535; of values
 *  outside, the two bytes sent mean nothing.
 *  Returns 0; -4; -44. ESC/POS: GS $. Example: PosicaoImpressaoVertical(50); */
Q7_API int Q7_CALL PosicaoImpressaoVertical(int posicao);

/** Prints the page and stays in page mode.
 *  Returns 0; -4; -44. ESC/POS: ESC FF. Example: ImprimeModoPagina(); */
Q7_API int Q7_CALL ImprimeModoPagina(void);

/** Clears the page without printing it.
 *  Returns 0; -4; -44. ESC/POS: CAN. Example: LimpaBufferModoPagina(); */
Q7_API int Q7_CALL LimpaBufferModoPagina(void);

/** Prints the page and returns to standard mode.
 *  Returns 0; -4; -44. ESC/POS: FF. Example: ImprimeMPeRetornaPadrao(); */
Q7_API int Q7_CALL ImprimeMPeRetornaPadrao(void);

/** Returns to standard mode; an unprinted page is lost.
 *  Returns 0; -4; -44. ESC/POS: ESC S. Example: ModoPadrao(); */
Q7_API int Q7_CALL ModoPadrao(void);

/* ------------------------------------------------------------------ fiscal documents */

/** Prints the extract of a SAT CF-e sale; does not cut.
 *  dados: the text of the authorised XML (root CFe), not a file name.
 *  param: sum of 1 heading beside the stored logo "00", 2 without items, 4 test notice.
 *  Returns 0, also for a document that cannot be read (labels alone print); -4.
 *  Example: ImprimeXMLSAT(xml, 0); Corte(4); */
Q7_API int Q7_CALL ImprimeXMLSAT(const char* dados, int param);

/** Prints the extract of a SAT CF-e cancellation; does not cut.
 *  dados: the text of the cancellation XML (root CFeCanc). assinaturaQRCODE: the signature of the
 *  cancelled sale (its element of that name), 344 characters. param: 1 heading beside the logo.
 *  Returns 0; -4; -91 signature length; -9999 not a cancellation.
 *  Example: ImprimeXMLCancelamentoSAT(xml, assinatura, 0); */
Q7_API int Q7_CALL ImprimeXMLCancelamentoSAT(const char* dados, const char* assinaturaQRCODE,
                                             int param);

/** Prints the DANFE of an NFC-e; a contingency note prints twice with a cut between. No last cut.
 *  dados: the text of the XML (root nfeProc or NFe), version 4.00, with its urlChave.
 *  indexcsc, csc: the taxpayer's CSC identifier and token, used when the note has no qrCode.
 *  param: sum of 0x01 without items, 0x02 wide code column (GTIN), 0x08 heading beside the stored
 *  logo "00", 0x10 homologation notice, 0x40 separator lines, 0x80 issuer's IE in the heading,
 *  0x100 item numbers, 0x200 a contingency note prints once.
 *  Returns 0; -4; -104 param above 65535; -102 no version; -101 another version; -103 no tpEmis or
 *  no urlChave.
 *  Example: ImprimeXMLNFCe(xml, 1, "0123456789", 0x40); */
Q7_API int Q7_CALL ImprimeXMLNFCe(const char* dados, int indexcsc, const char* csc, int param);

/* ------------------------------------------------------------------ English family: port */

/** Stores the model name with which PortOpen and PrtPortOpen open; see AbreConexaoImpressora.
 *  Returns 0.
 *  Example: PrinterCreator(0, "VANTA"); */
Q7_API int Q7_CALL PrinterCreator(void* handle, const char* model);

/** PrinterCreator without a result. */
Q7_API void Q7_CALL PrinterCreatorS(void* handle, const char* model);

/** Guarded; returns 0. Releases nothing: the port stays open. */
Q7_API int Q7_CALL PrinterDestroy(void* handle);

/** Opens the connection: AbreConexaoImpressora with the model of PrinterCreator.
 *  text: fields separated by "," or "_", so that neither may stand in a host name or path. The
 *    first field contains, in any letter case, one of
 *    "COM": the first field is the serial port, the second the bits per second: "COM3,9600";
 *    "NET": the second is the host, the third the TCP port, 9100 where it is missing or empty:
 *      "NET,192.168.0.10,9100";
 *    "USB": needs no further fields.
 *  Returns -2 for any other text ("COM3" or "NET" alone too), else as AbreConexaoImpressora: -11
 *  for a missing speed, 0 also for a refused TCP connection.
 *  Example: PrinterCreator(0, "VANTA"); PortOpen(0, "USB"); */
Q7_API int Q7_CALL PortOpen(void* handle, const char* text);

/** Guarded FechaConexaoImpressora. */
Q7_API int Q7_CALL PortClose(void* handle);

/** Guarded InicializaImpressora. */
Q7_API int Q7_CALL PrinterInitialize(void* handle);

/* ------------------------------------------------------------------ English family: text */

/** Guarded ImpressaoTexto; logged under both names. alignment, style, size: posicao, stilo and
 *  tamanho. Returns the count of bytes of the text written, or a code. */
Q7_API int Q7_CALL PrintText(void* handle, const char* text, int alignment, int style, int size);

/** Sends the bytes of a text as they are: they are not converted to Latin-1, and no code table is
 *  chosen. Guarded, but logged first.
 *  Returns the count of bytes written; -4; -44 nothing written, as for an empty text.
 *  Example: PrintTextS(0, "TOTAL 10,00\n"); */
Q7_API int Q7_CALL PrintTextS(void* handle, const char* text);

/** Sets the alignment. Guarded. alignment: 1 centre, 2 right. 0, left, is accepted but sends
 *  nothing: the printer stays as it is. To go back to the left call DefinePosicao(0). The next
 *  PrintText undoes it where it resets the printer (see ImpressaoTexto).
 *  Returns 1; -4; -41 alignment out of 0..2; -44 nothing written, always so for 0.
 *  ESC/POS: ESC a n.
 *  Example: SetAlign(0, 1); */
Q7_API int Q7_CALL SetAlign(void* handle, int alignment);

/** Switches emphasis, until a text resets the printer (see ImpressaoTexto). Guarded, but logged
 *  first. on: 0 or 1.
 *  Returns 0, also when nothing was written; -4; -42 any other value.
 *  ESC/POS: ESC E n.
 *  Example: SetTextBold(0, 1); */
Q7_API int Q7_CALL SetTextBold(void* handle, int on);

/** Chooses the font, until a text resets the printer (see ImpressaoTexto); ends underline, which the
 *  same command sets. Guarded, but logged first.
 *  font: 0 normal, 1 small.
 *  Returns 0, also when nothing was written; -4; -42 any other value.
 *  ESC/POS: ESC ! n.
 *  Example: SetTextFont(0, 1); */
Q7_API int Q7_CALL SetTextFont(void* handle, int font);

/** The same function as EspacamentoEntreLinhas, and logged as it. Takes no handle. */
Q7_API int Q7_CALL SetTextLineSpace(int spacing);

/* ------------------------------------------------------------------ English family: symbols */

/** Guarded ImpressaoCodigoBarras. type: 0..8 as there, or 65..73 for the same. width: largura.
 *  height: altura. */
Q7_API int Q7_CALL PrintBarCode(void* handle, int type, const char* data, int width, int height,
                                int hri);

/** ImpressaoQRCode. type: ignored. errorLevel: nivelCorrecao, 1..4. size: tamanho, 1..6. */
Q7_API int Q7_CALL PrintSymbol(void* handle, int type, const char* data, int errorLevel, int size);

/** Always fails and never prints: ImprimeImagemMemoria with the key k1 k2 and the scale 0, which is
 *  none. Programs of this interface may call it; to print a stored graphic call
 *  ImprimeImagemMemoria.
 *  k1, k2: the key's characters, of which the low byte counts.
 *  Returns -4; -131 when one is not 0x20..0x7E; else -132. */
Q7_API int Q7_CALL PrintNVImage(void* handle, int k1, int k2);

/** Does nothing and returns 0: graphics are stored with the printer maker's own tool. */
Q7_API int Q7_CALL DefineNVImage(int a, int b, int c, int d);

/* ------------------------------------------------------------------ English family: paper */

/** Guarded AvancaPapel. */
Q7_API int Q7_CALL FeedLine(void* handle, int lines);

/** Guarded Corte. lines: to feed first. */
Q7_API int Q7_CALL CutPaper(void* handle, int lines);

/** Guarded AbreGaveta. pin: 0 or 1. onTime, offTime: units of 2 ms, 0..255. */
Q7_API int Q7_CALL OpenDrawer(void* handle, int pin, int onTime, int offTime);

/** OpenDrawer. */
Q7_API int Q7_CALL OpenCashDrawer(void* handle, int pin, int onTime, int offTime);

/* ------------------------------------------------------------------ English family: state */

/** Asks for the printer's state (StatusImpressora, query 5). Guarded.
 *  state: receives 0 ready, 1 paper out, 2 cover open, 4 paper near end, 5 cover open and paper
 *    out, 6 cover open and paper near end; may be null.
 *  Returns 0; -4; -126 for any other answer or none, state then unchanged: over USB and serial
 *  ports so also whenever the drawer's signal is low.
 *  Example: int state = 0; if (GetPrinterState(0, &state) == 0 && state == 1) puts("sem papel"); */
Q7_API int Q7_CALL GetPrinterState(void* handle, int* state);

/** Asks for the drawer's signal (StatusImpressora, query 1). Guarded.
 *  state: receives 1 or 0; may be null. Unchanged when the printer told nothing and over TCP, where
 *    the drawer cannot be asked for. polarity: not 0, 1 means signal low; 0, 1 means signal high.
 *  Returns 0, also when state is unchanged; -4.
 *  Example: int state = -1; GetDrawerState(0, &state, 1); */
Q7_API int Q7_CALL GetDrawerState(void* handle, int* state, int polarity);

/** GetDrawerState. */
Q7_API int Q7_CALL GetCashDrawerState(void* handle, int* state, int polarity);

/* ------------------------------------------------------------------ English family: page mode */

/** Guarded ModoPagina. */
Q7_API int Q7_CALL SelectPageMode(void* handle);

/** PrtSelectStandardMode. */
Q7_API int Q7_CALL SelectStandardMode(void* handle);

/** Guarded DirecaoImpressao. */
Q7_API int Q7_CALL SelectPrintDirectionInPageMode(void* handle, int direction);

/** Guarded DefineAreaImpressao. */
Q7_API int Q7_CALL SetPrintAreaInPageMode(void* handle, int x, int y, int width, int height);

/** Guarded PosicaoImpressaoHorizontal. */
Q7_API int Q7_CALL SetAbSolutePrintPosition(void* handle, int position);

/** Guarded PosicaoImpressaoVertical. */
Q7_API int Q7_CALL SetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position);

/** Guarded ImprimeModoPagina. */
Q7_API int Q7_CALL PrintDataInPageMode(void* handle);

/** Guarded LimpaBufferModoPagina. */
Q7_API int Q7_CALL CancelPrintDataInPageMode(void* handle);

/** Guarded ImprimeMPeRetornaPadrao. */
Q7_API int Q7_CALL SetPrintAndReturnStandardMode(void* handle);

/* ------------------------------------------------------------------ Prt family */

/** PrinterCreator; both store the same name. */
Q7_API int Q7_CALL PrtPrinterCreator(void* handle, const char* model);

/** PrinterDestroy. */
Q7_API int Q7_CALL PrtPrinterDestroy(void* handle);

/** PortOpen. */
Q7_API int Q7_CALL PrtPortOpen(void* handle, const char* text);

/** FechaConexaoImpressora, not guarded: called while nothing is open it is logged, too. */
Q7_API int Q7_CALL PrtPortClose(void* handle);

/** Guarded InicializaImpressora. */
Q7_API int Q7_CALL PrtPrinterInitialize(void* handle);

/** PrintText. */
Q7_API int Q7_CALL PrtPrintText(void* handle, const char* text, int alignment, int style, int size);

/** SetAlign. */
Q7_API int Q7_CALL PrtSetTextPosition(void* handle, int alignment);

/** SetTextBold. */
Q7_API int Q7_CALL PrtSetTextBold(void* handle, int on);

/** SetTextFont. */
Q7_API int Q7_CALL PrtSetTextFont(void* handle, int font);

/** PrintBarCode. */
Q7_API int Q7_CALL PrtPrintBarCode(void* handle, int type, const char* data, int width, int height,
                                   int hri);

/** PrintSymbol. */
Q7_API int Q7_CALL PrtPrintSymbol(void* handle, int type, const char* data, int errorLevel,
                                  int size);

/** FeedLine. */
Q7_API int Q7_CALL PrtFeedLine(void* handle, int lines);

/** Guarded Corte. lines: to feed first. */
Q7_API int Q7_CALL PrtCutPaper(void* handle, int lines);

/** OpenDrawer. */
Q7_API int Q7_CALL PrtOpenDrawer(void* handle, int pin, int onTime, int offTime);

/** GetPrinterState. */
Q7_API int Q7_CALL PrtCheckPrinterState(void* handle, int* state);

/** GetDrawerState. */
Q7_API int Q7_CALL PrtGetDrawerState(void* handle, int* state, int polarity);

/** SelectPageMode. */
Q7_API int Q7_CALL PrtSelectPageMode(void* handle);

/** Returns to standard mode; an unprinted page is lost. Guarded; not logged by name.
 *  Returns 0, also when nothing was written; -4.
 *  ESC/POS: ESC S.
 *  Example: PrtSelectStandardMode(0); */
Q7_API int Q7_CALL PrtSelectStandardMode(void* handle);

/** SelectPrintDirectionInPageMode. */
Q7_API int Q7_CALL PrtSelectPrintDirectionInPageMode(void* handle, int direction);

/** SetPrintAreaInPageMode. */
Q7_API int Q7_CALL PrtSetPrintAreaInPageMode(void* handle, int x, int y, int width, int height);

/** SetAbsoluteVerticalPrintPositionInPageMode. */
Q7_API int Q7_CALL PrtSetAbsoluteVerticalPrintPositionInPageMode(void* handle, int position);

/** PrintDataInPageMode. */
Q7_API int Q7_CALL PrtPrintDataInPageMode(void* handle);

/** Sends a lone ESC, which does not clear the page: the printer takes the next byte for the rest of
 *  a command. To clear the page call CancelPrintDataInPageMode. Guarded.
 *  Returns 0, also when nothing was written; -4.
 *  ESC/POS: ESC.
 *  Example: PrtCancelPrintDataInPageMode(0); */
Q7_API int Q7_CALL PrtCancelPrintDataInPageMode(void* handle);

/** SetPrintAndReturnStandardMode. */
Q7_API int Q7_CALL PrtSetPrintAndReturnStandardMode(void* handle);

#ifdef __cplusplus
}
#endif

#endif /* Q7_IMPRESSORA_H */
