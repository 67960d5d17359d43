// Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.
//   java -cp jna.jar:. Caixa VANTA 3 192.168.0.10 9100 ../documents   (tipo: 1 USB, 2 serial, 3 rede)
import static q7.Q7Impressora.*;

import java.io.IOException;
import java.nio.charset.MalformedInputException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;

public class Caixa {
    private static final String ITEM = "%-38s%10s\n"; // as 48 colunas da VANTA

    private static class Falha extends RuntimeException {
        Falha(String texto) {
            super(texto);
        }
    }

    private static void confere(int resultado) {
        if (resultado < 0) {
            throw new Falha("Impressão interrompida: " + mensagem(resultado));
        }
    }

    private static String arquivo(Path pasta, String nome) throws IOException {
        return String.join("\n", Files.readAllLines(pasta.resolve(nome), StandardCharsets.UTF_8)) + "\n";
    }

    private static void abre(String modelo, int tipo, String conexao, int parametro) {
        int resultado = AbreConexaoImpressora(tipo, modelo, conexao, parametro);
        if (tipo == Q7_CONNECTION_TCP && resultado == Q7_NET_HOST_NOT_FOUND) {
            throw new Falha("Não abriu: endereço não encontrado.");
        } else if (tipo == Q7_CONNECTION_TCP && resultado == Q7_NET_TIMEOUT) {
            throw new Falha("Não abriu: a impressora não respondeu.");
        } else if (resultado != Q7_OK) {
            throw new Falha("Não abriu: " + mensagem(resultado));
        }
        int estado = StatusImpressora(Q7_STATUS_ALL);
        if (estado < 0) {
            throw new Falha(estado == Q7_ERR_NOT_OPEN ? "Não abriu: a impressora recusou a conexão."
                    : "Sem estado: " + mensagem(estado));
        } else if ((estado & (Q7_STATE_BIT_PAPER_OUT | Q7_STATE_BIT_COVER_OPEN)) != 0) {
            throw new Falha((estado & Q7_STATE_BIT_PAPER_OUT) != 0 ? "Sem papel." : "Tampa aberta.");
        }
        System.out.println("Impressora: " + IdImpressora(Q7_ID_MODEL));
    }

    public static void main(String[] args) throws IOException {
        System.out.println("Q7_Impressora " + GetVersaoDLL());
        try {
            Path pasta = Paths.get(args[4]);
            String rodape = arquivo(pasta, "mensagem.txt");
            abre(args[0], Integer.parseInt(args[1]), args[2], Integer.parseInt(args[3]));
            confere(ImpressaoTexto("Padaria São João\n", Q7_ALIGN_CENTER, Q7_STYLE_BOLD, Q7_SIZE_DOUBLE));
            confere(ImpressaoTexto(String.format(ITEM, "Pão francês", "7,50") + String.format(ITEM, "Café com açúcar", "6,00")
                    + String.format(ITEM, "Maçã", "3,25") + String.format(ITEM, "TOTAL", "16,75"), 0, 0, 0));
            confere(DefinePosicao(Q7_ALIGN_CENTER));
            confere(ImpressaoCodigoBarras(Q7_BARCODE_EAN13, "7891000315507", 80, 2, Q7_HRI_BELOW));
            confere(ImpressaoQRCode("https://exemplo.com.br", 4, Q7_QR_LEVEL_M));
            confere(ImpressaoTexto(rodape, 0, 0, 0));
            confere(Corte(4));
            confere(ImprimeXMLNFCe(arquivo(pasta, "autorizada-consumidor-cpf.xml"), 1, "", Q7_NFCE_SEPARATORS | Q7_NFCE_ISSUER_IE));
            confere(Corte(4));
            confere(ImprimeXMLSAT(arquivo(pasta, "venda-simples.xml"), 0));
            confere(Corte(4));
            confere(AbreGaveta(0, 50, 200));
            confere(StatusImpressora(Q7_STATUS_PAPER)); // ainda responde: recebeu tudo
            confere(FechaConexaoImpressora());
            System.out.println("Impresso.");
            return;
        } catch (MalformedInputException naoUtf8) {
            System.out.println("O texto não está em UTF-8.");
        } catch (Falha falha) {
            System.out.println(falha.getMessage());
        }
        System.exit(1);
    }
}
