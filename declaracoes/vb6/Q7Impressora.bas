Attribute VB_Name = "Q7Impressora"
' Gerado a partir de q7_impressora.h por scripts/declarations; não altere.
'
' Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora. Os textos vão para ela
' em UTF-8, e os que ela devolve são lidos sem ser liberados.
Option Explicit

' A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL.
Public Const Q7_VERSION_TEXT As String = "01.01.00"

' Q7Result: Códigos de retorno.
Public Const Q7_OK As Long = 0 ' Sucesso
Public Const Q7_ERR_KIND As Long = -2 ' Tipo de conexão desconhecido
Public Const Q7_ERR_MODEL As Long = -3 ' Modelo desconhecido, ou a impressora é de outro modelo conhecido
Public Const Q7_ERR_NOT_OPEN As Long = -4 ' Nenhuma conexão aberta
Public Const Q7_ERR_UNKNOWN_PRINTER As Long = -5 ' A impressora não informou um modelo conhecido
Public Const Q7_ERR_ALREADY_OPEN As Long = -6 ' Conexão já aberta
Public Const Q7_ERR_SPEED As Long = -11 ' Velocidade serial não permitida
Public Const Q7_ERR_SERIAL_NOT_FOUND As Long = -12 ' Porta serial não encontrada
Public Const Q7_ERR_SERIAL_DENIED As Long = -13 ' Porta serial em uso ou sem permissão
Public Const Q7_ERR_SERIAL_UNKNOWN As Long = -14 ' Porta serial falhou por motivo desconhecido
Public Const Q7_ERR_USB_ABSENT As Long = -21 ' Impressora USB não encontrada
Public Const Q7_ERR_USB_OPEN As Long = -22 ' A impressora USB não pôde ser aberta
Public Const Q7_ERR_TCP_PORT As Long = -31 ' Porta TCP fora da faixa
Public Const Q7_ERR_ALIGNMENT As Long = -41 ' Alinhamento fora de 0 a 2
Public Const Q7_ERR_STYLE As Long = -42 ' Estilo, negrito ou fonte fora da faixa
Public Const Q7_ERR_SIZE As Long = -43 ' Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255
Public Const Q7_ERR_NOT_SENT As Long = -44 ' Nada foi enviado
Public Const Q7_ERR_QR_SIZE As Long = -51 ' Tamanho do módulo do QR Code fora de 1 a 6
Public Const Q7_ERR_QR_LEVEL As Long = -52 ' Nível de correção do QR Code fora de 1 a 4
Public Const Q7_ERR_QR_EMPTY As Long = -53 ' Conteúdo do QR Code vazio
Public Const Q7_ERR_BARCODE_HEIGHT As Long = -61 ' Altura do código de barras fora de 1 a 255
Public Const Q7_ERR_BARCODE_WIDTH As Long = -62 ' Largura do módulo do código de barras fora de 1 a 6
Public Const Q7_ERR_BARCODE_HRI As Long = -63 ' Posição do texto do código de barras fora de 1 a 4
Public Const Q7_ERR_BARCODE_TYPE As Long = -64 ' Tipo de código de barras fora de 0 a 8
Public Const Q7_ERR_BARCODE_DATA As Long = -65 ' Dados inválidos para o tipo de código de barras
Public Const Q7_ERR_XSD As Long = -71 ' Documento ou esquema inválido
Public Const Q7_ERR_XSD_MISSING As Long = -72 ' Arquivo de esquema ausente
Public Const Q7_ERR_NO_REPLY As Long = -81 ' A impressora não respondeu
Public Const Q7_ERR_SIGNATURE As Long = -91 ' A assinatura não tem 344 caracteres
Public Const Q7_ERR_NFCE_VERSION As Long = -101 ' Versão do leiaute da NFC-e diferente de 4.00
Public Const Q7_ERR_NFCE_NO_VERSION As Long = -102 ' Não é uma NFC-e, ou é uma sem o atributo versao
Public Const Q7_ERR_NFCE_EMISSION As Long = -103 ' Tipo de emissão (tpEmis) ausente ou 0
Public Const Q7_ERR_NFCE_OPTIONS As Long = -104 ' Opções da NFC-e acima de 65535
Public Const Q7_ERR_NFCE_MODEL As Long = -105 ' NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0
Public Const Q7_ERR_NFCE_QR As Long = -106 ' Nota sem QR Code. Só com o leiaute 6.0
Public Const Q7_ERR_BUZZER_COUNT As Long = -111 ' Quantidade de sinais sonoros acima de 63
Public Const Q7_ERR_BUZZER_TIME As Long = -112 ' Os dois tempos do sinal sonoro acima de 25
Public Const Q7_ERR_DRAWER_PIN As Long = -121 ' Pino da gaveta acima de 1
Public Const Q7_ERR_DRAWER_TIME As Long = -122 ' Um tempo da gaveta acima de 255
Public Const Q7_ERR_STATUS_UNAVAILABLE As Long = -126 ' Estado não disponível nesta conexão
Public Const Q7_ERR_STATUS_KIND As Long = -127 ' Pergunta de estado fora de 1 a 5
Public Const Q7_ERR_IMAGE_KEY As Long = -131 ' A chave da imagem não são dois caracteres visíveis
Public Const Q7_ERR_IMAGE_SCALE As Long = -132 ' Escala da imagem fora de 1 a 2
Public Const Q7_ERR_DIRECTION As Long = -136 ' Direção de impressão fora de 0 a 3
Public Const Q7_ERR_POSITION As Long = -137 ' Posição horizontal acima de 500
Public Const Q7_ERR_ID_KIND As Long = -402 ' Pergunta de identificação fora de 0 a 6
Public Const Q7_ERR_FAILED As Long = -9999 ' Sem resultado: nada foi enviado, ou outra falha

' Q7NetError: Números positivos que AbreConexaoImpressora devolve quando a conexão TCP falha.
Public Const Q7_NET_REFUSED As Long = 0 ' conexão recusada: parece sucesso, veja as convenções
Public Const Q7_NET_CLOSED As Long = 1 ' fechada pelo outro lado
Public Const Q7_NET_HOST_NOT_FOUND As Long = 2 ' nome ou endereço não encontrado
Public Const Q7_NET_NOT_PERMITTED As Long = 3 ' o sistema não permitiu
Public Const Q7_NET_NO_RESOURCES As Long = 4 ' faltam recursos ao sistema
Public Const Q7_NET_TIMEOUT As Long = 5 ' sem resposta em 2000 ms
Public Const Q7_NET_UNREACHABLE As Long = 7 ' rede fora do alcance

' Q7Connection: Tipos de conexão.
Public Const Q7_CONNECTION_USB As Long = 1 ' USB
Public Const Q7_CONNECTION_SERIAL As Long = 2 ' porta serial (COM)
Public Const Q7_CONNECTION_TCP As Long = 3 ' rede (TCP)

' Q7Alignment: Alinhamentos.
Public Const Q7_ALIGN_LEFT As Long = 0 ' à esquerda; em ImpressaoTexto: deixa o alinhamento como está
Public Const Q7_ALIGN_CENTER As Long = 1 ' centralizado
Public Const Q7_ALIGN_RIGHT As Long = 2 ' à direita

' Q7Style: Estilos de texto, que se somam.
Public Const Q7_STYLE_NORMAL As Long = 0 ' nenhum
Public Const Q7_STYLE_SMALL As Long = 1 ' fonte pequena; com Q7_STYLE_UNDERLINE, perde-se
Public Const Q7_STYLE_UNDERLINE As Long = 2 ' sublinhado
Public Const Q7_STYLE_REVERSE As Long = 4 ' branco sobre preto
Public Const Q7_STYLE_BOLD As Long = 8 ' negrito

' Q7Size: Tamanhos de caractere: (fator de largura - 1) * 16 + (fator de altura - 1), de 0 a 119.
Public Const Q7_SIZE_NORMAL As Long = 0 ' deixa o tamanho como está
Public Const Q7_SIZE_DOUBLE_HEIGHT As Long = 1 ' altura dupla
Public Const Q7_SIZE_DOUBLE_WIDTH As Long = 16 ' largura dupla
Public Const Q7_SIZE_DOUBLE As Long = 17 ' largura e altura duplas
Public Const Q7_SIZE_TRIPLE As Long = 34 ' largura e altura triplas
Public Const Q7_SIZE_LARGEST As Long = 119 ' largura e altura óctuplas

' Q7Font: Fontes de SetTextFont.
Public Const Q7_FONT_NORMAL As Long = 0 ' fonte normal
Public Const Q7_FONT_SMALL As Long = 1 ' fonte pequena

' Q7Barcode: Códigos de barras.
Public Const Q7_BARCODE_UPC_A As Long = 0 ' UPC-A
Public Const Q7_BARCODE_UPC_E As Long = 1 ' UPC-E
Public Const Q7_BARCODE_EAN13 As Long = 2 ' EAN-13
Public Const Q7_BARCODE_EAN8 As Long = 3 ' EAN-8
Public Const Q7_BARCODE_CODE39 As Long = 4 ' CODE39
Public Const Q7_BARCODE_ITF As Long = 5 ' ITF (2 de 5 intercalado)
Public Const Q7_BARCODE_CODABAR As Long = 6 ' CODABAR
Public Const Q7_BARCODE_CODE93 As Long = 7 ' CODE93
Public Const Q7_BARCODE_CODE128 As Long = 8 ' CODE128

