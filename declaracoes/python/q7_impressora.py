# Gerado a partir de q7_impressora.h por scripts/declarations; não altere.
"""Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.

No Windows a biblioteca é de 32 bits: use um Python de 32 bits. Ela é procurada ao lado deste
arquivo e depois onde o sistema procura. Os textos vão para ela em UTF-8; o que uma função escreveria
nos seus argumentos, aqui ela devolve.
"""

import ctypes
import os
import sys
from typing import Tuple

# A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL().
Q7_VERSION_TEXT = "01.01.00"

# Q7Result: Códigos de retorno.
Q7_OK = 0  # Sucesso
Q7_ERR_KIND = -2  # Tipo de conexão desconhecido
Q7_ERR_MODEL = -3  # Modelo desconhecido, ou a impressora é de outro modelo conhecido
Q7_ERR_NOT_OPEN = -4  # Nenhuma conexão aberta
Q7_ERR_UNKNOWN_PRINTER = -5  # A impressora não informou um modelo conhecido
Q7_ERR_ALREADY_OPEN = -6  # Conexão já aberta
Q7_ERR_SPEED = -11  # Velocidade serial não permitida
Q7_ERR_SERIAL_NOT_FOUND = -12  # Porta serial não encontrada
Q7_ERR_SERIAL_DENIED = -13  # Porta serial em uso ou sem permissão
Q7_ERR_SERIAL_UNKNOWN = -14  # Porta serial falhou por motivo desconhecido
Q7_ERR_USB_ABSENT = -21  # Impressora USB não encontrada
Q7_ERR_USB_OPEN = -22  # A impressora USB não pôde ser aberta
Q7_ERR_TCP_PORT = -31  # Porta TCP fora da faixa
Q7_ERR_ALIGNMENT = -41  # Alinhamento fora de 0 a 2
Q7_ERR_STYLE = -42  # Estilo, negrito ou fonte fora da faixa
Q7_ERR_SIZE = -43  # Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255
Q7_ERR_NOT_SENT = -44  # Nada foi enviado
Q7_ERR_QR_SIZE = -51  # Tamanho do módulo do QR Code fora de 1 a 6
Q7_ERR_QR_LEVEL = -52  # Nível de correção do QR Code fora de 1 a 4
Q7_ERR_QR_EMPTY = -53  # Conteúdo do QR Code vazio
Q7_ERR_BARCODE_HEIGHT = -61  # Altura do código de barras fora de 1 a 255
Q7_ERR_BARCODE_WIDTH = -62  # Largura do módulo do código de barras fora de 1 a 6
Q7_ERR_BARCODE_HRI = -63  # Posição do texto do código de barras fora de 1 a 4
Q7_ERR_BARCODE_TYPE = -64  # Tipo de código de barras fora de 0 a 8
Q7_ERR_BARCODE_DATA = -65  # Dados inválidos para o tipo de código de barras
Q7_ERR_XSD = -71  # Documento ou esquema inválido
Q7_ERR_XSD_MISSING = -72  # Arquivo de esquema ausente
Q7_ERR_NO_REPLY = -81  # A impressora não respondeu
Q7_ERR_SIGNATURE = -91  # A assinatura não tem 344 caracteres
Q7_ERR_NFCE_VERSION = -101  # Versão do leiaute da NFC-e diferente de 4.00
Q7_ERR_NFCE_NO_VERSION = -102  # Não é uma NFC-e, ou é uma sem o atributo versao
Q7_ERR_NFCE_EMISSION = -103  # Tipo de emissão (tpEmis) ausente ou 0
Q7_ERR_NFCE_OPTIONS = -104  # Opções da NFC-e acima de 65535
Q7_ERR_NFCE_MODEL = -105  # NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0
Q7_ERR_NFCE_QR = -106  # Nota sem QR Code. Só com o leiaute 6.0
Q7_ERR_BUZZER_COUNT = -111  # Quantidade de sinais sonoros acima de 63
Q7_ERR_BUZZER_TIME = -112  # Os dois tempos do sinal sonoro acima de 25
Q7_ERR_DRAWER_PIN = -121  # Pino da gaveta acima de 1
Q7_ERR_DRAWER_TIME = -122  # Um tempo da gaveta acima de 255
Q7_ERR_STATUS_UNAVAILABLE = -126  # Estado não disponível nesta conexão
Q7_ERR_STATUS_KIND = -127  # Pergunta de estado fora de 1 a 5
Q7_ERR_IMAGE_KEY = -131  # A chave da imagem não são dois caracteres visíveis
Q7_ERR_IMAGE_SCALE = -132  # Escala da imagem fora de 1 a 2
Q7_ERR_DIRECTION = -136  # Direção de impressão fora de 0 a 3
Q7_ERR_POSITION = -137  # Posição horizontal acima de 500
Q7_ERR_ID_KIND = -402  # Pergunta de identificação fora de 0 a 6
Q7_ERR_FAILED = -9999  # Sem resultado: nada foi enviado, ou outra falha

# Q7NetError: Números positivos que AbreConexaoImpressora devolve quando a conexão TCP falha.
Q7_NET_REFUSED = 0  # conexão recusada: parece sucesso, veja as convenções
Q7_NET_CLOSED = 1  # fechada pelo outro lado
Q7_NET_HOST_NOT_FOUND = 2  # nome ou endereço não encontrado
Q7_NET_NOT_PERMITTED = 3  # o sistema não permitiu
Q7_NET_NO_RESOURCES = 4  # faltam recursos ao sistema
Q7_NET_TIMEOUT = 5  # sem resposta em 2000 ms
Q7_NET_UNREACHABLE = 7  # rede fora do alcance

# Q7Connection: Tipos de conexão.
Q7_CONNECTION_USB = 1  # USB
Q7_CONNECTION_SERIAL = 2  # porta serial (COM)
Q7_CONNECTION_TCP = 3  # rede (TCP)

# Q7Alignment: Alinhamentos.
Q7_ALIGN_LEFT = 0  # à esquerda; em ImpressaoTexto: deixa o alinhamento como está
Q7_ALIGN_CENTER = 1  # centralizado
Q7_ALIGN_RIGHT = 2  # à direita

# Q7Style: Estilos de texto, que se somam.
Q7_STYLE_NORMAL = 0  # nenhum
Q7_STYLE_SMALL = 1  # fonte pequena; com Q7_STYLE_UNDERLINE, perde-se
Q7_STYLE_UNDERLINE = 2  # sublinhado
Q7_STYLE_REVERSE = 4  # branco sobre preto
Q7_STYLE_BOLD = 8  # negrito

# Q7Size: Tamanhos de caractere: (fator de largura - 1) * 16 + (fator de altura - 1), de 0 a 119.
Q7_SIZE_NORMAL = 0  # deixa o tamanho como está
Q7_SIZE_DOUBLE_HEIGHT = 1  # altura dupla
Q7_SIZE_DOUBLE_WIDTH = 16  # largura dupla
Q7_SIZE_DOUBLE = 17  # largura e altura duplas
Q7_SIZE_TRIPLE = 34  # largura e altura triplas
Q7_SIZE_LARGEST = 119  # largura e altura óctuplas

# Q7Font: Fontes de SetTextFont.
Q7_FONT_NORMAL = 0  # fonte normal
Q7_FONT_SMALL = 1  # fonte pequena

# Q7Barcode: Códigos de barras.
Q7_BARCODE_UPC_A = 0  # UPC-A
Q7_BARCODE_UPC_E = 1  # UPC-E
Q7_BARCODE_EAN13 = 2  # EAN-13
Q7_BARCODE_EAN8 = 3  # EAN-8
Q7_BARCODE_CODE39 = 4  # CODE39
Q7_BARCODE_ITF = 5  # ITF (2 de 5 intercalado)
Q7_BARCODE_CODABAR = 6  # CODABAR
Q7_BARCODE_CODE93 = 7  # CODE93
Q7_BARCODE_CODE128 = 8  # CODE128

# Q7Hri: Posições do texto de um código de barras.
Q7_HRI_ABOVE = 1  # acima
Q7_HRI_BELOW = 2  # abaixo
Q7_HRI_BOTH = 3  # acima e abaixo
Q7_HRI_OTHER = 4  # enviado como está: a impressora decide

