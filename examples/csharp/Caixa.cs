// Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.
//   Caixa.exe VANTA 3 192.168.0.10 9100 ..\documents       (tipo: 1 USB, 2 serial, 3 rede)
using System;
using System.IO;
using System.Text;
using static Q7Impressora;

static class Caixa
{
    const string Item = "{0,-38}{1,10}\n"; // as 48 colunas da VANTA

    class Falha : Exception
    {
        public Falha(string texto) : base(texto) { }
    }

    static void Confere(int resultado)
    {
        if (resultado < 0)
            throw new Falha("Impressão interrompida: " + Mensagem(resultado));
    }

    static string Arquivo(string pasta, string nome)
    {
        var utf8 = new UTF8Encoding(false, throwOnInvalidBytes: true);
        return File.ReadAllText(Path.Combine(pasta, nome), utf8);
    }

    static void Abre(string modelo, int tipo, string conexao, int parametro)
    {
        int resultado = AbreConexaoImpressora(tipo, modelo, conexao, parametro);
        if (tipo == Q7_CONNECTION_TCP && resultado == Q7_NET_HOST_NOT_FOUND)
            throw new Falha("Não abriu: endereço não encontrado.");
        if (tipo == Q7_CONNECTION_TCP && resultado == Q7_NET_TIMEOUT)
            throw new Falha("Não abriu: a impressora não respondeu.");
        if (resultado != Q7_OK)
            throw new Falha("Não abriu: " + Mensagem(resultado));
        int estado = StatusImpressora(Q7_STATUS_ALL);
        if (estado == Q7_ERR_NOT_OPEN)
            throw new Falha("Não abriu: a impressora recusou a conexão.");
        if (estado < 0)
            throw new Falha("Sem estado: " + Mensagem(estado));
        if ((estado & Q7_STATE_BIT_PAPER_OUT) != 0)
            throw new Falha("Sem papel.");
        if ((estado & Q7_STATE_BIT_COVER_OPEN) != 0)
            throw new Falha("Tampa aberta.");
        Console.WriteLine("Impressora: " + IdImpressora(Q7_ID_MODEL));
    }

    static int Main(string[] args)
    {
        string pasta = args[4];
        Console.WriteLine("Q7_Impressora " + GetVersaoDLL());
        try
        {
            string rodape = Arquivo(pasta, "mensagem.txt");
            Abre(args[0], int.Parse(args[1]), args[2], int.Parse(args[3]));
            Confere(ImpressaoTexto("Padaria São João\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE));
            Confere(ImpressaoTexto(string.Format(Item, "Pão francês", "7,50") + string.Format(Item, "Café com açúcar", "6,00")
                + string.Format(Item, "Maçã", "3,25") + string.Format(Item, "TOTAL", "16,75"), 0, 0, 0));
            Confere(DefinePosicao(Q7_ALIGN_CENTER));
            Confere(ImpressaoCodigoBarras(Q7_BARCODE_EAN13, "7891000315507", 80, 2, Q7_HRI_BELOW));
            Confere(ImpressaoQRCode("https://exemplo.com.br", 4, Q7_QR_LEVEL_M));
            Confere(ImpressaoTexto(rodape, 0, 0, 0));
            Confere(Corte(4));
            Confere(ImprimeXMLNFCe(Arquivo(pasta, "autorizada-consumidor-cpf.xml"), 1, "", Q7_NFCE_SEPARATORS | Q7_NFCE_ISSUER_IE));
            Confere(Corte(4));
            Confere(ImprimeXMLSAT(Arquivo(pasta, "venda-simples.xml"), 0));
            Confere(Corte(4));
            Confere(AbreGaveta(0, 50, 200));
            Confere(StatusImpressora(Q7_STATUS_PAPER)); // ainda responde: recebeu tudo
            Confere(FechaConexaoImpressora());
            Console.WriteLine("Impresso.");
            return 0;
        }
        catch (DecoderFallbackException) { Console.WriteLine("O texto não está em UTF-8."); }
        catch (Falha falha) { Console.WriteLine(falha.Message); }
        return 1;
    }
}