' Q7Hri: Posições do texto de um código de barras.
Public Const Q7_HRI_ABOVE As Long = 1 ' acima
Public Const Q7_HRI_BELOW As Long = 2 ' abaixo
Public Const Q7_HRI_BOTH As Long = 3 ' acima e abaixo
Public Const Q7_HRI_OTHER As Long = 4 ' enviado como está: a impressora decide

' Q7QrLevel: Níveis de correção de erros do QR Code.
Public Const Q7_QR_LEVEL_L As Long = 1 ' nível L, cerca de 7%
Public Const Q7_QR_LEVEL_M As Long = 2 ' nível M, cerca de 15%
Public Const Q7_QR_LEVEL_Q As Long = 3 ' nível Q, cerca de 25%
Public Const Q7_QR_LEVEL_H As Long = 4 ' nível H, cerca de 30%

' Q7ImageScale: Escalas das imagens gravadas na impressora.
Public Const Q7_IMAGE_NORMAL As Long = 1 ' como gravada
Public Const Q7_IMAGE_DOUBLE As Long = 2 ' largura e altura duplas

' Q7Status: O que StatusImpressora pergunta.
Public Const Q7_STATUS_DRAWER As Long = 1 ' sinal da gaveta; não por TCP
Public Const Q7_STATUS_COVER As Long = 2 ' tampa
Public Const Q7_STATUS_PAPER As Long = 3 ' papel
Public Const Q7_STATUS_SENSOR As Long = 4 ' sensor de papel; só por TCP
Public Const Q7_STATUS_ALL As Long = 5 ' todos os que a conexão tem, numa soma de Q7StateBit

' Q7State: O que StatusImpressora responde às perguntas de 1 a 4.
Public Const Q7_STATE_DRAWER_LOW As Long = 1 ' sinal da gaveta em nível baixo
Public Const Q7_STATE_DRAWER_HIGH As Long = 2 ' sinal da gaveta em nível alto
Public Const Q7_STATE_COVER_OPEN As Long = 3 ' tampa aberta
Public Const Q7_STATE_COVER_CLOSED As Long = 4 ' tampa fechada
Public Const Q7_STATE_PAPER_PRESENT As Long = 5 ' há papel
Public Const Q7_STATE_PAPER_NEAR_END As Long = 6 ' papel perto do fim
Public Const Q7_STATE_PAPER_OUT As Long = 7 ' sem papel
Public Const Q7_STATE_SENSOR_CLEAR As Long = 8 ' sensor sem sinal
Public Const Q7_STATE_SENSOR_SIGNALLED As Long = 9 ' sensor com sinal

' Q7StateBit: De que se soma a resposta de StatusImpressora a Q7_STATUS_ALL; 0 é a impressora
' pronta.
Public Const Q7_STATE_BIT_DRAWER_LOW As Long = 1 ' sinal da gaveta em nível baixo
Public Const Q7_STATE_BIT_COVER_OPEN As Long = 2 ' tampa aberta
Public Const Q7_STATE_BIT_PAPER_NEAR_END As Long = 4 ' papel perto do fim, ou no fim
Public Const Q7_STATE_BIT_PAPER_OUT As Long = 8 ' sem papel; vem com o anterior
Public Const Q7_STATE_BIT_SENSOR_SIGNALLED As Long = 16 ' sensor com sinal

' Q7PrinterState: O que GetPrinterState escreve.
Public Const Q7_PRINTER_READY As Long = 0 ' pronta
Public Const Q7_PRINTER_PAPER_OUT As Long = 1 ' sem papel
Public Const Q7_PRINTER_COVER_OPEN As Long = 2 ' tampa aberta
Public Const Q7_PRINTER_PAPER_NEAR_END As Long = 4 ' papel perto do fim
Public Const Q7_PRINTER_COVER_OPEN_PAPER_OUT As Long = 5 ' tampa aberta e sem papel
Public Const Q7_PRINTER_COVER_OPEN_PAPER_NEAR_END As Long = 6 ' tampa aberta e papel perto do fim

' Q7Identification: O que IdImpressora pergunta.
Public Const Q7_ID_MODEL_NUMBER As Long = 0 ' número do modelo
Public Const Q7_ID_TYPE_NUMBER As Long = 1 ' número do tipo
Public Const Q7_ID_FIRMWARE As Long = 2 ' versão do firmware
Public Const Q7_ID_MAKER As Long = 3 ' fabricante
Public Const Q7_ID_MODEL As Long = 4 ' nome do modelo
Public Const Q7_ID_SERIAL As Long = 5 ' número de série
Public Const Q7_ID_FONTS As Long = 6 ' fontes

' Q7Direction: Direções de impressão no modo página.
Public Const Q7_DIRECTION_LEFT_TO_RIGHT As Long = 0 ' da esquerda para a direita
Public Const Q7_DIRECTION_BOTTOM_TO_TOP As Long = 1 ' de baixo para cima
Public Const Q7_DIRECTION_RIGHT_TO_LEFT As Long = 2 ' da direita para a esquerda
Public Const Q7_DIRECTION_TOP_TO_BOTTOM As Long = 3 ' de cima para baixo

' Q7CfeOption: Opções do CF-e (ImprimeXMLSAT; a primeira também em ImprimeXMLCancelamentoSAT), que
' se somam.
Public Const Q7_CFE_LOGO As Long = 1 ' cabeçalho ao lado da imagem "00" gravada na impressora
Public Const Q7_CFE_NO_ITEMS As Long = 2 ' sem os itens
Public Const Q7_CFE_TEST As Long = 4 ' aviso de teste sob o título

' Q7NfceOption: Opções da NFC-e (ImprimeXMLNFCe), que se somam.
Public Const Q7_NFCE_NO_ITEMS As Long = 1 ' sem os itens
Public Const Q7_NFCE_GTIN As Long = 2 ' coluna larga de código, com o GTIN
Public Const Q7_NFCE_LOGO As Long = 8 ' cabeçalho ao lado da imagem "00" gravada na impressora
Public Const Q7_NFCE_TEST As Long = 16 ' aviso de ambiente de homologação; o leiaute 6.0 segue o tpAmb
Public Const Q7_NFCE_SEPARATORS As Long = 64 ' linhas separadoras entre as divisões
Public Const Q7_NFCE_ISSUER_IE As Long = 128 ' inscrição estadual do emitente no cabeçalho
Public Const Q7_NFCE_ITEM_NUMBERS As Long = 256 ' número de cada item
Public Const Q7_NFCE_ONE_COPY As Long = 512 ' uma nota em contingência sai numa só via

' Q7Limit: Limites.
Public Const Q7_LONGEST_REPLY As Long = 65536 ' bytes que comportam qualquer resposta de DirectIO

Private Declare Function WideCharToMultiByte Lib "kernel32" (ByVal CodePage As Long, ByVal dwFlags As Long, ByVal lpWideCharStr As Long, ByVal cchWideChar As Long, ByVal lpMultiByteStr As Long, ByVal cbMultiByte As Long, ByVal lpDefaultChar As Long, ByVal lpUsedDefaultChar As Long) As Long
Private Declare Function lstrlenA Lib "kernel32" (ByVal lpString As Long) As Long
Private Declare Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" (ByVal Destination As Long, ByVal Source As Long, ByVal Length As Long)