# Q7QrLevel: Níveis de correção de erros do QR Code.
Q7_QR_LEVEL_L = 1  # nível L, cerca de 7%
Q7_QR_LEVEL_M = 2  # nível M, cerca de 15%
Q7_QR_LEVEL_Q = 3  # nível Q, cerca de 25%
Q7_QR_LEVEL_H = 4  # nível H, cerca de 30%

# Q7ImageScale: Escalas das imagens gravadas na impressora.
Q7_IMAGE_NORMAL = 1  # como gravada
Q7_IMAGE_DOUBLE = 2  # largura e altura duplas

# Q7Status: O que StatusImpressora pergunta.
Q7_STATUS_DRAWER = 1  # sinal da gaveta; não por TCP
Q7_STATUS_COVER = 2  # tampa
Q7_STATUS_PAPER = 3  # papel
Q7_STATUS_SENSOR = 4  # sensor de papel; só por TCP
Q7_STATUS_ALL = 5  # todos os que a conexão tem, numa soma de Q7StateBit

# Q7State: O que StatusImpressora responde às perguntas de 1 a 4.
Q7_STATE_DRAWER_LOW = 1  # sinal da gaveta em nível baixo
Q7_STATE_DRAWER_HIGH = 2  # sinal da gaveta em nível alto
Q7_STATE_COVER_OPEN = 3  # tampa aberta
Q7_STATE_COVER_CLOSED = 4  # tampa fechada
Q7_STATE_PAPER_PRESENT = 5  # há papel
Q7_STATE_PAPER_NEAR_END = 6  # papel perto do fim
Q7_STATE_PAPER_OUT = 7  # sem papel
Q7_STATE_SENSOR_CLEAR = 8  # sensor sem sinal
Q7_STATE_SENSOR_SIGNALLED = 9  # sensor com sinal

# Q7StateBit: De que se soma a resposta de StatusImpressora a Q7_STATUS_ALL; 0 é a impressora
# pronta.
Q7_STATE_BIT_DRAWER_LOW = 1  # sinal da gaveta em nível baixo
Q7_STATE_BIT_COVER_OPEN = 2  # tampa aberta
Q7_STATE_BIT_PAPER_NEAR_END = 4  # papel perto do fim, ou no fim
Q7_STATE_BIT_PAPER_OUT = 8  # sem papel; vem com o anterior
Q7_STATE_BIT_SENSOR_SIGNALLED = 16  # sensor com sinal

# Q7PrinterState: O que GetPrinterState escreve.
Q7_PRINTER_READY = 0  # pronta
Q7_PRINTER_PAPER_OUT = 1  # sem papel
Q7_PRINTER_COVER_OPEN = 2  # tampa aberta
Q7_PRINTER_PAPER_NEAR_END = 4  # papel perto do fim
Q7_PRINTER_COVER_OPEN_PAPER_OUT = 5  # tampa aberta e sem papel
Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END = 6  # tampa aberta e papel perto do fim

# Q7Identification: O que IdImpressora pergunta.
Q7_ID_MODEL_NUMBER = 0  # número do modelo
Q7_ID_TYPE_NUMBER = 1  # número do tipo
Q7_ID_FIRMWARE = 2  # versão do firmware
Q7_ID_MAKER = 3  # fabricante
Q7_ID_MODEL = 4  # nome do modelo
Q7_ID_SERIAL = 5  # número de série
Q7_ID_FONTS = 6  # fontes

# Q7Direction: Direções de impressão no modo página.
Q7_DIRECTION_LEFT_TO_RIGHT = 0  # da esquerda para a direita
Q7_DIRECTION_BOTTOM_TO_TOP = 1  # de baixo para cima
Q7_DIRECTION_RIGHT_TO_LEFT = 2  # da direita para a esquerda
Q7_DIRECTION_TOP_TO_BOTTOM = 3  # de cima para baixo

# Q7CfeOption: Opções do CF-e (ImprimeXMLSAT; a primeira também em ImprimeXMLCancelamentoSAT), que
# se somam.
Q7_CFE_LOGO = 1  # cabeçalho ao lado da imagem "00" gravada na impressora
Q7_CFE_NO_ITEMS = 2  # sem os itens
Q7_CFE_TEST = 4  # aviso de teste sob o título

# Q7NfceOption: Opções da NFC-e (ImprimeXMLNFCe), que se somam.
Q7_NFCE_NO_ITEMS = 1  # sem os itens
Q7_NFCE_GTIN = 2  # coluna larga de código, com o GTIN
Q7_NFCE_LOGO = 8  # cabeçalho ao lado da imagem "00" gravada na impressora
Q7_NFCE_TEST = 16  # aviso de ambiente de homologação; o leiaute 6.0 segue o tpAmb
Q7_NFCE_SEPARATORS = 64  # linhas separadoras entre as divisões
Q7_NFCE_ISSUER_IE = 128  # inscrição estadual do emitente no cabeçalho
Q7_NFCE_ITEM_NUMBERS = 256  # número de cada item
Q7_NFCE_ONE_COPY = 512  # uma nota em contingência sai numa só via

# Q7Limit: Limites.
Q7_LONGEST_REPLY = 65536  # bytes que comportam qualquer resposta de DirectIO

