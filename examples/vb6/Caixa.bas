Attribute VB_Name = "Caixa"
' Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.
' Ponha este módulo e Q7Impressora.bas (de declaracoes/vb6) no projeto e comece por Sub Main.
Option Explicit

Private Const PASTA As String = "C:\Q7\documents"

Public Sub Main()
    On Error GoTo Falhou
    Abre "VANTA", Q7_CONNECTION_TCP, "192.168.0.10", 9100
    ImprimeCupom
    Confere ImprimeXMLNFCe(Arquivo("autorizada-consumidor-cpf.xml"), 1, "", Q7_NFCE_SEPARATORS Or Q7_NFCE_ISSUER_IE)
    Confere Corte(4)
    Confere ImprimeXMLSAT(Arquivo("venda-simples.xml"), 0)
    Confere Corte(4)
    Confere AbreGaveta(0, 50, 200)
    Confere StatusImpressora(Q7_STATUS_PAPER) ' ainda responde: recebeu tudo
    Confere FechaConexaoImpressora()
    MsgBox "Impresso."
    Exit Sub
Falhou:
    MsgBox Err.Description, vbExclamation
End Sub

Private Sub Falha(ByVal texto As String)
    Err.Raise vbObjectError + 1, "Caixa", texto
End Sub

Private Sub Confere(ByVal resultado As Long)
    If resultado < 0 Then Falha "Impressão interrompida: " & Mensagem(resultado)
End Sub

Private Sub Abre(ByVal modelo As String, ByVal tipo As Long, ByVal conexao As String, ByVal parametro As Long)
    Dim resultado As Long
    Dim estado As Long
    resultado = AbreConexaoImpressora(tipo, modelo, conexao, parametro)
    If tipo = Q7_CONNECTION_TCP And resultado = Q7_NET_HOST_NOT_FOUND Then Falha "Não abriu: endereço não encontrado."
    If tipo = Q7_CONNECTION_TCP And resultado = Q7_NET_TIMEOUT Then Falha "Não abriu: a impressora não respondeu."
    If resultado <> Q7_OK Then Falha "Não abriu: " & Mensagem(resultado)
    estado = StatusImpressora(Q7_STATUS_ALL)
    If estado = Q7_ERR_NOT_OPEN Then Falha "Não abriu: a impressora recusou a conexão."
    If estado < 0 Then Falha "Sem estado: " & Mensagem(estado)
    If (estado And Q7_STATE_BIT_PAPER_OUT) <> 0 Then Falha "Sem papel."
    If (estado And Q7_STATE_BIT_COVER_OPEN) <> 0 Then Falha "Tampa aberta."
End Sub

Private Sub ImprimeCupom()
    Confere ImpressaoTexto("Padaria São João" & vbLf, Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE)
    Confere ImpressaoTexto(Linha("Pão francês", 7.5) & Linha("Café com açúcar", 6) & Linha("Maçã", 3.25) & Linha("TOTAL", 16.75), 0, 0, 0)
    Confere DefinePosicao(Q7_ALIGN_CENTER)
    Confere ImpressaoCodigoBarras(Q7_BARCODE_EAN13, "7891000315507", 80, 2, Q7_HRI_BELOW)
    Confere ImpressaoQRCode("https://exemplo.com.br", 4, Q7_QR_LEVEL_M)
    Confere ImpressaoTexto(Arquivo("mensagem.txt"), 0, 0, 0)
    Confere Corte(4)
End Sub

' As 48 colunas da VANTA.
Private Function Linha(ByVal nome As String, ByVal preco As Currency) As String
    Linha = Left$(nome & Space$(38), 38) & Right$(Space$(10) & Format$(preco, "0.00"), 10) & vbLf
End Function

' O arquivo, que está em UTF-8, como texto do VB6.
Private Function Arquivo(ByVal nome As String) As String
    With CreateObject("ADODB.Stream")
        .Charset = "utf-8"
        .Open
        .LoadFromFile PASTA & "\" & nome
        Arquivo = .ReadText
        .Close
    End With
End Function