Private Declare Function dllAbreConexaoImpressora Lib "Q7_Impressora.dll" Alias "AbreConexaoImpressora" (ByVal tipo As Long, ByVal modelo As Long, ByVal conexao As Long, ByVal parametro As Long) As Long
Private Declare Function dllGetVersaoDLL Lib "Q7_Impressora.dll" Alias "GetVersaoDLL" () As Long
Private Declare Function dllImpressaoTexto Lib "Q7_Impressora.dll" Alias "ImpressaoTexto" (ByVal dados As Long, ByVal posicao As Long, ByVal stilo As Long, ByVal tamanho As Long) As Long
Private Declare Function dllImpressaoQRCode Lib "Q7_Impressora.dll" Alias "ImpressaoQRCode" (ByVal dados As Long, ByVal tamanho As Long, ByVal nivelCorrecao As Long) As Long
Private Declare Function dllImpressaoCodigoBarras Lib "Q7_Impressora.dll" Alias "ImpressaoCodigoBarras" (ByVal tipo As Long, ByVal dados As Long, ByVal altura As Long, ByVal largura As Long, ByVal HRI As Long) As Long
Private Declare Function dllImprimeImagemMemoria Lib "Q7_Impressora.dll" Alias "ImprimeImagemMemoria" (ByVal chave As Long, ByVal escala As Long) As Long
Private Declare Function dllIdImpressora Lib "Q7_Impressora.dll" Alias "IdImpressora" (ByVal tipo As Long) As Long
Private Declare Function dllImprimeXMLSAT Lib "Q7_Impressora.dll" Alias "ImprimeXMLSAT" (ByVal dados As Long, ByVal param As Long) As Long
Private Declare Function dllImprimeXMLCancelamentoSAT Lib "Q7_Impressora.dll" Alias "ImprimeXMLCancelamentoSAT" (ByVal dados As Long, ByVal assinaturaQRCODE As Long, ByVal param As Long) As Long
Private Declare Function dllImprimeXMLNFCe Lib "Q7_Impressora.dll" Alias "ImprimeXMLNFCe" (ByVal dados As Long, ByVal indexcsc As Long, ByVal csc As Long, ByVal param As Long) As Long
Private Declare Function dllPrinterCreator Lib "Q7_Impressora.dll" Alias "PrinterCreator" (ByVal handle As Long, ByVal model As Long) As Long
Private Declare Sub dllPrinterCreatorS Lib "Q7_Impressora.dll" Alias "PrinterCreatorS" (ByVal handle As Long, ByVal model As Long)
Private Declare Function dllPortOpen Lib "Q7_Impressora.dll" Alias "PortOpen" (ByVal handle As Long, ByVal text As Long) As Long
Private Declare Function dllPrintText Lib "Q7_Impressora.dll" Alias "PrintText" (ByVal handle As Long, ByVal text As Long, ByVal alignment As Long, ByVal style As Long, ByVal size As Long) As Long
Private Declare Function dllPrintTextS Lib "Q7_Impressora.dll" Alias "PrintTextS" (ByVal handle As Long, ByVal text As Long) As Long
Private Declare Function dllPrintBarCode Lib "Q7_Impressora.dll" Alias "PrintBarCode" (ByVal handle As Long, ByVal type_ As Long, ByVal data As Long, ByVal width As Long, ByVal height As Long, ByVal hri As Long) As Long
Private Declare Function dllPrintSymbol Lib "Q7_Impressora.dll" Alias "PrintSymbol" (ByVal handle As Long, ByVal type_ As Long, ByVal data As Long, ByVal errorLevel As Long, ByVal size As Long) As Long
Private Declare Function dllPrtPrinterCreator Lib "Q7_Impressora.dll" Alias "PrtPrinterCreator" (ByVal handle As Long, ByVal model As Long) As Long
Private Declare Function dllPrtPortOpen Lib "Q7_Impressora.dll" Alias "PrtPortOpen" (ByVal handle As Long, ByVal text As Long) As Long
Private Declare Function dllPrtPrintText Lib "Q7_Impressora.dll" Alias "PrtPrintText" (ByVal handle As Long, ByVal text As Long, ByVal alignment As Long, ByVal style As Long, ByVal size As Long) As Long
Private Declare Function dllPrtPrintBarCode Lib "Q7_Impressora.dll" Alias "PrtPrintBarCode" (ByVal handle As Long, ByVal type_ As Long, ByVal data As Long, ByVal width As Long, ByVal height As Long, ByVal hri As Long) As Long
Private Declare Function dllPrtPrintSymbol Lib "Q7_Impressora.dll" Alias "PrtPrintSymbol" (ByVal handle As Long, ByVal type_ As Long, ByVal data As Long, ByVal errorLevel As Long, ByVal size As Long) As Long

' Fecha a conexão depois que o que foi aceito foi entregue.
' Desiste depois de 5 s em que nada anda; o que falta então se perde, e o log diz isso.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: nenhum.
' Devolve 0, um código, ou, na USB, um número positivo de erro do sistema.
Public Declare Function FechaConexaoImpressora Lib "Q7_Impressora.dll" () As Long

' Guarda o espaçamento entre linhas dos textos que seguem.
' Depois dela os textos não reiniciam mais a impressora, nem em outra conexão. É a mesma função que
' SetTextLineSpace.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.
' Efeito: no próximo ImpressaoTexto; a própria função não envia nada.
' ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.
'   espacamento: espaçamento em pontos, de 1 a 255.
' Devolve 0 ou um código.
Public Declare Function EspacamentoEntreLinhas Lib "Q7_Impressora.dll" (ByVal espacamento As Long) As Long

' Define o alinhamento.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir; o próximo ImpressaoTexto o desfaz se reiniciar a impressora.
' ESC/POS: ESC a n.
'   posicao: um valor de Q7Alignment; de valores negativos vai o byte baixo.
' Devolve 0 ou um código.
Public Declare Function DefinePosicao Lib "Q7_Impressora.dll" (ByVal posicao As Long) As Long

' Reinicia a impressora, que volta às definições de quando é ligada.
' Uma linha ainda não impressa se perde.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC @.
' Devolve 0 ou um código.
Public Declare Function InicializaImpressora Lib "Q7_Impressora.dll" () As Long

' Avança o papel e corta.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: LF, GS V 0.
'   avanco: linhas a avançar antes; 0 ou menos não avança.
' Devolve 0 ou um código.
Public Declare Function Corte Lib "Q7_Impressora.dll" (ByVal avanco As Long) As Long

' Avança o papel.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: LF.
'   linhas: linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
' Devolve 0 ou um código.
Public Declare Function AvancaPapel Lib "Q7_Impressora.dll" (ByVal linhas As Long) As Long

' Abre a gaveta.
' Um tempo 0 encurta o comando, e a impressora toma o que vem depois pelos tempos que faltam: passe
' de 1 a 255.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: ESC p m t1 t2.
'   pino: saída da impressora, 0 ou 1.
'   ti: tempo ligado, em unidades de 2 ms, de 0 a 255.
'   tf: tempo desligado, em unidades de 2 ms, de 0 a 255.
' Devolve 0 ou um código.
Public Declare Function AbreGaveta Lib "Q7_Impressora.dll" (ByVal pino As Long, ByVal ti As Long, ByVal tf As Long) As Long

' Abre a gaveta pela saída 0 com os dois tempos em 200 ms.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC p 48 100 100.
' Devolve 0 ou um código.
Public Declare Function AbreGavetaTavlo Lib "Q7_Impressora.dll" () As Long

' Dá sinais sonoros.
' Só um dos dois tempos pode passar de 25.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BUZZER_COUNT, Q7_ERR_BUZZER_TIME, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: GS ( A, função 97.
'   qtd: quantidade de sinais, de 0 a 63.
'   tempoInicio: duração de cada sinal, em unidades de 100 ms.
'   tempoFim: pausa depois de cada sinal, em unidades de 100 ms.
' Devolve 0 ou um código.
Public Declare Function SinalSonoro Lib "Q7_Impressora.dll" (ByVal qtd As Long, ByVal tempoInicio As Long, ByVal tempoFim As Long) As Long

' Pergunta o estado da impressora.
' Espera no máximo 1500 ms pela resposta e outro tanto pelo fim dela, a cada pergunta; Q7_STATUS_ALL
' faz até três.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_STATUS_UNAVAILABLE, Q7_ERR_STATUS_KIND,
' Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: GS a 0, DLE EOT n.
'   param: a pergunta, um valor de Q7Status.
' Devolve para as perguntas de 1 a 4 um valor de Q7State; para Q7_STATUS_ALL a soma de valores de
' Q7StateBit; ou um código.
Public Declare Function StatusImpressora Lib "Q7_Impressora.dll" (ByVal param As Long) As Long

' Envia bytes como estão e lê uma resposta.
' Espera no máximo 1500 ms pelo começo da resposta e 500 ms pelo fim. O log não traz o nome da
' função; traz os bytes enviados.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: o que comando contém.
'   comando: os bytes; nulo não envia nada.
'   tamanho: quantidade de bytes; abaixo de 1 não envia nada.
'   resposta: memória para a resposta, que precisa ser grande o bastante, diga tamanhoResposta o que
'   disser: 1024 bytes comportam qualquer resposta por USB; por serial e TCP vem antes o que a
'   impressora enviou e ninguém leu, e Q7_LONGEST_REPLY bytes comportam tudo.
'   tamanhoResposta: na entrada, 0 se nenhuma resposta é pedida; na saída, a quantidade de bytes
'   copiados.
' Devolve 0 ou um código; Q7_ERR_FAILED quando nenhuma resposta foi pedida, também com resposta ou
' tamanhoResposta nulos, embora os bytes tenham sido enviados.
Public Declare Function DirectIO Lib "Q7_Impressora.dll" (ByRef comando As Byte, ByVal tamanho As Long, ByRef resposta As Byte, ByRef tamanhoResposta As Long) As Long

' Entra no modo página.
' Daí em diante os textos não reiniciam mais a impressora, nem depois de ModoPadrao.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC L.
' Devolve 0 ou um código.
Public Declare Function ModoPagina Lib "Q7_Impressora.dll" () As Long

' Define a direção de impressão no modo página.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: ESC T n.
'   direcao: um valor de Q7Direction.
' Devolve 0 ou um código.
Public Declare Function DirecaoImpressao Lib "Q7_Impressora.dll" (ByVal direcao As Long) As Long

' Define a área de impressão no modo página.
' De valores fora da faixa os dois bytes enviados não significam nada.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: ESC W.
'   x: canto esquerdo em pontos, de 0 a 65535.
'   y: canto superior em pontos, de 0 a 65535.
'   largura: largura em pontos, de 0 a 65535.
'   altura: altura em pontos, de 0 a 65535.
' Devolve 0 ou um código.
Public Declare Function DefineAreaImpressao Lib "Q7_Impressora.dll" (ByVal x As Long, ByVal y As Long, ByVal largura As Long, ByVal altura As Long) As Long