_MENSAGENS = {
    Q7_OK: "Sucesso. O que fazer: nada; depois de abrir por TCP chame StatusImpressora, que devolve -4 se a conexão foi recusada.",
    Q7_ERR_KIND: "Tipo de conexão desconhecido. O que fazer: passe uma das constantes de Q7Connection, ou um texto como \"COM3,9600\", \"NET,192.168.0.10,9100\" ou \"USB\".",
    Q7_ERR_MODEL: "Modelo desconhecido, ou a impressora é de outro modelo conhecido. O que fazer: confira o nome na lista de AbreConexaoImpressora e o que a impressora diz no autoteste.",
    Q7_ERR_NOT_OPEN: "Nenhuma conexão aberta. O que fazer: confira se a impressora está ligada e na rede e abra de novo.",
    Q7_ERR_UNKNOWN_PRINTER: "A impressora não informou um modelo conhecido. O que fazer: confira cabo, energia, velocidade e endereço e abra de novo.",
    Q7_ERR_ALREADY_OPEN: "Conexão já aberta. O que fazer: nada; feche a conexão antes de abrir outra.",
    Q7_ERR_SPEED: "Velocidade serial não permitida. O que fazer: passe 300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200, a mesma que está configurada na impressora.",
    Q7_ERR_SERIAL_NOT_FOUND: "Porta serial não encontrada. O que fazer: veja o nome da porta no Gerenciador de Dispositivos (no Linux, em /dev).",
    Q7_ERR_SERIAL_DENIED: "Porta serial em uso ou sem permissão. O que fazer: feche o outro programa; no Linux, ponha o usuário no grupo dialout e entre de novo.",
    Q7_ERR_SERIAL_UNKNOWN: "Porta serial falhou por motivo desconhecido. O que fazer: retire e recoloque o adaptador; atualize o driver.",
    Q7_ERR_USB_ABSENT: "Impressora USB não encontrada. O que fazer: copie os identificadores do Gerenciador de Dispositivos (VID e PID) para \"q7_usb.ini\" e reinicie o programa.",
    Q7_ERR_USB_OPEN: "A impressora USB não pôde ser aberta. O que fazer: feche o outro programa; o número de erro do sistema está no log, na linha \"ERRO DE ABERTURA DE PORTA:\".",
    Q7_ERR_TCP_PORT: "Porta TCP fora da faixa. O que fazer: passe a porta da impressora, em geral 9100.",
    Q7_ERR_ALIGNMENT: "Alinhamento fora de 0 a 2. O que fazer: passe Q7_ALIGN_LEFT, Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.",
    Q7_ERR_STYLE: "Estilo, negrito ou fonte fora da faixa. O que fazer: some constantes de Q7Style, cada uma uma só vez.",
    Q7_ERR_SIZE: "Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. O que fazer: passe um valor de Q7Size; o espaçamento é em pontos.",
    Q7_ERR_NOT_SENT: "Nada foi enviado. O que fazer: confira o texto e o papel da impressora; imprima textos longos em partes.",
    Q7_ERR_QR_SIZE: "Tamanho do módulo do QR Code fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 4 serve para quase tudo.",
    Q7_ERR_QR_LEVEL: "Nível de correção do QR Code fora de 1 a 4. O que fazer: passe um valor de Q7QrLevel.",
    Q7_ERR_QR_EMPTY: "Conteúdo do QR Code vazio. O que fazer: confira de onde vem o conteúdo.",
    Q7_ERR_BARCODE_HEIGHT: "Altura do código de barras fora de 1 a 255. O que fazer: passe a altura em pontos; 80 pontos são 10 mm a 8 pontos por milímetro.",
    Q7_ERR_BARCODE_WIDTH: "Largura do módulo do código de barras fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 2 serve para quase tudo.",
    Q7_ERR_BARCODE_HRI: "Posição do texto do código de barras fora de 1 a 4. O que fazer: passe um valor de Q7Hri.",
    Q7_ERR_BARCODE_TYPE: "Tipo de código de barras fora de 0 a 8. O que fazer: passe uma das constantes; só PrintBarCode e PrtPrintBarCode aceitam também 65 a 73.",
    Q7_ERR_BARCODE_DATA: "Dados inválidos para o tipo de código de barras. O que fazer: veja em ImpressaoCodigoBarras o que cada tipo aceita.",
    Q7_ERR_XSD: "Documento ou esquema inválido. O que fazer: nada.",
    Q7_ERR_XSD_MISSING: "Arquivo de esquema ausente. O que fazer: nada.",
    Q7_ERR_NO_REPLY: "A impressora não respondeu. O que fazer: confira a impressora e o cabo e pergunte de novo.",
    Q7_ERR_SIGNATURE: "A assinatura não tem 344 caracteres. O que fazer: passe o elemento assinaturaQRCODE da venda cancelada, inteiro.",
    Q7_ERR_NFCE_VERSION: "Versão do leiaute da NFC-e diferente de 4.00. O que fazer: passe uma NFC-e da versão 4.00.",
    Q7_ERR_NFCE_NO_VERSION: "Não é uma NFC-e, ou é uma sem o atributo versao. O que fazer: passe o texto do XML autorizado, com a raiz nfeProc ou NFe.",
    Q7_ERR_NFCE_EMISSION: "Tipo de emissão (tpEmis) ausente ou 0. O que fazer: passe o XML inteiro, com o grupo infNFeSupl.",
    Q7_ERR_NFCE_OPTIONS: "Opções da NFC-e acima de 65535. O que fazer: some constantes de Q7NfceOption.",
    Q7_ERR_NFCE_MODEL: "NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. O que fazer: passe uma NFC-e (modelo 65) ou uma NF-e com tpImp 6.",
    Q7_ERR_NFCE_QR: "Nota sem QR Code. Só com o leiaute 6.0. O que fazer: passe o XML com o grupo infNFeSupl inteiro; em contingência sem ele, também o CSC.",
    Q7_ERR_BUZZER_COUNT: "Quantidade de sinais sonoros acima de 63. O que fazer: passe de 0 a 63.",
    Q7_ERR_BUZZER_TIME: "Os dois tempos do sinal sonoro acima de 25. O que fazer: passe os tempos em unidades de 100 ms.",
    Q7_ERR_DRAWER_PIN: "Pino da gaveta acima de 1. O que fazer: passe 0 ou 1.",
    Q7_ERR_DRAWER_TIME: "Um tempo da gaveta acima de 255. O que fazer: passe o tempo em unidades de 2 ms.",
    Q7_ERR_STATUS_UNAVAILABLE: "Estado não disponível nesta conexão. O que fazer: pergunte por outra conexão ou por outro estado.",
    Q7_ERR_STATUS_KIND: "Pergunta de estado fora de 1 a 5. O que fazer: passe uma das constantes.",
    Q7_ERR_IMAGE_KEY: "A chave da imagem não são dois caracteres visíveis. O que fazer: passe a chave com que a imagem foi gravada, por exemplo \"00\".",
    Q7_ERR_IMAGE_SCALE: "Escala da imagem fora de 1 a 2. O que fazer: passe um valor de Q7ImageScale a ImprimeImagemMemoria.",
    Q7_ERR_DIRECTION: "Direção de impressão fora de 0 a 3. O que fazer: passe um valor de Q7Direction.",
    Q7_ERR_POSITION: "Posição horizontal acima de 500. O que fazer: passe de 0 a 500 pontos.",
    Q7_ERR_ID_KIND: "Pergunta de identificação fora de 0 a 6. O que fazer: passe uma das constantes; IdImpressora devolve este código como o texto \"-402\".",
    Q7_ERR_FAILED: "Sem resultado: nada foi enviado, ou outra falha. O que fazer: confira os argumentos; se persistir, ligue o log.",
}


def mensagem(codigo: int) -> str:
    """Diz o que um código de retorno significa e o que fazer."""
    if codigo > 0:
        return f"Erro do sistema ou da rede, de número {codigo}."
    return _MENSAGENS.get(codigo, f"Código desconhecido: {codigo}.")


def _carregada():
    no_windows = sys.platform == "win32"
    nome = "Q7_Impressora.dll" if no_windows else "libQ7_Impressora.so"
    ao_lado = os.path.join(os.path.dirname(os.path.abspath(__file__)), nome)
    carregador = ctypes.WinDLL if no_windows else ctypes.CDLL  # stdcall no Windows
    return carregador(ao_lado if os.path.exists(ao_lado) else nome)


def _utf8(texto):
    return texto.encode("utf-8") if isinstance(texto, str) else texto


def _texto(latin1):
    return None if latin1 is None else latin1.decode("latin-1")


