"""Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.

    python caixa.py VANTA 3 192.168.0.10 9100 ../documents       (tipo: 1 USB, 2 serial, 3 rede)
"""
import sys
from pathlib import Path

import q7_impressora as q7  # de declaracoes/python

COLUNAS = 48  # da VANTA, na fonte normal
ITENS = [("Pão francês", 7.5), ("Café com açúcar", 6.0), ("Maçã", 3.25)]
REDE = {
    q7.Q7_NET_HOST_NOT_FOUND: "endereço não encontrado.",
    q7.Q7_NET_TIMEOUT: "a impressora não respondeu.",
}


class Falha(Exception):
    pass


def confere(resultado):
    if resultado < 0:
        raise Falha("Impressão interrompida: " + q7.mensagem(resultado))


def abre(modelo, tipo, conexao, parametro):
    resultado = q7.AbreConexaoImpressora(tipo, modelo, conexao, parametro)
    if tipo == q7.Q7_CONNECTION_TCP and resultado in REDE:
        raise Falha("Não abriu: " + REDE[resultado])
    if resultado != q7.Q7_OK:
        raise Falha("Não abriu: " + q7.mensagem(resultado))
    estado = q7.StatusImpressora(q7.Q7_STATUS_ALL)
    if estado == q7.Q7_ERR_NOT_OPEN:
        raise Falha("Não abriu: a impressora recusou a conexão.")
    if estado < 0:
        raise Falha("Sem estado: " + q7.mensagem(estado))
    if estado & (q7.Q7_STATE_BIT_PAPER_OUT | q7.Q7_STATE_BIT_COVER_OPEN):
        raise Falha("Sem papel." if estado & q7.Q7_STATE_BIT_PAPER_OUT else "Tampa aberta.")
    print("Impressora:", q7.IdImpressora(q7.Q7_ID_MODEL))


def imprime_cupom(rodape):
    total = sum(preco for _, preco in ITENS)
    linhas = [f"{nome:<{COLUNAS - 10}}{preco:>10.2f}" for nome, preco in ITENS + [("TOTAL", total)]]
    normal = (q7.Q7_ALIGN_LEFT, q7.Q7_STYLE_NORMAL, q7.Q7_SIZE_NORMAL)
    confere(q7.ImpressaoTexto("Padaria São João\n", q7.Q7_ALIGN_CENTER, q7.Q7_STYLE_BOLD, q7.Q7_SIZE_DOUBLE))
    confere(q7.ImpressaoTexto("\n".join(linhas).replace(".", ",") + "\n", *normal))
    confere(q7.DefinePosicao(q7.Q7_ALIGN_CENTER))
    confere(q7.ImpressaoCodigoBarras(q7.Q7_BARCODE_EAN13, "7891000315507", 80, 2, q7.Q7_HRI_BELOW))
    confere(q7.ImpressaoQRCode("https://exemplo.com.br", 4, q7.Q7_QR_LEVEL_M))
    confere(q7.ImpressaoTexto(rodape, *normal))
    confere(q7.Corte(4))


def main(modelo, tipo, conexao, parametro, pasta):
    print("Q7_Impressora", q7.GetVersaoDLL())
    try:
        rodape = Path(pasta, "mensagem.txt").read_text("utf-8")
        abre(modelo, int(tipo), conexao, int(parametro))
        imprime_cupom(rodape)
        nfce = Path(pasta, "autorizada-consumidor-cpf.xml").read_text("utf-8")
        confere(q7.ImprimeXMLNFCe(nfce, 1, "", q7.Q7_NFCE_SEPARATORS | q7.Q7_NFCE_ISSUER_IE))
        confere(q7.Corte(4))
        confere(q7.ImprimeXMLSAT(Path(pasta, "venda-simples.xml").read_text("utf-8"), 0))
        confere(q7.Corte(4))
        confere(q7.AbreGaveta(0, 50, 200))
        confere(q7.StatusImpressora(q7.Q7_STATUS_PAPER))  # ainda responde: recebeu tudo
        confere(q7.FechaConexaoImpressora())
        print("Impresso.")
        return 0
    except UnicodeDecodeError:
        print("O texto não está em UTF-8.")
    except Falha as falha:
        print(falha)
    return 1


sys.exit(main(*sys.argv[1:]))