' Define a posição horizontal absoluta.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir.
' ESC/POS: ESC $.
'   posicao: pontos, de 0 a 500; valores negativos passam, mas os dois bytes enviados não significam
'   nada.
' Devolve 0 ou um código.
Public Declare Function PosicaoImpressaoHorizontal Lib "Q7_Impressora.dll" (ByVal posicao As Long) As Long

' Define a posição vertical absoluta no modo página.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: GS $.
'   posicao: pontos, de 0 a 65535; de valores fora da faixa os dois bytes enviados não significam
'   nada.
' Devolve 0 ou um código.
Public Declare Function PosicaoImpressaoVertical Lib "Q7_Impressora.dll" (ByVal posicao As Long) As Long

' Imprime a página e continua no modo página.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC FF.
' Devolve 0 ou um código.
Public Declare Function ImprimeModoPagina Lib "Q7_Impressora.dll" () As Long

' Apaga a página sem a imprimir.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: CAN.
' Devolve 0 ou um código.
Public Declare Function LimpaBufferModoPagina Lib "Q7_Impressora.dll" () As Long

' Imprime a página e volta ao modo padrão.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: FF.
' Devolve 0 ou um código.
Public Declare Function ImprimeMPeRetornaPadrao Lib "Q7_Impressora.dll" () As Long

' Volta ao modo padrão; uma página não impressa se perde.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC S.
' Devolve 0 ou um código.
Public Declare Function ModoPadrao Lib "Q7_Impressora.dll" () As Long

' Não libera nada: a porta continua aberta. Protegida.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: nenhum.
' ESC/POS: nenhum.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrinterDestroy Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Fecha a conexão, como FechaConexaoImpressora. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: nenhum.
'   handle: ignorado.
' Devolve 0, um código, ou, na USB, um número positivo de erro do sistema.
Public Declare Function PortClose Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Reinicia a impressora, como InicializaImpressora. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC @.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrinterInitialize Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Define o alinhamento ao centro ou à direita. Protegida.
' 0, à esquerda, é aceito mas não envia nada: a impressora fica como está. Para voltar à esquerda
' chame DefinePosicao com Q7_ALIGN_LEFT.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
' ESC/POS: ESC a n.
'   handle: ignorado.
'   alignment: Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.
' Devolve 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
Public Declare Function SetAlign Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal alignment As Long) As Long

' Liga ou desliga o negrito. Protegida, mas o log a registra antes.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
' Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
' ESC/POS: ESC E n.
'   handle: ignorado.
'   on_: 1 liga, 0 desliga.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function SetTextBold Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal on_ As Long) As Long

' Escolhe a fonte e desliga o sublinhado, que o mesmo comando define. Protegida, mas o log a
' registra antes.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
' Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
' ESC/POS: ESC ! n.
'   handle: ignorado.
'   font: um valor de Q7Font.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function SetTextFont Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal font As Long) As Long

' Guarda o espaçamento entre linhas: é a mesma função que EspacamentoEntreLinhas, e o log traz o
' nome dela. Não tem identificador.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIZE.
' Efeito: no próximo ImpressaoTexto; a própria função não envia nada.
' ESC/POS: ESC 3 n, com o próximo ImpressaoTexto.
'   spacing: espaçamento em pontos, de 1 a 255.
' Devolve 0 ou um código.
Public Declare Function SetTextLineSpace Lib "Q7_Impressora.dll" (ByVal spacing As Long) As Long

' Falha sempre e nunca imprime: para uma imagem gravada na impressora chame ImprimeImagemMemoria.
' Programas desta interface podem chamá-la; ela é ImprimeImagemMemoria com a escala 0, que não
' existe.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE.
' Efeito: nenhum.
' ESC/POS: nenhum.
'   handle: ignorado.
'   k1: primeiro caractere da chave, do qual conta o byte baixo.
'   k2: segundo caractere da chave, do qual conta o byte baixo.
' Devolve sempre um código.
Public Declare Function PrintNVImage Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal k1 As Long, ByVal k2 As Long) As Long

' Não faz nada: as imagens são gravadas com a ferramenta do fabricante da impressora.
' Efeito: nenhum.
' ESC/POS: nenhum.
'   a: ignorado.
'   b: ignorado.
'   c: ignorado.
'   d: ignorado.
' Devolve 0.
Public Declare Function DefineNVImage Lib "Q7_Impressora.dll" (ByVal a As Long, ByVal b As Long, ByVal c As Long, ByVal d As Long) As Long

' Avança o papel, como AvancaPapel. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: LF.
'   handle: ignorado.
'   lines: linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
' Devolve 0 ou um código.
Public Declare Function FeedLine Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal lines As Long) As Long

' Avança o papel e corta, como Corte. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: LF, GS V 0.
'   handle: ignorado.
'   lines: linhas a avançar antes; 0 ou menos não avança.
' Devolve 0 ou um código.
Public Declare Function CutPaper Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal lines As Long) As Long

' Abre a gaveta, como AbreGaveta. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: ESC p m t1 t2.
'   handle: ignorado.
'   pin: saída da impressora, 0 ou 1.
'   onTime: tempo ligado, em unidades de 2 ms, de 0 a 255.
'   offTime: tempo desligado, em unidades de 2 ms, de 0 a 255.
' Devolve 0 ou um código.
Public Declare Function OpenDrawer Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal pin As Long, ByVal onTime As Long, ByVal offTime As Long) As Long

' Abre a gaveta; é OpenDrawer com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: ESC p m t1 t2.
'   handle: ignorado.
'   pin: saída da impressora, 0 ou 1.
'   onTime: tempo ligado, em unidades de 2 ms, de 0 a 255.
'   offTime: tempo desligado, em unidades de 2 ms, de 0 a 255.
' Devolve 0 ou um código.
Public Declare Function OpenCashDrawer Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal pin As Long, ByVal onTime As Long, ByVal offTime As Long) As Long

' Pergunta o estado da impressora, com StatusImpressora e Q7_STATUS_ALL. Protegida.
' Qualquer outra resposta, ou nenhuma, devolve Q7_ERR_STATUS_UNAVAILABLE e deixa state como estava:
' por USB e serial também sempre que o sinal da gaveta está em nível baixo.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.
' Efeito: na hora.
' ESC/POS: GS a 0, DLE EOT n.
'   handle: ignorado.
'   state: recebe um valor de Q7PrinterState; pode ser nulo.
' Devolve 0 ou um código.
Public Declare Function GetPrinterState Lib "Q7_Impressora.dll" (ByVal handle As Long, ByRef state As Long) As Long

' Pergunta o sinal da gaveta, com StatusImpressora e Q7_STATUS_DRAWER. Protegida.
' state fica como estava quando a impressora não disse nada e por TCP, em que a gaveta não pode ser
' perguntada.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: GS a 0, DLE EOT 1.
'   handle: ignorado.
'   state: recebe 1 ou 0; pode ser nulo.
'   polarity: diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
' Devolve 0, também quando state fica como estava, ou um código.
Public Declare Function GetDrawerState Lib "Q7_Impressora.dll" (ByVal handle As Long, ByRef state As Long, ByVal polarity As Long) As Long

' Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: GS a 0, DLE EOT 1.
'   handle: ignorado.
'   state: recebe 1 ou 0; pode ser nulo.
'   polarity: diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
' Devolve 0, também quando state fica como estava, ou um código.
Public Declare Function GetCashDrawerState Lib "Q7_Impressora.dll" (ByVal handle As Long, ByRef state As Long, ByVal polarity As Long) As Long

' Entra no modo página, como ModoPagina. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC L.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function SelectPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Volta ao modo padrão; é PrtSelectStandardMode com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: ESC S.
'   handle: ignorado.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function SelectStandardMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Define a direção de impressão no modo página, como DirecaoImpressao. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: ESC T n.
'   handle: ignorado.
'   direction: um valor de Q7Direction.
' Devolve 0 ou um código.
Public Declare Function SelectPrintDirectionInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal direction As Long) As Long

' Define a área de impressão no modo página, como DefineAreaImpressao. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: ESC W.
'   handle: ignorado.
'   x: canto esquerdo em pontos, de 0 a 65535.
'   y: canto superior em pontos, de 0 a 65535.
'   width: largura em pontos, de 0 a 65535.
'   height: altura em pontos, de 0 a 65535.
' Devolve 0 ou um código.
Public Declare Function SetPrintAreaInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal x As Long, ByVal y As Long, ByVal width As Long, ByVal height As Long) As Long

' Define a posição horizontal absoluta, como PosicaoImpressaoHorizontal. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_POSITION, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir.
' ESC/POS: ESC $.
'   handle: ignorado.
'   position: pontos, de 0 a 500.
' Devolve 0 ou um código.
Public Declare Function SetAbSolutePrintPosition Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal position As Long) As Long

' Define a posição vertical absoluta no modo página, como PosicaoImpressaoVertical. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: GS $.
'   handle: ignorado.
'   position: pontos, de 0 a 65535.
' Devolve 0 ou um código.
Public Declare Function SetAbsoluteVerticalPrintPositionInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal position As Long) As Long