_biblioteca = _carregada()
for _nome, _resultado, _argumentos in (
    ("AbreConexaoImpressora", ctypes.c_int, [ctypes.c_int, ctypes.c_char_p, ctypes.c_char_p, ctypes.c_int]),
    ("FechaConexaoImpressora", ctypes.c_int, []),
    ("GetVersaoDLL", ctypes.c_char_p, []),
    ("ImpressaoTexto", ctypes.c_int, [ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("EspacamentoEntreLinhas", ctypes.c_int, [ctypes.c_int]),
    ("DefinePosicao", ctypes.c_int, [ctypes.c_int]),
    ("InicializaImpressora", ctypes.c_int, []),
    ("ImpressaoQRCode", ctypes.c_int, [ctypes.c_char_p, ctypes.c_int, ctypes.c_int]),
    ("ImpressaoCodigoBarras", ctypes.c_int, [ctypes.c_int, ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("ImprimeImagemMemoria", ctypes.c_int, [ctypes.c_char_p, ctypes.c_int]),
    ("Corte", ctypes.c_int, [ctypes.c_int]),
    ("AvancaPapel", ctypes.c_int, [ctypes.c_int]),
    ("AbreGaveta", ctypes.c_int, [ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("AbreGavetaTavlo", ctypes.c_int, []),
    ("SinalSonoro", ctypes.c_int, [ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("StatusImpressora", ctypes.c_int, [ctypes.c_int]),
    ("DirectIO", ctypes.c_int, [ctypes.c_char_p, ctypes.c_int, ctypes.c_char_p, ctypes.POINTER(ctypes.c_uint)]),
    ("IdImpressora", ctypes.c_char_p, [ctypes.c_int]),
    ("ModoPagina", ctypes.c_int, []),
    ("DirecaoImpressao", ctypes.c_int, [ctypes.c_int]),
    ("DefineAreaImpressao", ctypes.c_int, [ctypes.c_int, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PosicaoImpressaoHorizontal", ctypes.c_int, [ctypes.c_int]),
    ("PosicaoImpressaoVertical", ctypes.c_int, [ctypes.c_int]),
    ("ImprimeModoPagina", ctypes.c_int, []),
    ("LimpaBufferModoPagina", ctypes.c_int, []),
    ("ImprimeMPeRetornaPadrao", ctypes.c_int, []),
    ("ModoPadrao", ctypes.c_int, []),
    ("ImprimeXMLSAT", ctypes.c_int, [ctypes.c_char_p, ctypes.c_int]),
    ("ImprimeXMLCancelamentoSAT", ctypes.c_int, [ctypes.c_char_p, ctypes.c_char_p, ctypes.c_int]),
    ("ImprimeXMLNFCe", ctypes.c_int, [ctypes.c_char_p, ctypes.c_int, ctypes.c_char_p, ctypes.c_int]),
    ("PrinterCreator", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p]),
    ("PrinterCreatorS", None, [ctypes.c_void_p, ctypes.c_char_p]),
    ("PrinterDestroy", ctypes.c_int, [ctypes.c_void_p]),
    ("PortOpen", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p]),
    ("PortClose", ctypes.c_int, [ctypes.c_void_p]),
    ("PrinterInitialize", ctypes.c_int, [ctypes.c_void_p]),
    ("PrintText", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PrintTextS", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p]),
    ("SetAlign", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("SetTextBold", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("SetTextFont", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("SetTextLineSpace", ctypes.c_int, [ctypes.c_int]),
    ("PrintBarCode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PrintSymbol", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p, ctypes.c_int, ctypes.c_int]),
    ("PrintNVImage", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int]),
    ("DefineNVImage", ctypes.c_int, [ctypes.c_int, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("FeedLine", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("CutPaper", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("OpenDrawer", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("OpenCashDrawer", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("GetPrinterState", ctypes.c_int, [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int)]),
    ("GetDrawerState", ctypes.c_int, [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int), ctypes.c_int]),
    ("GetCashDrawerState", ctypes.c_int, [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int), ctypes.c_int]),
    ("SelectPageMode", ctypes.c_int, [ctypes.c_void_p]),
    ("SelectStandardMode", ctypes.c_int, [ctypes.c_void_p]),
    ("SelectPrintDirectionInPageMode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("SetPrintAreaInPageMode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("SetAbSolutePrintPosition", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("SetAbsoluteVerticalPrintPositionInPageMode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrintDataInPageMode", ctypes.c_int, [ctypes.c_void_p]),
    ("CancelPrintDataInPageMode", ctypes.c_int, [ctypes.c_void_p]),
    ("SetPrintAndReturnStandardMode", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtPrinterCreator", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p]),
    ("PrtPrinterDestroy", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtPortOpen", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p]),
    ("PrtPortClose", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtPrinterInitialize", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtPrintText", ctypes.c_int, [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PrtSetTextPosition", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtSetTextBold", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtSetTextFont", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtPrintBarCode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PrtPrintSymbol", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p, ctypes.c_int, ctypes.c_int]),
    ("PrtFeedLine", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtCutPaper", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtOpenDrawer", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PrtCheckPrinterState", ctypes.c_int, [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int)]),
    ("PrtGetDrawerState", ctypes.c_int, [ctypes.c_void_p, ctypes.POINTER(ctypes.c_int), ctypes.c_int]),
    ("PrtSelectPageMode", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtSelectStandardMode", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtSelectPrintDirectionInPageMode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtSetPrintAreaInPageMode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int, ctypes.c_int]),
    ("PrtSetAbsoluteVerticalPrintPositionInPageMode", ctypes.c_int, [ctypes.c_void_p, ctypes.c_int]),
    ("PrtPrintDataInPageMode", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtCancelPrintDataInPageMode", ctypes.c_int, [ctypes.c_void_p]),
    ("PrtSetPrintAndReturnStandardMode", ctypes.c_int, [ctypes.c_void_p]),
):
    getattr(_biblioteca, _nome).restype = _resultado
    getattr(_biblioteca, _nome).argtypes = _argumentos


def AbreConexaoImpressora(tipo: int, modelo: str, conexao: str, parametro: int) -> int:
    """Abre a conexão com a impressora.

    Modelos e suas colunas por linha, na fonte normal e na pequena: VANTA, VESPA, VOLTA, PINTA,
    SALVI e DUNEL 48 e 64; ORLA-K e SORBE 42 e 56; RANZA, RANZAPRO e TESMO não têm largura definida.

    Impressoras seriais e TCP são perguntadas pelo nome do modelo (GS I 67; TESMO: ~HI) e têm 750 ms
    para responder; a conexão TCP é esperada por até 2000 ms. Uma conexão TCP recusada devolve
    Q7_OK, veja as convenções.

    Uma conexão que já está aberta é abandonada, não fechada: chame FechaConexaoImpressora antes.

    Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
    Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
    Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: GS I 67, por serial e TCP.

    tipo: tipo de conexão, um valor de Q7Connection.
    modelo: nome do modelo, em maiúsculas ou minúsculas. Enquanto o último resultado é 0 (depois
        da carga, de abrir ou de fechar) qualquer outro nome também passa e deixa o modelo como
        estava.
    conexao: porta serial ("COM3"; no Linux "ttyUSB0" ou um caminho), nome ou endereço TCP;
        ignorado na USB.
    parametro: bits por segundo (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200) ou
        porta TCP, de 0 a 65535 (9100 é usual); ignorado na USB.

    Devolve 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
    """
    return _biblioteca.AbreConexaoImpressora(tipo, _utf8(modelo), _utf8(conexao), parametro)


def FechaConexaoImpressora() -> int:
    """Fecha a conexão depois que o que foi aceito foi entregue.

    Desiste depois de 5 s em que nada anda; o que falta então se perde, e o log diz isso.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: nenhum.

    Devolve 0, um código, ou, na USB, um número positivo de erro do sistema.
    """
    return _biblioteca.FechaConexaoImpressora()


def GetVersaoDLL() -> str:
    """Diz a versão da biblioteca.

    Efeito: nenhum; não precisa de conexão.

    ESC/POS: nenhum.

    Devolve o texto "01.01.00", em memória nova que fica com quem chamou.
    """
    return _texto(_biblioteca.GetVersaoDLL())


def ImpressaoTexto(dados: str, posicao: int, stilo: int, tamanho: int) -> int:
    """Imprime um texto.

    Se nenhum espaçamento foi guardado (EspacamentoEntreLinhas) e ModoPagina não foi chamada, a
    impressora é reiniciada antes: alinhamento, estilo e tamanho começam de novo, e uma linha ainda
    sem "\\n" se perde.

    Por TCP e serial a contagem tem 16 bits e dá a volta em textos de 32768 bytes ou mais: 40000
    bytes devolvem Q7_ERR_NOT_SENT embora saiam. Imprima textos assim em partes.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.

    Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\\n".

    ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.

    dados: o texto, em UTF-8; os fins de linha ("\\n") são de quem chama, nenhum é acrescentado.
    posicao: alinhamento, um valor de Q7Alignment; 0 deixa como está.
    stilo: soma de valores de Q7Style, de 0 a 15. Um estilo vale até a impressora ser
        reiniciada.
    tamanho: tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.

    Devolve a quantidade de bytes do texto enviados, ou um código.
    """
    return _biblioteca.ImpressaoTexto(_utf8(dados), posicao, stilo, tamanho)


def EspacamentoEntreLinhas(espacamento: int) -> int:
    """Guarda o espaçamento entre linhas dos textos que seguem.

    Depois dela os textos não reiniciam mais a impressora, nem em outra conexão. É a mesma função
    que SetTextLineSpace.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.

    Efeito: no próximo ImpressaoTexto; a própria função não envia nada.

    ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.

    espacamento: espaçamento em pontos, de 1 a 255.

    Devolve 0 ou um código.
    """
    return _biblioteca.EspacamentoEntreLinhas(espacamento)


def DefinePosicao(posicao: int) -> int:
    """Define o alinhamento.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir; o próximo ImpressaoTexto o desfaz se reiniciar a impressora.

    ESC/POS: ESC a n.

    posicao: um valor de Q7Alignment; de valores negativos vai o byte baixo.

    Devolve 0 ou um código.
    """
    return _biblioteca.DefinePosicao(posicao)


def InicializaImpressora() -> int:
    """Reinicia a impressora, que volta às definições de quando é ligada.

    Uma linha ainda não impressa se perde.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC @.

    Devolve 0 ou um código.
    """
    return _biblioteca.InicializaImpressora()


def ImpressaoQRCode(dados: str, tamanho: int, nivelCorrecao: int) -> int:
    """Imprime um QR Code.

    A SORBE aceita também níveis acima de 4.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
    Q7_ERR_FAILED.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.

    dados: o conteúdo. ASCII é seguro; em outros textos o comprimento anunciado à impressora
        conta caracteres, não bytes.
    tamanho: tamanho do módulo em pontos, de 1 a 6.
    nivelCorrecao: nível de correção, um valor de Q7QrLevel.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImpressaoQRCode(_utf8(dados), tamanho, nivelCorrecao)


def ImpressaoCodigoBarras(tipo: int, dados: str, altura: int, largura: int, HRI: int) -> int:
    """Imprime um código de barras.

    O que cada tipo aceita: UPC-A 11 ou 12 dígitos; UPC-E 11 ou 12, o primeiro "0"; EAN-13 12 ou 13;
    EAN-8 7 ou 8; CODE39 de 1 a 255 dígitos, letras maiúsculas e " $%*+-./"; ITF dígitos em
    quantidade par; CODABAR dígitos e "$+-./:" entre um início e um fim, cada um de A a D ou a a d;
    CODE93 de 1 a 255 caracteres ASCII; CODE128 texto ASCII atrás de um seletor de subconjunto "{A",
    "{B" ou "{C", e "{C" seguido de pares de dígitos. A SORBE não precisa do seletor e o descarta.

    A DUNEL não imprime o texto do código; a SORBE mantém a definição própria.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
    Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS h, GS w, GS H, GS k m n (função B).

    tipo: um valor de Q7Barcode.
    dados: o conteúdo, como acima.
    altura: altura em pontos, de 1 a 255.
    largura: largura do módulo em pontos, de 1 a 6.
    HRI: posição do texto do código, um valor de Q7Hri.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImpressaoCodigoBarras(tipo, _utf8(dados), altura, largura, HRI)


def ImprimeImagemMemoria(chave: str, escala: int) -> int:
    """Imprime uma imagem que a ferramenta do fabricante gravou na memória da impressora.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE, Q7_ERR_NOT_SENT.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS ( L, função 69.

    chave: os dois caracteres da chave da imagem, cada um de 0x20 a 0x7E.
    escala: um valor de Q7ImageScale.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImprimeImagemMemoria(_utf8(chave), escala)


def Corte(avanco: int) -> int:
    """Avança o papel e corta.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: LF, GS V 0.

    avanco: linhas a avançar antes; 0 ou menos não avança.

    Devolve 0 ou um código.
    """
    return _biblioteca.Corte(avanco)


def AvancaPapel(linhas: int) -> int:
    """Avança o papel.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: LF.

    linhas: linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.

    Devolve 0 ou um código.
    """
    return _biblioteca.AvancaPapel(linhas)


def AbreGaveta(pino: int, ti: int, tf: int) -> int:
    """Abre a gaveta.

    Um tempo 0 encurta o comando, e a impressora toma o que vem depois pelos tempos que faltam:
    passe de 1 a 255.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: ESC p m t1 t2.

    pino: saída da impressora, 0 ou 1.
    ti: tempo ligado, em unidades de 2 ms, de 0 a 255.
    tf: tempo desligado, em unidades de 2 ms, de 0 a 255.

    Devolve 0 ou um código.
    """
    return _biblioteca.AbreGaveta(pino, ti, tf)


def AbreGavetaTavlo() -> int:
    """Abre a gaveta pela saída 0 com os dois tempos em 200 ms.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC p 48 100 100.

    Devolve 0 ou um código.
    """
    return _biblioteca.AbreGavetaTavlo()


def SinalSonoro(qtd: int, tempoInicio: int, tempoFim: int) -> int:
    """Dá sinais sonoros.

    Só um dos dois tempos pode passar de 25.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BUZZER_COUNT, Q7_ERR_BUZZER_TIME, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: GS ( A, função 97.

    qtd: quantidade de sinais, de 0 a 63.
    tempoInicio: duração de cada sinal, em unidades de 100 ms.
    tempoFim: pausa depois de cada sinal, em unidades de 100 ms.

    Devolve 0 ou um código.
    """
    return _biblioteca.SinalSonoro(qtd, tempoInicio, tempoFim)


def StatusImpressora(param: int) -> int:
    """Pergunta o estado da impressora.

    Espera no máximo 1500 ms pela resposta e outro tanto pelo fim dela, a cada pergunta;
    Q7_STATUS_ALL faz até três.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_STATUS_UNAVAILABLE, Q7_ERR_STATUS_KIND,
    Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: GS a 0, DLE EOT n.

    param: a pergunta, um valor de Q7Status.

    Devolve para as perguntas de 1 a 4 um valor de Q7State; para Q7_STATUS_ALL a soma de valores de
    Q7StateBit; ou um código.
    """
    return _biblioteca.StatusImpressora(param)


def DirectIO(comando: bytes, tamanho: int, tamanhoResposta: int) -> Tuple[int, bytes]:
    """Envia bytes como estão e lê uma resposta.

    Espera no máximo 1500 ms pelo começo da resposta e 500 ms pelo fim. O log não traz o nome da
    função; traz os bytes enviados.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: o que comando contém.

    comando: os bytes; nulo não envia nada.
    tamanho: quantidade de bytes; abaixo de 1 não envia nada.
    resposta: memória para a resposta, que precisa ser grande o bastante, diga tamanhoResposta o
        que disser: 1024 bytes comportam qualquer resposta por USB; por serial e TCP vem antes o que
        a impressora enviou e ninguém leu, e Q7_LONGEST_REPLY bytes comportam tudo.
    tamanhoResposta: na entrada, 0 se nenhuma resposta é pedida; na saída, a quantidade de bytes
        copiados.

    Devolve 0 ou um código; Q7_ERR_FAILED quando nenhuma resposta foi pedida, também com resposta ou
    tamanhoResposta nulos, embora os bytes tenham sido enviados. Atrás dele, na mesma tupla:
    resposta.
    """
    _resposta = ctypes.create_string_buffer(Q7_LONGEST_REPLY)
    _tamanhoResposta = ctypes.c_uint(tamanhoResposta)
    resultado = _biblioteca.DirectIO(comando, tamanho, _resposta, ctypes.byref(_tamanhoResposta))
    return resultado, _resposta[:_tamanhoResposta.value if resultado == Q7_OK else 0]


def IdImpressora(tipo: int) -> str:
    """Pergunta à impressora quem ela é.

    Com 0 e 1 vai um algarismo atrás do comando, que as impressoras tomam por texto: ele aparece na
    frente da próxima linha impressa.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_ID_KIND.

    Efeito: na hora.

    ESC/POS: GS I n.

    tipo: a pergunta, um valor de Q7Identification.

    Devolve a resposta, em Latin-1, até o primeiro byte que não era UTF-8, ou um código em decimal
    ("-4", "-81", "-402"), em memória nova que fica com quem chamou.
    """
    return _texto(_biblioteca.IdImpressora(tipo))


def ModoPagina() -> int:
    """Entra no modo página.

    Daí em diante os textos não reiniciam mais a impressora, nem depois de ModoPadrao.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC L.

    Devolve 0 ou um código.
    """
    return _biblioteca.ModoPagina()


def DirecaoImpressao(direcao: int) -> int:
    """Define a direção de impressão no modo página.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: ESC T n.

    direcao: um valor de Q7Direction.

    Devolve 0 ou um código.
    """
    return _biblioteca.DirecaoImpressao(direcao)


def DefineAreaImpressao(x: int, y: int, largura: int, altura: int) -> int:
    """Define a área de impressão no modo página.

    De valores fora da faixa os dois bytes enviados não significam nada.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: ESC W.

    x: canto esquerdo em pontos, de 0 a 65535.
    y: canto superior em pontos, de 0 a 65535.
    largura: largura em pontos, de 0 a 65535.
    altura: altura em pontos, de 0 a 65535.

    Devolve 0 ou um código.
    """
    return _biblioteca.DefineAreaImpressao(x, y, largura, altura)


def PosicaoImpressaoHorizontal(posicao: int) -> int:
    """Define a posição horizontal absoluta.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir.

    ESC/POS: ESC $.

    posicao: pontos, de 0 a 500; valores negativos passam, mas os dois bytes enviados não
        significam nada.

    Devolve 0 ou um código.
    """
    return _biblioteca.PosicaoImpressaoHorizontal(posicao)


def PosicaoImpressaoVertical(posicao: int) -> int:
    """Define a posição vertical absoluta no modo página.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: GS $.

    posicao: pontos, de 0 a 65535; de valores fora da faixa os dois bytes enviados não
        significam nada.

    Devolve 0 ou um código.
    """
    return _biblioteca.PosicaoImpressaoVertical(posicao)


def ImprimeModoPagina() -> int:
    """Imprime a página e continua no modo página.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC FF.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImprimeModoPagina()


def LimpaBufferModoPagina() -> int:
    """Apaga a página sem a imprimir.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: CAN.

    Devolve 0 ou um código.
    """
    return _biblioteca.LimpaBufferModoPagina()


def ImprimeMPeRetornaPadrao() -> int:
    """Imprime a página e volta ao modo padrão.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: FF.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImprimeMPeRetornaPadrao()


def ModoPadrao() -> int:
    """Volta ao modo padrão; uma página não impressa se perde.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC S.

    Devolve 0 ou um código.
    """
    return _biblioteca.ModoPadrao()


def ImprimeXMLSAT(dados: str, param: int) -> int:
    """Imprime o extrato de uma venda CF-e do SAT; não corta.

    De um documento que não pode ser lido saem só os rótulos, e o resultado é 0.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: os das funções de texto, código de barras e QR Code.

    dados: o texto do XML autorizado (raiz CFe), não o nome de um arquivo.
    param: soma de valores de Q7CfeOption.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImprimeXMLSAT(_utf8(dados), param)


def ImprimeXMLCancelamentoSAT(dados: str, assinaturaQRCODE: str, param: int) -> int:
    """Imprime o extrato do cancelamento de um CF-e do SAT; não corta.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIGNATURE, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: os das funções de texto, código de barras e QR Code.

    dados: o texto do XML do cancelamento (raiz CFeCanc), não o nome de um arquivo.
    assinaturaQRCODE: a assinatura da venda cancelada (o elemento desse nome no XML dela), de
        344 caracteres.
    param: 0 ou Q7_CFE_LOGO.

    Devolve 0 ou um código; Q7_ERR_FAILED quando o documento não é um cancelamento.
    """
    return _biblioteca.ImprimeXMLCancelamentoSAT(_utf8(dados), _utf8(assinaturaQRCODE), param)


def ImprimeXMLNFCe(dados: str, indexcsc: int, csc: str, param: int) -> int:
    """Imprime o DANFE de uma NFC-e; não corta no fim.

    Uma nota em contingência sai em duas vias, com um corte entre elas.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NFCE_OPTIONS, Q7_ERR_NFCE_NO_VERSION, Q7_ERR_NFCE_VERSION,
    Q7_ERR_NFCE_EMISSION, Q7_ERR_NFCE_MODEL, Q7_ERR_NFCE_QR.

    Efeito: na hora.

    ESC/POS: os das funções de texto, de QR Code e do modo página.

    dados: o texto do XML (raiz nfeProc ou NFe), versão 4.00, com a urlChave; não o nome de um
        arquivo.
    indexcsc: o identificador do CSC do contribuinte, usado se a nota não tem qrCode.
    csc: o CSC do contribuinte, usado se a nota não tem qrCode.
    param: soma de valores de Q7NfceOption, no máximo 65535.

    Devolve 0 ou um código.
    """
    return _biblioteca.ImprimeXMLNFCe(_utf8(dados), indexcsc, _utf8(csc), param)


def PrinterCreator(handle, model: str) -> int:
    """Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem.

    Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.

    ESC/POS: nenhum.

    handle: ignorado.
    model: nome do modelo, como em AbreConexaoImpressora.

    Devolve 0.
    """
    return _biblioteca.PrinterCreator(handle, _utf8(model))


def PrinterCreatorS(handle, model: str) -> None:
    """Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem, como PrinterCreator, sem
    resultado.

    Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.

    ESC/POS: nenhum.

    handle: ignorado.
    model: nome do modelo, como em AbreConexaoImpressora.
    """
    _biblioteca.PrinterCreatorS(handle, _utf8(model))


def PrinterDestroy(handle) -> int:
    """Não libera nada: a porta continua aberta. Protegida.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: nenhum.

    ESC/POS: nenhum.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrinterDestroy(handle)


def PortOpen(handle, text: str) -> int:
    """Abre a conexão com o modelo de PrinterCreator, como AbreConexaoImpressora.

    O texto é feito de campos separados por "," ou "_", que por isso não podem aparecer em nomes nem
    em caminhos. O primeiro campo contém, em maiúsculas ou minúsculas, uma das palavras

    - "COM": ele mesmo é a porta serial e o segundo são os bits por segundo: "COM3,9600";

    - "NET": o segundo é o nome ou endereço e o terceiro a porta TCP, 9100 se falta ou está vazio:
    "NET,192.168.0.10,9100";

    - "USB": não precisa de outros campos.

    Qualquer outro texto ("COM3" ou "NET" sozinhos também) devolve Q7_ERR_KIND, e a velocidade que
    falta, Q7_ERR_SPEED.

    Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
    Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
    Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: GS I 67, por serial e TCP.

    handle: ignorado.
    text: a porta, como acima.

    Devolve 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
    """
    return _biblioteca.PortOpen(handle, _utf8(text))


def PortClose(handle) -> int:
    """Fecha a conexão, como FechaConexaoImpressora. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: nenhum.

    handle: ignorado.

    Devolve 0, um código, ou, na USB, um número positivo de erro do sistema.
    """
    return _biblioteca.PortClose(handle)


def PrinterInitialize(handle) -> int:
    """Reinicia a impressora, como InicializaImpressora. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC @.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrinterInitialize(handle)


def PrintText(handle, text: str, alignment: int, style: int, size: int) -> int:
    """Imprime um texto, como ImpressaoTexto. Protegida; o log traz os dois nomes.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.

    Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\\n".

    ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.

    handle: ignorado.
    text: o texto, em UTF-8; os fins de linha ("\\n") são de quem chama.
    alignment: alinhamento, um valor de Q7Alignment; 0 deixa como está.
    style: soma de valores de Q7Style, de 0 a 15.
    size: tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.

    Devolve a quantidade de bytes do texto enviados, ou um código.
    """
    return _biblioteca.PrintText(handle, _utf8(text), alignment, style, size)


def PrintTextS(handle, text: str) -> int:
    """Envia os bytes de um texto como estão: sem conversão para Latin-1, sem escolher a tabela de
    caracteres.

    Protegida, mas o log a registra antes.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: nenhum além do texto.

    handle: ignorado.
    text: o texto, que vai até o primeiro byte zero.

    Devolve a quantidade de bytes enviados, ou um código; um texto vazio devolve Q7_ERR_NOT_SENT.
    """
    return _biblioteca.PrintTextS(handle, _utf8(text))


def SetAlign(handle, alignment: int) -> int:
    """Define o alinhamento ao centro ou à direita. Protegida.

    0, à esquerda, é aceito mas não envia nada: a impressora fica como está. Para voltar à esquerda
    chame DefinePosicao com Q7_ALIGN_LEFT.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.

    ESC/POS: ESC a n.

    handle: ignorado.
    alignment: Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.

    Devolve 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
    """
    return _biblioteca.SetAlign(handle, alignment)


def SetTextBold(handle, on: int) -> int:
    """Liga ou desliga o negrito. Protegida, mas o log a registra antes.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.

    Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).

    ESC/POS: ESC E n.

    handle: ignorado.
    on: 1 liga, 0 desliga.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.SetTextBold(handle, on)


def SetTextFont(handle, font: int) -> int:
    """Escolhe a fonte e desliga o sublinhado, que o mesmo comando define. Protegida, mas o log a
    registra antes.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.

    Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).

    ESC/POS: ESC ! n.

    handle: ignorado.
    font: um valor de Q7Font.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.SetTextFont(handle, font)


def SetTextLineSpace(spacing: int) -> int:
    """Guarda o espaçamento entre linhas: é a mesma função que EspacamentoEntreLinhas, e o log traz o
    nome dela. Não tem identificador.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.

    Efeito: no próximo ImpressaoTexto; a própria função não envia nada.

    ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.

    spacing: espaçamento em pontos, de 1 a 255.

    Devolve 0 ou um código.
    """
    return _biblioteca.SetTextLineSpace(spacing)


def PrintBarCode(handle, type_: int, data: str, width: int, height: int, hri: int) -> int:
    """Imprime um código de barras, como ImpressaoCodigoBarras. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
    Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS h, GS w, GS H, GS k m n (função B).

    handle: ignorado.
    type_: um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
    data: o conteúdo, como em ImpressaoCodigoBarras.
    width: largura do módulo em pontos, de 1 a 6.
    height: altura em pontos, de 1 a 255.
    hri: posição do texto do código, um valor de Q7Hri.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrintBarCode(handle, type_, _utf8(data), width, height, hri)


def PrintSymbol(handle, type_: int, data: str, errorLevel: int, size: int) -> int:
    """Imprime um QR Code, como ImpressaoQRCode.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
    Q7_ERR_FAILED.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.

    handle: ignorado.
    type_: ignorado.
    data: o conteúdo, como em ImpressaoQRCode.
    errorLevel: nível de correção, um valor de Q7QrLevel.
    size: tamanho do módulo em pontos, de 1 a 6.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrintSymbol(handle, type_, _utf8(data), errorLevel, size)


def PrintNVImage(handle, k1: int, k2: int) -> int:
    """Falha sempre e nunca imprime: para uma imagem gravada na impressora chame ImprimeImagemMemoria.

    Programas desta interface podem chamá-la; ela é ImprimeImagemMemoria com a escala 0, que não
    existe.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE.

    Efeito: nenhum.

    ESC/POS: nenhum.

    handle: ignorado.
    k1: primeiro caractere da chave, do qual conta o byte baixo.
    k2: segundo caractere da chave, do qual conta o byte baixo.

    Devolve sempre um código.
    """
    return _biblioteca.PrintNVImage(handle, k1, k2)


def DefineNVImage(a: int, b: int, c: int, d: int) -> int:
    """Não faz nada: as imagens são gravadas com a ferramenta do fabricante da impressora.

    Efeito: nenhum.

    ESC/POS: nenhum.

    a: ignorado.
    b: ignorado.
    c: ignorado.
    d: ignorado.

    Devolve 0.
    """
    return _biblioteca.DefineNVImage(a, b, c, d)


def FeedLine(handle, lines: int) -> int:
    """Avança o papel, como AvancaPapel. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: LF.

    handle: ignorado.
    lines: linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.

    Devolve 0 ou um código.
    """
    return _biblioteca.FeedLine(handle, lines)


def CutPaper(handle, lines: int) -> int:
    """Avança o papel e corta, como Corte. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: LF, GS V 0.

    handle: ignorado.
    lines: linhas a avançar antes; 0 ou menos não avança.

    Devolve 0 ou um código.
    """
    return _biblioteca.CutPaper(handle, lines)


def OpenDrawer(handle, pin: int, onTime: int, offTime: int) -> int:
    """Abre a gaveta, como AbreGaveta. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: ESC p m t1 t2.

    handle: ignorado.
    pin: saída da impressora, 0 ou 1.
    onTime: tempo ligado, em unidades de 2 ms, de 0 a 255.
    offTime: tempo desligado, em unidades de 2 ms, de 0 a 255.

    Devolve 0 ou um código.
    """
    return _biblioteca.OpenDrawer(handle, pin, onTime, offTime)


def OpenCashDrawer(handle, pin: int, onTime: int, offTime: int) -> int:
    """Abre a gaveta; é OpenDrawer com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: ESC p m t1 t2.

    handle: ignorado.
    pin: saída da impressora, 0 ou 1.
    onTime: tempo ligado, em unidades de 2 ms, de 0 a 255.
    offTime: tempo desligado, em unidades de 2 ms, de 0 a 255.

    Devolve 0 ou um código.
    """
    return _biblioteca.OpenCashDrawer(handle, pin, onTime, offTime)


def GetPrinterState(handle, state: int = -1) -> Tuple[int, int]:
    """Pergunta o estado da impressora, com StatusImpressora e Q7_STATUS_ALL. Protegida.

    Qualquer outra resposta, ou nenhuma, devolve Q7_ERR_STATUS_UNAVAILABLE e deixa state como
    estava: por USB e serial também sempre que o sinal da gaveta está em nível baixo.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.

    Efeito: na hora.

    ESC/POS: GS a 0, DLE EOT n.

    handle: ignorado.
    state: recebe um valor de Q7PrinterState; pode ser nulo. Aqui, o valor que fica quando a
        função não o escreve.

    Devolve 0 ou um código. Atrás dele, na mesma tupla: state.
    """
    _state = ctypes.c_int(state)
    resultado = _biblioteca.GetPrinterState(handle, ctypes.byref(_state))
    return resultado, _state.value


def GetDrawerState(handle, polarity: int, state: int = -1) -> Tuple[int, int]:
    """Pergunta o sinal da gaveta, com StatusImpressora e Q7_STATUS_DRAWER. Protegida.

    state fica como estava quando a impressora não disse nada e por TCP, em que a gaveta não pode
    ser perguntada.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: GS a 0, DLE EOT 1.

    handle: ignorado.
    state: recebe 1 ou 0; pode ser nulo. Aqui, o valor que fica quando a função não o escreve.
    polarity: diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.

    Devolve 0, também quando state fica como estava, ou um código. Atrás dele, na mesma tupla:
    state.
    """
    _state = ctypes.c_int(state)
    resultado = _biblioteca.GetDrawerState(handle, ctypes.byref(_state), polarity)
    return resultado, _state.value


def GetCashDrawerState(handle, polarity: int, state: int = -1) -> Tuple[int, int]:
    """Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: GS a 0, DLE EOT 1.

    handle: ignorado.
    state: recebe 1 ou 0; pode ser nulo. Aqui, o valor que fica quando a função não o escreve.
    polarity: diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.

    Devolve 0, também quando state fica como estava, ou um código. Atrás dele, na mesma tupla:
    state.
    """
    _state = ctypes.c_int(state)
    resultado = _biblioteca.GetCashDrawerState(handle, ctypes.byref(_state), polarity)
    return resultado, _state.value


def SelectPageMode(handle) -> int:
    """Entra no modo página, como ModoPagina. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC L.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.SelectPageMode(handle)


def SelectStandardMode(handle) -> int:
    """Volta ao modo padrão; é PrtSelectStandardMode com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: ESC S.

    handle: ignorado.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.SelectStandardMode(handle)


def SelectPrintDirectionInPageMode(handle, direction: int) -> int:
    """Define a direção de impressão no modo página, como DirecaoImpressao. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: ESC T n.

    handle: ignorado.
    direction: um valor de Q7Direction.

    Devolve 0 ou um código.
    """
    return _biblioteca.SelectPrintDirectionInPageMode(handle, direction)


def SetPrintAreaInPageMode(handle, x: int, y: int, width: int, height: int) -> int:
    """Define a área de impressão no modo página, como DefineAreaImpressao. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: ESC W.

    handle: ignorado.
    x: canto esquerdo em pontos, de 0 a 65535.
    y: canto superior em pontos, de 0 a 65535.
    width: largura em pontos, de 0 a 65535.
    height: altura em pontos, de 0 a 65535.

    Devolve 0 ou um código.
    """
    return _biblioteca.SetPrintAreaInPageMode(handle, x, y, width, height)


def SetAbSolutePrintPosition(handle, position: int) -> int:
    """Define a posição horizontal absoluta, como PosicaoImpressaoHorizontal. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir.

    ESC/POS: ESC $.

    handle: ignorado.
    position: pontos, de 0 a 500.

    Devolve 0 ou um código.
    """
    return _biblioteca.SetAbSolutePrintPosition(handle, position)


def SetAbsoluteVerticalPrintPositionInPageMode(handle, position: int) -> int:
    """Define a posição vertical absoluta no modo página, como PosicaoImpressaoVertical. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: GS $.

    handle: ignorado.
    position: pontos, de 0 a 65535.

    Devolve 0 ou um código.
    """
    return _biblioteca.SetAbsoluteVerticalPrintPositionInPageMode(handle, position)


def PrintDataInPageMode(handle) -> int:
    """Imprime a página e continua no modo página, como ImprimeModoPagina. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC FF.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrintDataInPageMode(handle)


def CancelPrintDataInPageMode(handle) -> int:
    """Apaga a página sem a imprimir, como LimpaBufferModoPagina. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: CAN.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.CancelPrintDataInPageMode(handle)


def SetPrintAndReturnStandardMode(handle) -> int:
    """Imprime a página e volta ao modo padrão, como ImprimeMPeRetornaPadrao. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: FF.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.SetPrintAndReturnStandardMode(handle)


def PrtPrinterCreator(handle, model: str) -> int:
    """Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem: é PrinterCreator, e o nome
    guardado é o mesmo.

    Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.

    ESC/POS: nenhum.

    handle: ignorado.
    model: nome do modelo, como em AbreConexaoImpressora.

    Devolve 0.
    """
    return _biblioteca.PrtPrinterCreator(handle, _utf8(model))


def PrtPrinterDestroy(handle) -> int:
    """Não libera nada: a porta continua aberta, como em PrinterDestroy. Protegida.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: nenhum.

    ESC/POS: nenhum.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtPrinterDestroy(handle)


def PrtPortOpen(handle, text: str) -> int:
    """Abre a conexão com o modelo de PrinterCreator; é PortOpen com outro nome.

    Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED,
    Q7_ERR_SERIAL_NOT_FOUND, Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT,
    Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: GS I 67, por serial e TCP.

    handle: ignorado.
    text: a porta, como em PortOpen: "COM3,9600", "NET,192.168.0.10,9100" ou "USB".

    Devolve 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
    """
    return _biblioteca.PrtPortOpen(handle, _utf8(text))


def PrtPortClose(handle) -> int:
    """Fecha a conexão, como FechaConexaoImpressora; não é protegida: o log a registra também quando
    nada está aberto.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: nenhum.

    handle: ignorado.

    Devolve 0, um código, ou, na USB, um número positivo de erro do sistema.
    """
    return _biblioteca.PrtPortClose(handle)


def PrtPrinterInitialize(handle) -> int:
    """Reinicia a impressora, como InicializaImpressora. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC @.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtPrinterInitialize(handle)


def PrtPrintText(handle, text: str, alignment: int, style: int, size: int) -> int:
    """Imprime um texto; é PrintText com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.

    Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\\n".

    ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.

    handle: ignorado.
    text: o texto, em UTF-8; os fins de linha ("\\n") são de quem chama.
    alignment: alinhamento, um valor de Q7Alignment; 0 deixa como está.
    style: soma de valores de Q7Style, de 0 a 15.
    size: tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.

    Devolve a quantidade de bytes do texto enviados, ou um código.
    """
    return _biblioteca.PrtPrintText(handle, _utf8(text), alignment, style, size)


def PrtSetTextPosition(handle, alignment: int) -> int:
    """Define o alinhamento ao centro ou à direita; é SetAlign com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.

    ESC/POS: ESC a n.

    handle: ignorado.
    alignment: Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT; com Q7_ALIGN_LEFT nada é enviado.

    Devolve 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
    """
    return _biblioteca.PrtSetTextPosition(handle, alignment)


def PrtSetTextBold(handle, on: int) -> int:
    """Liga ou desliga o negrito; é SetTextBold com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.

    Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).

    ESC/POS: ESC E n.

    handle: ignorado.
    on: 1 liga, 0 desliga.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.PrtSetTextBold(handle, on)


def PrtSetTextFont(handle, font: int) -> int:
    """Escolhe a fonte; é SetTextFont com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.

    Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).

    ESC/POS: ESC ! n.

    handle: ignorado.
    font: um valor de Q7Font.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.PrtSetTextFont(handle, font)


def PrtPrintBarCode(handle, type_: int, data: str, width: int, height: int, hri: int) -> int:
    """Imprime um código de barras; é PrintBarCode com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
    Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS h, GS w, GS H, GS k m n (função B).

    handle: ignorado.
    type_: um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
    data: o conteúdo, como em ImpressaoCodigoBarras.
    width: largura do módulo em pontos, de 1 a 6.
    height: altura em pontos, de 1 a 255.
    hri: posição do texto do código, um valor de Q7Hri.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtPrintBarCode(handle, type_, _utf8(data), width, height, hri)


def PrtPrintSymbol(handle, type_: int, data: str, errorLevel: int, size: int) -> int:
    """Imprime um QR Code; é PrintSymbol com outro nome.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
    Q7_ERR_FAILED.

    Efeito: na hora, com o alinhamento em vigor.

    ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.

    handle: ignorado.
    type_: ignorado.
    data: o conteúdo, como em ImpressaoQRCode.
    errorLevel: nível de correção, um valor de Q7QrLevel.
    size: tamanho do módulo em pontos, de 1 a 6.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtPrintSymbol(handle, type_, _utf8(data), errorLevel, size)


def PrtFeedLine(handle, lines: int) -> int:
    """Avança o papel; é FeedLine com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: LF.

    handle: ignorado.
    lines: linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtFeedLine(handle, lines)


def PrtCutPaper(handle, lines: int) -> int:
    """Avança o papel e corta, como Corte. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: LF, GS V 0.

    handle: ignorado.
    lines: linhas a avançar antes; 0 ou menos não avança.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtCutPaper(handle, lines)


def PrtOpenDrawer(handle, pin: int, onTime: int, offTime: int) -> int:
    """Abre a gaveta; é OpenDrawer com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.

    Efeito: na hora.

    ESC/POS: ESC p m t1 t2.

    handle: ignorado.
    pin: saída da impressora, 0 ou 1.
    onTime: tempo ligado, em unidades de 2 ms, de 0 a 255.
    offTime: tempo desligado, em unidades de 2 ms, de 0 a 255.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtOpenDrawer(handle, pin, onTime, offTime)


def PrtCheckPrinterState(handle, state: int = -1) -> Tuple[int, int]:
    """Pergunta o estado da impressora; é GetPrinterState com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.

    Efeito: na hora.

    ESC/POS: GS a 0, DLE EOT n.

    handle: ignorado.
    state: recebe um valor de Q7PrinterState; pode ser nulo. Aqui, o valor que fica quando a
        função não o escreve.

    Devolve 0 ou um código. Atrás dele, na mesma tupla: state.
    """
    _state = ctypes.c_int(state)
    resultado = _biblioteca.PrtCheckPrinterState(handle, ctypes.byref(_state))
    return resultado, _state.value


def PrtGetDrawerState(handle, polarity: int, state: int = -1) -> Tuple[int, int]:
    """Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: GS a 0, DLE EOT 1.

    handle: ignorado.
    state: recebe 1 ou 0; pode ser nulo. Aqui, o valor que fica quando a função não o escreve.
    polarity: diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.

    Devolve 0, também quando state fica como estava, ou um código. Atrás dele, na mesma tupla:
    state.
    """
    _state = ctypes.c_int(state)
    resultado = _biblioteca.PrtGetDrawerState(handle, ctypes.byref(_state), polarity)
    return resultado, _state.value


def PrtSelectPageMode(handle) -> int:
    """Entra no modo página; é SelectPageMode com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC L.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtSelectPageMode(handle)


def PrtSelectStandardMode(handle) -> int:
    """Volta ao modo padrão; uma página não impressa se perde. Protegida; o log não traz o nome dela.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: ESC S.

    handle: ignorado.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.PrtSelectStandardMode(handle)


def PrtSelectPrintDirectionInPageMode(handle, direction: int) -> int:
    """Define a direção de impressão no modo página; é SelectPrintDirectionInPageMode com outro nome.
    Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: ESC T n.

    handle: ignorado.
    direction: um valor de Q7Direction.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtSelectPrintDirectionInPageMode(handle, direction)


def PrtSetPrintAreaInPageMode(handle, x: int, y: int, width: int, height: int) -> int:
    """Define a área de impressão no modo página; é SetPrintAreaInPageMode com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: ESC W.

    handle: ignorado.
    x: canto esquerdo em pontos, de 0 a 65535.
    y: canto superior em pontos, de 0 a 65535.
    width: largura em pontos, de 0 a 65535.
    height: altura em pontos, de 0 a 65535.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtSetPrintAreaInPageMode(handle, x, y, width, height)


def PrtSetAbsoluteVerticalPrintPositionInPageMode(handle, position: int) -> int:
    """Define a posição vertical absoluta; é SetAbsoluteVerticalPrintPositionInPageMode com outro nome.
    Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: no que vier a seguir na página.

    ESC/POS: GS $.

    handle: ignorado.
    position: pontos, de 0 a 65535.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtSetAbsoluteVerticalPrintPositionInPageMode(handle, position)


def PrtPrintDataInPageMode(handle) -> int:
    """Imprime a página e continua no modo página; é PrintDataInPageMode com outro nome. Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: ESC FF.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtPrintDataInPageMode(handle)


def PrtCancelPrintDataInPageMode(handle) -> int:
    """Envia um ESC sozinho, que não apaga a página: para isso chame CancelPrintDataInPageMode.
    Protegida.

    A impressora toma o byte seguinte pelo resto de um comando.

    Códigos: Q7_ERR_NOT_OPEN.

    Efeito: na hora.

    ESC/POS: ESC.

    handle: ignorado.

    Devolve 0, também quando nada foi enviado, ou um código.
    """
    return _biblioteca.PrtCancelPrintDataInPageMode(handle)


def PrtSetPrintAndReturnStandardMode(handle) -> int:
    """Imprime a página e volta ao modo padrão; é SetPrintAndReturnStandardMode com outro nome.
    Protegida.

    Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.

    Efeito: na hora.

    ESC/POS: FF.

    handle: ignorado.

    Devolve 0 ou um código.
    """
    return _biblioteca.PrtSetPrintAndReturnStandardMode(handle)
