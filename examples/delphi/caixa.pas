// Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.
//   caixa VANTA 3 192.168.0.10 9100 ..\documents       (tipo: 1 USB, 2 serial, 3 rede)
program caixa;
{$APPTYPE CONSOLE} {$IFDEF FPC}{$MODE DELPHI}{$CODEPAGE CP1252}{$ENDIF}

uses
  {$IFDEF UNIX}cwstring,{$ENDIF} Classes, SysUtils, Q7Impressora;

procedure Falha(const texto: TQ7Texto);
begin
  Writeln(texto);
  Halt(1);
end;

procedure Confere(resultado: Integer);
begin
  if resultado < 0 then
    Falha('Impressão interrompida: ' + Mensagem(resultado));
end;

function Arquivo(const nome: string): TQ7Texto;
var
  bytes: UTF8String;
begin
  with TFileStream.Create(IncludeTrailingPathDelimiter(ParamStr(5)) + nome, fmOpenRead) do
  begin
    SetLength(bytes, Size);
    ReadBuffer(bytes[1], Size);
    Free;
  end;
  Result := UTF8Decode(bytes);
  if UTF8Encode(Result) <> bytes then
    Falha('O texto não está em UTF-8.');
end;

procedure Abre(const modelo: string; tipo: Integer; const conexao: string; parametro: Integer);
var
  resultado, estado: Integer;
begin
  resultado := AbreConexaoImpressora(tipo, TQ7Texto(modelo), TQ7Texto(conexao), parametro);
  if (tipo = Q7_CONNECTION_TCP) and (resultado = Q7_NET_HOST_NOT_FOUND) then
    Falha('Não abriu: endereço não encontrado.')
  else if (tipo = Q7_CONNECTION_TCP) and (resultado = Q7_NET_TIMEOUT) then
    Falha('Não abriu: a impressora não respondeu.')
  else if resultado <> Q7_OK then
    Falha('Não abriu: ' + Mensagem(resultado));
  estado := StatusImpressora(Q7_STATUS_ALL);
  if estado = Q7_ERR_NOT_OPEN then
    Falha('Não abriu: a impressora recusou a conexão.')
  else if estado < 0 then
    Falha('Sem estado: ' + Mensagem(estado))
  else if estado and Q7_STATE_BIT_PAPER_OUT <> 0 then
    Falha('Sem papel.')
  else if estado and Q7_STATE_BIT_COVER_OPEN <> 0 then
    Falha('Tampa aberta.');
  Writeln('Impressora: ', IdImpressora(Q7_ID_MODEL));
end;

begin
  Writeln('Q7_Impressora ', GetVersaoDLL);
  Arquivo('mensagem.txt'); // antes de abrir: o que está nela pode ser impresso?
  Abre(ParamStr(1), StrToInt(ParamStr(2)), ParamStr(3), StrToInt(ParamStr(4)));
  Confere(ImpressaoTexto('Padaria São João'#10, Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE));
  Confere(ImpressaoTexto('Pão francês                                 7,50'#10 +
    'Café com açúcar                             6,00'#10'Maçã                                        3,25'#10 +
    'TOTAL                                      16,75'#10, Q7_ALIGN_LEFT, Q7_STYLE_NORMAL, Q7_SIZE_NORMAL));
  Confere(DefinePosicao(Q7_ALIGN_CENTER));
  Confere(ImpressaoCodigoBarras(Q7_BARCODE_EAN13, '7891000315507', 80, 2, Q7_HRI_BELOW));
  Confere(ImpressaoQRCode('https://exemplo.com.br', 4, Q7_QR_LEVEL_M));
  Confere(ImpressaoTexto(Arquivo('mensagem.txt'), Q7_ALIGN_LEFT, Q7_STYLE_NORMAL, Q7_SIZE_NORMAL));
  Confere(Corte(4));
  Confere(ImprimeXMLNFCe(Arquivo('autorizada-consumidor-cpf.xml'), 1, '', Q7_NFCE_SEPARATORS or Q7_NFCE_ISSUER_IE));
  Confere(Corte(4));
  Confere(ImprimeXMLSAT(Arquivo('venda-simples.xml'), 0));
  Confere(Corte(4));
  Confere(AbreGaveta(0, 50, 200));
  Confere(StatusImpressora(Q7_STATUS_PAPER)); // ainda responde: recebeu tudo
  Confere(FechaConexaoImpressora);
  Writeln('Impresso.');
end.