' Imprime a página e continua no modo página, como ImprimeModoPagina. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC FF.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrintDataInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Apaga a página sem a imprimir, como LimpaBufferModoPagina. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: CAN.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function CancelPrintDataInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Imprime a página e volta ao modo padrão, como ImprimeMPeRetornaPadrao. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: FF.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function SetPrintAndReturnStandardMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Não libera nada: a porta continua aberta, como em PrinterDestroy. Protegida.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: nenhum.
' ESC/POS: nenhum.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrtPrinterDestroy Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Fecha a conexão, como FechaConexaoImpressora; não é protegida: o log a registra também quando nada
' está aberto.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: nenhum.
'   handle: ignorado.
' Devolve 0, um código, ou, na USB, um número positivo de erro do sistema.
Public Declare Function PrtPortClose Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Reinicia a impressora, como InicializaImpressora. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC @.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrtPrinterInitialize Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Define o alinhamento ao centro ou à direita; é SetAlign com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir; o próximo PrintText o desfaz se reiniciar a impressora.
' ESC/POS: ESC a n.
'   handle: ignorado.
'   alignment: Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT; com Q7_ALIGN_LEFT nada é enviado.
' Devolve 1 ou um código; com 0 sempre Q7_ERR_NOT_SENT.
Public Declare Function PrtSetTextPosition Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal alignment As Long) As Long

' Liga ou desliga o negrito; é SetTextBold com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
' Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
' ESC/POS: ESC E n.
'   handle: ignorado.
'   on_: 1 liga, 0 desliga.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function PrtSetTextBold Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal on_ As Long) As Long

' Escolhe a fonte; é SetTextFont com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STYLE.
' Efeito: no que vier a seguir, até um texto reiniciar a impressora (veja ImpressaoTexto).
' ESC/POS: ESC ! n.
'   handle: ignorado.
'   font: um valor de Q7Font.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function PrtSetTextFont Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal font As Long) As Long

' Avança o papel; é FeedLine com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: LF.
'   handle: ignorado.
'   lines: linhas a avançar, a partir de 1; 0 ou menos devolve Q7_ERR_FAILED.
' Devolve 0 ou um código.
Public Declare Function PrtFeedLine Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal lines As Long) As Long

' Avança o papel e corta, como Corte. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: LF, GS V 0.
'   handle: ignorado.
'   lines: linhas a avançar antes; 0 ou menos não avança.
' Devolve 0 ou um código.
Public Declare Function PrtCutPaper Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal lines As Long) As Long

' Abre a gaveta; é OpenDrawer com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DRAWER_PIN, Q7_ERR_DRAWER_TIME, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: ESC p m t1 t2.
'   handle: ignorado.
'   pin: saída da impressora, 0 ou 1.
'   onTime: tempo ligado, em unidades de 2 ms, de 0 a 255.
'   offTime: tempo desligado, em unidades de 2 ms, de 0 a 255.
' Devolve 0 ou um código.
Public Declare Function PrtOpenDrawer Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal pin As Long, ByVal onTime As Long, ByVal offTime As Long) As Long

' Pergunta o estado da impressora; é GetPrinterState com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_STATUS_UNAVAILABLE.
' Efeito: na hora.
' ESC/POS: GS a 0, DLE EOT n.
'   handle: ignorado.
'   state: recebe um valor de Q7PrinterState; pode ser nulo.
' Devolve 0 ou um código.
Public Declare Function PrtCheckPrinterState Lib "Q7_Impressora.dll" (ByVal handle As Long, ByRef state As Long) As Long

' Pergunta o sinal da gaveta; é GetDrawerState com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: GS a 0, DLE EOT 1.
'   handle: ignorado.
'   state: recebe 1 ou 0; pode ser nulo.
'   polarity: diferente de 0: 1 é o sinal em nível baixo; 0: 1 é o sinal em nível alto.
' Devolve 0, também quando state fica como estava, ou um código.
Public Declare Function PrtGetDrawerState Lib "Q7_Impressora.dll" (ByVal handle As Long, ByRef state As Long, ByVal polarity As Long) As Long

' Entra no modo página; é SelectPageMode com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC L.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrtSelectPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Volta ao modo padrão; uma página não impressa se perde. Protegida; o log não traz o nome dela.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: ESC S.
'   handle: ignorado.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function PrtSelectStandardMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Define a direção de impressão no modo página; é SelectPrintDirectionInPageMode com outro nome.
' Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_DIRECTION, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: ESC T n.
'   handle: ignorado.
'   direction: um valor de Q7Direction.
' Devolve 0 ou um código.
Public Declare Function PrtSelectPrintDirectionInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal direction As Long) As Long

' Define a área de impressão no modo página; é SetPrintAreaInPageMode com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: ESC W.
'   handle: ignorado.
'   x: canto esquerdo em pontos, de 0 a 65535.
'   y: canto superior em pontos, de 0 a 65535.
'   width: largura em pontos, de 0 a 65535.
'   height: altura em pontos, de 0 a 65535.
' Devolve 0 ou um código.
Public Declare Function PrtSetPrintAreaInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal x As Long, ByVal y As Long, ByVal width As Long, ByVal height As Long) As Long

' Define a posição vertical absoluta; é SetAbsoluteVerticalPrintPositionInPageMode com outro nome.
' Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: no que vier a seguir na página.
' ESC/POS: GS $.
'   handle: ignorado.
'   position: pontos, de 0 a 65535.
' Devolve 0 ou um código.
Public Declare Function PrtSetAbsoluteVerticalPrintPositionInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long, ByVal position As Long) As Long

' Imprime a página e continua no modo página; é PrintDataInPageMode com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: ESC FF.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrtPrintDataInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Envia um ESC sozinho, que não apaga a página: para isso chame CancelPrintDataInPageMode.
' Protegida.
' A impressora toma o byte seguinte pelo resto de um comando.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: ESC.
'   handle: ignorado.
' Devolve 0, também quando nada foi enviado, ou um código.
Public Declare Function PrtCancelPrintDataInPageMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Imprime a página e volta ao modo padrão; é SetPrintAndReturnStandardMode com outro nome.
' Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: FF.
'   handle: ignorado.
' Devolve 0 ou um código.
Public Declare Function PrtSetPrintAndReturnStandardMode Lib "Q7_Impressora.dll" (ByVal handle As Long) As Long

' Diz o que um código de retorno significa e o que fazer.
Public Function Mensagem(ByVal codigo As Long) As String
    Select Case codigo
    Case Q7_OK
        Mensagem = "Sucesso. O que fazer: nada; depois de abrir por TCP chame StatusImpressora, que devolve -4 se a conexão foi recusada."
    Case Q7_ERR_KIND
        Mensagem = "Tipo de conexão desconhecido. O que fazer: passe uma das constantes de Q7Connection, ou um texto como ""COM3,9600"", ""NET,192.168.0.10,9100"" ou ""USB""."
    Case Q7_ERR_MODEL
        Mensagem = "Modelo desconhecido, ou a impressora é de outro modelo conhecido. O que fazer: confira o nome na lista de AbreConexaoImpressora e o que a impressora diz no autoteste."
    Case Q7_ERR_NOT_OPEN
        Mensagem = "Nenhuma conexão aberta. O que fazer: confira se a impressora está ligada e na rede e abra de novo."
    Case Q7_ERR_UNKNOWN_PRINTER
        Mensagem = "A impressora não informou um modelo conhecido. O que fazer: confira cabo, energia, velocidade e endereço e abra de novo."
    Case Q7_ERR_ALREADY_OPEN
        Mensagem = "Conexão já aberta. O que fazer: nada; feche a conexão antes de abrir outra."
    Case Q7_ERR_SPEED
        Mensagem = "Velocidade serial não permitida. O que fazer: passe 300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200, a mesma que está configurada na impressora."
    Case Q7_ERR_SERIAL_NOT_FOUND
        Mensagem = "Porta serial não encontrada. O que fazer: veja o nome da porta no Gerenciador de Dispositivos (no Linux, em /dev)."
    Case Q7_ERR_SERIAL_DENIED
        Mensagem = "Porta serial em uso ou sem permissão. O que fazer: feche o outro programa; no Linux, ponha o usuário no grupo dialout e entre de novo."
    Case Q7_ERR_SERIAL_UNKNOWN
        Mensagem = "Porta serial falhou por motivo desconhecido. O que fazer: retire e recoloque o adaptador; atualize o driver."
    Case Q7_ERR_USB_ABSENT
        Mensagem = "Impressora USB não encontrada. O que fazer: copie os identificadores do Gerenciador de Dispositivos (VID e PID) para ""q7_usb.ini"" e reinicie o programa."
    Case Q7_ERR_USB_OPEN
        Mensagem = "A impressora USB não pôde ser aberta. O que fazer: feche o outro programa; o número de erro do sistema está no log, na linha ""ERRO DE ABERTURA DE PORTA:""."
    Case Q7_ERR_TCP_PORT
        Mensagem = "Porta TCP fora da faixa. O que fazer: passe a porta da impressora, em geral 9100."
    Case Q7_ERR_ALIGNMENT
        Mensagem = "Alinhamento fora de 0 a 2. O que fazer: passe Q7_ALIGN_LEFT, Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT."
    Case Q7_ERR_STYLE
        Mensagem = "Estilo, negrito ou fonte fora da faixa. O que fazer: some constantes de Q7Style, cada uma uma só vez."
    Case Q7_ERR_SIZE
        Mensagem = "Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. O que fazer: passe um valor de Q7Size; o espaçamento é em pontos."
    Case Q7_ERR_NOT_SENT
        Mensagem = "Nada foi enviado. O que fazer: confira o texto e o papel da impressora; imprima textos longos em partes."
    Case Q7_ERR_QR_SIZE
        Mensagem = "Tamanho do módulo do QR Code fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 4 serve para quase tudo."
    Case Q7_ERR_QR_LEVEL
        Mensagem = "Nível de correção do QR Code fora de 1 a 4. O que fazer: passe um valor de Q7QrLevel."
    Case Q7_ERR_QR_EMPTY
        Mensagem = "Conteúdo do QR Code vazio. O que fazer: confira de onde vem o conteúdo."
    Case Q7_ERR_BARCODE_HEIGHT
        Mensagem = "Altura do código de barras fora de 1 a 255. O que fazer: passe a altura em pontos; 80 pontos são 10 mm a 8 pontos por milímetro."
    Case Q7_ERR_BARCODE_WIDTH
        Mensagem = "Largura do módulo do código de barras fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 2 serve para quase tudo."
    Case Q7_ERR_BARCODE_HRI
        Mensagem = "Posição do texto do código de barras fora de 1 a 4. O que fazer: passe um valor de Q7Hri."
    Case Q7_ERR_BARCODE_TYPE
        Mensagem = "Tipo de código de barras fora de 0 a 8. O que fazer: passe uma das constantes; só PrintBarCode e PrtPrintBarCode aceitam também 65 a 73."
    Case Q7_ERR_BARCODE_DATA
        Mensagem = "Dados inválidos para o tipo de código de barras. O que fazer: veja em ImpressaoCodigoBarras o que cada tipo aceita."
    Case Q7_ERR_XSD
        Mensagem = "Documento ou esquema inválido. O que fazer: nada."
    Case Q7_ERR_XSD_MISSING
        Mensagem = "Arquivo de esquema ausente. O que fazer: nada."
    Case Q7_ERR_NO_REPLY
        Mensagem = "A impressora não respondeu. O que fazer: confira a impressora e o cabo e pergunte de novo."
    Case Q7_ERR_SIGNATURE
        Mensagem = "A assinatura não tem 344 caracteres. O que fazer: passe o elemento assinaturaQRCODE da venda cancelada, inteiro."
    Case Q7_ERR_NFCE_VERSION
        Mensagem = "Versão do leiaute da NFC-e diferente de 4.00. O que fazer: passe uma NFC-e da versão 4.00."
    Case Q7_ERR_NFCE_NO_VERSION
        Mensagem = "Não é uma NFC-e, ou é uma sem o atributo versao. O que fazer: passe o texto do XML autorizado, com a raiz nfeProc ou NFe."
    Case Q7_ERR_NFCE_EMISSION
        Mensagem = "Tipo de emissão (tpEmis) ausente ou 0. O que fazer: passe o XML inteiro, com o grupo infNFeSupl."
    Case Q7_ERR_NFCE_OPTIONS
        Mensagem = "Opções da NFC-e acima de 65535. O que fazer: some constantes de Q7NfceOption."
    Case Q7_ERR_NFCE_MODEL
        Mensagem = "NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. O que fazer: passe uma NFC-e (modelo 65) ou uma NF-e com tpImp 6."
    Case Q7_ERR_NFCE_QR
        Mensagem = "Nota sem QR Code. Só com o leiaute 6.0. O que fazer: passe o XML com o grupo infNFeSupl inteiro; em contingência sem ele, também o CSC."
    Case Q7_ERR_BUZZER_COUNT
        Mensagem = "Quantidade de sinais sonoros acima de 63. O que fazer: passe de 0 a 63."
    Case Q7_ERR_BUZZER_TIME
        Mensagem = "Os dois tempos do sinal sonoro acima de 25. O que fazer: passe os tempos em unidades de 100 ms."
    Case Q7_ERR_DRAWER_PIN
        Mensagem = "Pino da gaveta acima de 1. O que fazer: passe 0 ou 1."
    Case Q7_ERR_DRAWER_TIME
        Mensagem = "Um tempo da gaveta acima de 255. O que fazer: passe o tempo em unidades de 2 ms."
    Case Q7_ERR_STATUS_UNAVAILABLE
        Mensagem = "Estado não disponível nesta conexão. O que fazer: pergunte por outra conexão ou por outro estado."
    Case Q7_ERR_STATUS_KIND
        Mensagem = "Pergunta de estado fora de 1 a 5. O que fazer: passe uma das constantes."
    Case Q7_ERR_IMAGE_KEY
        Mensagem = "A chave da imagem não são dois caracteres visíveis. O que fazer: passe a chave com que a imagem foi gravada, por exemplo ""00""."
    Case Q7_ERR_IMAGE_SCALE
        Mensagem = "Escala da imagem fora de 1 a 2. O que fazer: passe um valor de Q7ImageScale a ImprimeImagemMemoria."
    Case Q7_ERR_DIRECTION
        Mensagem = "Direção de impressão fora de 0 a 3. O que fazer: passe um valor de Q7Direction."
    Case Q7_ERR_POSITION
        Mensagem = "Posição horizontal acima de 500. O que fazer: passe de 0 a 500 pontos."
    Case Q7_ERR_ID_KIND
        Mensagem = "Pergunta de identificação fora de 0 a 6. O que fazer: passe uma das constantes; IdImpressora devolve este código como o texto ""-402""."
    Case Q7_ERR_FAILED
        Mensagem = "Sem resultado: nada foi enviado, ou outra falha. O que fazer: confira os argumentos; se persistir, ligue o log."
    Case Is > 0
        Mensagem = "Erro do sistema ou da rede, de número " & codigo & "."
    Case Else
        Mensagem = "Código desconhecido: " & codigo & "."
    End Select
End Function

' Abre a conexão com a impressora.
' Modelos e suas colunas por linha, na fonte normal e na pequena: VANTA, VESPA, VOLTA, PINTA, SALVI
' e DUNEL 48 e 64; ORLA-K e SORBE 42 e 56; RANZA, RANZAPRO e TESMO não têm largura definida.
' Impressoras seriais e TCP são perguntadas pelo nome do modelo (GS I 67; TESMO: ~HI) e têm 750 ms
' para responder; a conexão TCP é esperada por até 2000 ms. Uma conexão TCP recusada devolve Q7_OK,
' veja as convenções.
' Uma conexão que já está aberta é abandonada, não fechada: chame FechaConexaoImpressora antes.
' Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED, Q7_ERR_SERIAL_NOT_FOUND,
' Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT, Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT,
' Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: GS I 67, por serial e TCP.
'   tipo: tipo de conexão, um valor de Q7Connection.
'   modelo: nome do modelo, em maiúsculas ou minúsculas. Enquanto o último resultado é 0 (depois da
'   carga, de abrir ou de fechar) qualquer outro nome também passa e deixa o modelo como estava.
'   conexao: porta serial ("COM3"; no Linux "ttyUSB0" ou um caminho), nome ou endereço TCP; ignorado
'   na USB.
'   parametro: bits por segundo (300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200) ou
'   porta TCP, de 0 a 65535 (9100 é usual); ignorado na USB.
' Devolve 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
Public Function AbreConexaoImpressora(ByVal tipo As Long, ByVal modelo As String, ByVal conexao As String, ByVal parametro As Long) As Long
    Dim utf8_modelo() As Byte
    Dim utf8_conexao() As Byte
    utf8_modelo = Utf8(modelo)
    utf8_conexao = Utf8(conexao)
    AbreConexaoImpressora = dllAbreConexaoImpressora(tipo, VarPtr(utf8_modelo(0)), VarPtr(utf8_conexao(0)), parametro)
End Function

' Diz a versão da biblioteca.
' Efeito: nenhum; não precisa de conexão.
' ESC/POS: nenhum.
' Devolve o texto "01.01.00", em memória nova que fica com quem chamou.
Public Function GetVersaoDLL() As String
    GetVersaoDLL = Texto(dllGetVersaoDLL())
End Function

' Imprime um texto.
' Se nenhum espaçamento foi guardado (EspacamentoEntreLinhas) e ModoPagina não foi chamada, a
' impressora é reiniciada antes: alinhamento, estilo e tamanho começam de novo, e uma linha ainda
' sem "\n" se perde.
' Por TCP e serial a contagem tem 16 bits e dá a volta em textos de 32768 bytes ou mais: 40000 bytes
' devolvem Q7_ERR_NOT_SENT embora saiam. Imprima textos assim em partes.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
' Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
' ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
'   dados: o texto, em UTF-8; os fins de linha ("\n") são de quem chama, nenhum é acrescentado.
'   posicao: alinhamento, um valor de Q7Alignment; 0 deixa como está.
'   stilo: soma de valores de Q7Style, de 0 a 15. Um estilo vale até a impressora ser reiniciada.
'   tamanho: tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
' Devolve a quantidade de bytes do texto enviados, ou um código.
Public Function ImpressaoTexto(ByVal dados As String, ByVal posicao As Long, ByVal stilo As Long, ByVal tamanho As Long) As Long
    Dim utf8_dados() As Byte
    utf8_dados = Utf8(dados)
    ImpressaoTexto = dllImpressaoTexto(VarPtr(utf8_dados(0)), posicao, stilo, tamanho)
End Function

' Imprime um QR Code.
' A SORBE aceita também níveis acima de 4.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
' Q7_ERR_FAILED.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
'   dados: o conteúdo. ASCII é seguro; em outros textos o comprimento anunciado à impressora conta
'   caracteres, não bytes.
'   tamanho: tamanho do módulo em pontos, de 1 a 6.
'   nivelCorrecao: nível de correção, um valor de Q7QrLevel.
' Devolve 0 ou um código.
Public Function ImpressaoQRCode(ByVal dados As String, ByVal tamanho As Long, ByVal nivelCorrecao As Long) As Long
    Dim utf8_dados() As Byte
    utf8_dados = Utf8(dados)
    ImpressaoQRCode = dllImpressaoQRCode(VarPtr(utf8_dados(0)), tamanho, nivelCorrecao)
End Function

' Imprime um código de barras.
' O que cada tipo aceita: UPC-A 11 ou 12 dígitos; UPC-E 11 ou 12, o primeiro "0"; EAN-13 12 ou 13;
' EAN-8 7 ou 8; CODE39 de 1 a 255 dígitos, letras maiúsculas e " $%*+-./"; ITF dígitos em quantidade
' par; CODABAR dígitos e "$+-./:" entre um início e um fim, cada um de A a D ou a a d; CODE93 de 1 a
' 255 caracteres ASCII; CODE128 texto ASCII atrás de um seletor de subconjunto "{A", "{B" ou "{C", e
' "{C" seguido de pares de dígitos. A SORBE não precisa do seletor e o descarta.
' A DUNEL não imprime o texto do código; a SORBE mantém a definição própria.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
' Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS h, GS w, GS H, GS k m n (função B).
'   tipo: um valor de Q7Barcode.
'   dados: o conteúdo, como acima.
'   altura: altura em pontos, de 1 a 255.
'   largura: largura do módulo em pontos, de 1 a 6.
'   HRI: posição do texto do código, um valor de Q7Hri.
' Devolve 0 ou um código.
Public Function ImpressaoCodigoBarras(ByVal tipo As Long, ByVal dados As String, ByVal altura As Long, ByVal largura As Long, ByVal HRI As Long) As Long
    Dim utf8_dados() As Byte
    utf8_dados = Utf8(dados)
    ImpressaoCodigoBarras = dllImpressaoCodigoBarras(tipo, VarPtr(utf8_dados(0)), altura, largura, HRI)
End Function

' Imprime uma imagem que a ferramenta do fabricante gravou na memória da impressora.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_IMAGE_KEY, Q7_ERR_IMAGE_SCALE, Q7_ERR_NOT_SENT.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS ( L, função 69.
'   chave: os dois caracteres da chave da imagem, cada um de 0x20 a 0x7E.
'   escala: um valor de Q7ImageScale.
' Devolve 0 ou um código.
Public Function ImprimeImagemMemoria(ByVal chave As String, ByVal escala As Long) As Long
    Dim utf8_chave() As Byte
    utf8_chave = Utf8(chave)
    ImprimeImagemMemoria = dllImprimeImagemMemoria(VarPtr(utf8_chave(0)), escala)
End Function

' Pergunta à impressora quem ela é.
' Com 0 e 1 vai um algarismo atrás do comando, que as impressoras tomam por texto: ele aparece na
' frente da próxima linha impressa.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NO_REPLY, Q7_ERR_ID_KIND.
' Efeito: na hora.
' ESC/POS: GS I n.
'   tipo: a pergunta, um valor de Q7Identification.
' Devolve a resposta, em Latin-1, até o primeiro byte que não era UTF-8, ou um código em decimal
' ("-4", "-81", "-402"), em memória nova que fica com quem chamou.
Public Function IdImpressora(ByVal tipo As Long) As String
    IdImpressora = Texto(dllIdImpressora(tipo))
End Function

' Imprime o extrato de uma venda CF-e do SAT; não corta.
' De um documento que não pode ser lido saem só os rótulos, e o resultado é 0.
' Códigos: Q7_ERR_NOT_OPEN.
' Efeito: na hora.
' ESC/POS: os das funções de texto, código de barras e QR Code.
'   dados: o texto do XML autorizado (raiz CFe), não o nome de um arquivo.
'   param: soma de valores de Q7CfeOption.
' Devolve 0 ou um código.
Public Function ImprimeXMLSAT(ByVal dados As String, ByVal param As Long) As Long
    Dim utf8_dados() As Byte
    utf8_dados = Utf8(dados)
    ImprimeXMLSAT = dllImprimeXMLSAT(VarPtr(utf8_dados(0)), param)
End Function

' Imprime o extrato do cancelamento de um CF-e do SAT; não corta.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_SIGNATURE, Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: os das funções de texto, código de barras e QR Code.
'   dados: o texto do XML do cancelamento (raiz CFeCanc), não o nome de um arquivo.
'   assinaturaQRCODE: a assinatura da venda cancelada (o elemento desse nome no XML dela), de 344
'   caracteres.
'   param: 0 ou Q7_CFE_LOGO.
' Devolve 0 ou um código; Q7_ERR_FAILED quando o documento não é um cancelamento.
Public Function ImprimeXMLCancelamentoSAT(ByVal dados As String, ByVal assinaturaQRCODE As String, ByVal param As Long) As Long
    Dim utf8_dados() As Byte
    Dim utf8_assinaturaQRCODE() As Byte
    utf8_dados = Utf8(dados)
    utf8_assinaturaQRCODE = Utf8(assinaturaQRCODE)
    ImprimeXMLCancelamentoSAT = dllImprimeXMLCancelamentoSAT(VarPtr(utf8_dados(0)), VarPtr(utf8_assinaturaQRCODE(0)), param)
End Function

' Imprime o DANFE de uma NFC-e; não corta no fim.
' Uma nota em contingência sai em duas vias, com um corte entre elas.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NFCE_OPTIONS, Q7_ERR_NFCE_NO_VERSION, Q7_ERR_NFCE_VERSION,
' Q7_ERR_NFCE_EMISSION, Q7_ERR_NFCE_MODEL, Q7_ERR_NFCE_QR.
' Efeito: na hora.
' ESC/POS: os das funções de texto, de QR Code e do modo página.
'   dados: o texto do XML (raiz nfeProc ou NFe), versão 4.00, com a urlChave; não o nome de um
'   arquivo.
'   indexcsc: o identificador do CSC do contribuinte, usado se a nota não tem qrCode.
'   csc: o CSC do contribuinte, usado se a nota não tem qrCode.
'   param: soma de valores de Q7NfceOption, no máximo 65535.
' Devolve 0 ou um código.
Public Function ImprimeXMLNFCe(ByVal dados As String, ByVal indexcsc As Long, ByVal csc As String, ByVal param As Long) As Long
    Dim utf8_dados() As Byte
    Dim utf8_csc() As Byte
    utf8_dados = Utf8(dados)
    utf8_csc = Utf8(csc)
    ImprimeXMLNFCe = dllImprimeXMLNFCe(VarPtr(utf8_dados(0)), indexcsc, VarPtr(utf8_csc(0)), param)
End Function

' Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem.
' Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
' ESC/POS: nenhum.
'   handle: ignorado.
'   model: nome do modelo, como em AbreConexaoImpressora.
' Devolve 0.
Public Function PrinterCreator(ByVal handle As Long, ByVal model As String) As Long
    Dim utf8_model() As Byte
    utf8_model = Utf8(model)
    PrinterCreator = dllPrinterCreator(handle, VarPtr(utf8_model(0)))
End Function

' Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem, como PrinterCreator, sem resultado.
' Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
' ESC/POS: nenhum.
'   handle: ignorado.
'   model: nome do modelo, como em AbreConexaoImpressora.
Public Sub PrinterCreatorS(ByVal handle As Long, ByVal model As String)
    Dim utf8_model() As Byte
    utf8_model = Utf8(model)
    dllPrinterCreatorS handle, VarPtr(utf8_model(0))
End Sub

' Abre a conexão com o modelo de PrinterCreator, como AbreConexaoImpressora.
' O texto é feito de campos separados por "," ou "_", que por isso não podem aparecer em nomes nem
' em caminhos. O primeiro campo contém, em maiúsculas ou minúsculas, uma das palavras
' - "COM": ele mesmo é a porta serial e o segundo são os bits por segundo: "COM3,9600";
' - "NET": o segundo é o nome ou endereço e o terceiro a porta TCP, 9100 se falta ou está vazio:
' "NET,192.168.0.10,9100";
' - "USB": não precisa de outros campos.
' Qualquer outro texto ("COM3" ou "NET" sozinhos também) devolve Q7_ERR_KIND, e a velocidade que
' falta, Q7_ERR_SPEED.
' Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED, Q7_ERR_SERIAL_NOT_FOUND,
' Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT, Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT,
' Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: GS I 67, por serial e TCP.
'   handle: ignorado.
'   text: a porta, como acima.
' Devolve 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
Public Function PortOpen(ByVal handle As Long, ByVal text As String) As Long
    Dim utf8_text() As Byte
    utf8_text = Utf8(text)
    PortOpen = dllPortOpen(handle, VarPtr(utf8_text(0)))
End Function

' Imprime um texto, como ImpressaoTexto. Protegida; o log traz os dois nomes.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
' Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
' ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
'   handle: ignorado.
'   text: o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
'   alignment: alinhamento, um valor de Q7Alignment; 0 deixa como está.
'   style: soma de valores de Q7Style, de 0 a 15.
'   size: tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
' Devolve a quantidade de bytes do texto enviados, ou um código.
Public Function PrintText(ByVal handle As Long, ByVal text As String, ByVal alignment As Long, ByVal style As Long, ByVal size As Long) As Long
    Dim utf8_text() As Byte
    utf8_text = Utf8(text)
    PrintText = dllPrintText(handle, VarPtr(utf8_text(0)), alignment, style, size)
End Function

' Envia os bytes de um texto como estão: sem conversão para Latin-1, sem escolher a tabela de
' caracteres.
' Protegida, mas o log a registra antes.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_NOT_SENT.
' Efeito: na hora.
' ESC/POS: nenhum além do texto.
'   handle: ignorado.
'   text: o texto, que vai até o primeiro byte zero.
' Devolve a quantidade de bytes enviados, ou um código; um texto vazio devolve Q7_ERR_NOT_SENT.
Public Function PrintTextS(ByVal handle As Long, ByVal text As String) As Long
    Dim utf8_text() As Byte
    utf8_text = Utf8(text)
    PrintTextS = dllPrintTextS(handle, VarPtr(utf8_text(0)))
End Function

' Imprime um código de barras, como ImpressaoCodigoBarras. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
' Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS h, GS w, GS H, GS k m n (função B).
'   handle: ignorado.
'   type_: um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
'   data: o conteúdo, como em ImpressaoCodigoBarras.
'   width: largura do módulo em pontos, de 1 a 6.
'   height: altura em pontos, de 1 a 255.
'   hri: posição do texto do código, um valor de Q7Hri.
' Devolve 0 ou um código.
Public Function PrintBarCode(ByVal handle As Long, ByVal type_ As Long, ByVal data As String, ByVal width As Long, ByVal height As Long, ByVal hri As Long) As Long
    Dim utf8_data() As Byte
    utf8_data = Utf8(data)
    PrintBarCode = dllPrintBarCode(handle, type_, VarPtr(utf8_data(0)), width, height, hri)
End Function

' Imprime um QR Code, como ImpressaoQRCode.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
' Q7_ERR_FAILED.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
'   handle: ignorado.
'   type_: ignorado.
'   data: o conteúdo, como em ImpressaoQRCode.
'   errorLevel: nível de correção, um valor de Q7QrLevel.
'   size: tamanho do módulo em pontos, de 1 a 6.
' Devolve 0 ou um código.
Public Function PrintSymbol(ByVal handle As Long, ByVal type_ As Long, ByVal data As String, ByVal errorLevel As Long, ByVal size As Long) As Long
    Dim utf8_data() As Byte
    utf8_data = Utf8(data)
    PrintSymbol = dllPrintSymbol(handle, type_, VarPtr(utf8_data(0)), errorLevel, size)
End Function

' Guarda o nome do modelo com que PortOpen e PrtPortOpen abrem: é PrinterCreator, e o nome guardado
' é o mesmo.
' Efeito: no próximo PortOpen ou PrtPortOpen; a própria função não envia nada.
' ESC/POS: nenhum.
'   handle: ignorado.
'   model: nome do modelo, como em AbreConexaoImpressora.
' Devolve 0.
Public Function PrtPrinterCreator(ByVal handle As Long, ByVal model As String) As Long
    Dim utf8_model() As Byte
    utf8_model = Utf8(model)
    PrtPrinterCreator = dllPrtPrinterCreator(handle, VarPtr(utf8_model(0)))
End Function

' Abre a conexão com o modelo de PrinterCreator; é PortOpen com outro nome.
' Códigos: Q7_ERR_KIND, Q7_ERR_MODEL, Q7_ERR_UNKNOWN_PRINTER, Q7_ERR_SPEED, Q7_ERR_SERIAL_NOT_FOUND,
' Q7_ERR_SERIAL_DENIED, Q7_ERR_SERIAL_UNKNOWN, Q7_ERR_USB_ABSENT, Q7_ERR_USB_OPEN, Q7_ERR_TCP_PORT,
' Q7_ERR_FAILED.
' Efeito: na hora.
' ESC/POS: GS I 67, por serial e TCP.
'   handle: ignorado.
'   text: a porta, como em PortOpen: "COM3,9600", "NET,192.168.0.10,9100" ou "USB".
' Devolve 0, um código, ou um número positivo de erro do sistema ou da rede (Q7NetError).
Public Function PrtPortOpen(ByVal handle As Long, ByVal text As String) As Long
    Dim utf8_text() As Byte
    utf8_text = Utf8(text)
    PrtPortOpen = dllPrtPortOpen(handle, VarPtr(utf8_text(0)))
End Function

' Imprime um texto; é PrintText com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_ALIGNMENT, Q7_ERR_STYLE, Q7_ERR_SIZE, Q7_ERR_NOT_SENT.
' Efeito: na hora; a impressora imprime cada linha quando recebe o seu "\n".
' ESC/POS: ESC @ ou ESC 3 n, ESC a n, ESC ! n, GS B 1, ESC E 1, GS ! n, ESC t 16.
'   handle: ignorado.
'   text: o texto, em UTF-8; os fins de linha ("\n") são de quem chama.
'   alignment: alinhamento, um valor de Q7Alignment; 0 deixa como está.
'   style: soma de valores de Q7Style, de 0 a 15.
'   size: tamanho dos caracteres, de 0 a 119 (Q7Size); 0 deixa como está.
' Devolve a quantidade de bytes do texto enviados, ou um código.
Public Function PrtPrintText(ByVal handle As Long, ByVal text As String, ByVal alignment As Long, ByVal style As Long, ByVal size As Long) As Long
    Dim utf8_text() As Byte
    utf8_text = Utf8(text)
    PrtPrintText = dllPrtPrintText(handle, VarPtr(utf8_text(0)), alignment, style, size)
End Function

' Imprime um código de barras; é PrintBarCode com outro nome. Protegida.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_BARCODE_TYPE, Q7_ERR_BARCODE_HEIGHT, Q7_ERR_BARCODE_WIDTH,
' Q7_ERR_BARCODE_HRI, Q7_ERR_BARCODE_DATA, Q7_ERR_NOT_SENT, Q7_ERR_FAILED.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS h, GS w, GS H, GS k m n (função B).
'   handle: ignorado.
'   type_: um valor de Q7Barcode, ou de 65 a 73 para os mesmos.
'   data: o conteúdo, como em ImpressaoCodigoBarras.
'   width: largura do módulo em pontos, de 1 a 6.
'   height: altura em pontos, de 1 a 255.
'   hri: posição do texto do código, um valor de Q7Hri.
' Devolve 0 ou um código.
Public Function PrtPrintBarCode(ByVal handle As Long, ByVal type_ As Long, ByVal data As String, ByVal width As Long, ByVal height As Long, ByVal hri As Long) As Long
    Dim utf8_data() As Byte
    utf8_data = Utf8(data)
    PrtPrintBarCode = dllPrtPrintBarCode(handle, type_, VarPtr(utf8_data(0)), width, height, hri)
End Function

' Imprime um QR Code; é PrintSymbol com outro nome.
' Códigos: Q7_ERR_NOT_OPEN, Q7_ERR_QR_SIZE, Q7_ERR_QR_LEVEL, Q7_ERR_QR_EMPTY, Q7_ERR_NOT_SENT,
' Q7_ERR_FAILED.
' Efeito: na hora, com o alinhamento em vigor.
' ESC/POS: GS ( k, funções 167, 169, 180 e 181; ORLA-K: GS o e GS k 11; SORBE: GS k Q.
'   handle: ignorado.
'   type_: ignorado.
'   data: o conteúdo, como em ImpressaoQRCode.
'   errorLevel: nível de correção, um valor de Q7QrLevel.
'   size: tamanho do módulo em pontos, de 1 a 6.
' Devolve 0 ou um código.
Public Function PrtPrintSymbol(ByVal handle As Long, ByVal type_ As Long, ByVal data As String, ByVal errorLevel As Long, ByVal size As Long) As Long
    Dim utf8_data() As Byte
    utf8_data = Utf8(data)
    PrtPrintSymbol = dllPrtPrintSymbol(handle, type_, VarPtr(utf8_data(0)), errorLevel, size)
End Function

' UTF-8 até o zero que termina o texto.
Private Function Utf8(ByVal texto As String) As Byte()
    Const CP_UTF8 As Long = 65001
    Dim bytes() As Byte
    Dim quantos As Long
    quantos = WideCharToMultiByte(CP_UTF8, 0, StrPtr(texto), Len(texto), 0, 0, 0, 0)
    ReDim bytes(0 To quantos)
    If quantos > 0 Then
        WideCharToMultiByte CP_UTF8, 0, StrPtr(texto), Len(texto), VarPtr(bytes(0)), quantos, 0, 0
    End If
    Utf8 = bytes
End Function

' O texto fica com quem chamou, que não o libera.
Private Function Texto(ByVal endereco As Long) As String
    Dim bytes() As Byte
    Dim quantos As Long
    If endereco = 0 Then Exit Function
    quantos = lstrlenA(endereco)
    If quantos = 0 Then Exit Function
    ReDim bytes(0 To quantos - 1)
    CopyMemory VarPtr(bytes(0)), endereco, quantos
    Texto = StrConv(bytes, vbUnicode)
End Function
