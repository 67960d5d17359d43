<?php
// Um caixa: pergunta o estado da impressora, imprime um cupom, uma NFC-e e um CF-e, abre a gaveta.
//   php caixa.php VANTA 3 192.168.0.10 9100 ../documents       (tipo: 1 USB, 2 serial, 3 rede)
declare(strict_types=1);

require 'Q7Impressora.php'; // de declaracoes/php

use Q7Impressora as Q7;

final class Falha extends Exception
{
}

function confere(int $resultado): void
{
    if ($resultado < 0) {
        throw new Falha('Impressão interrompida: ' . Q7::mensagem($resultado));
    }
}

function abre(string $modelo, int $tipo, string $conexao, int $parametro): void
{
    $rede = [Q7::Q7_NET_HOST_NOT_FOUND => 'endereço não encontrado.', Q7::Q7_NET_TIMEOUT => 'a impressora não respondeu.'];
    $resultado = Q7::AbreConexaoImpressora($tipo, $modelo, $conexao, $parametro);
    if ($tipo === Q7::Q7_CONNECTION_TCP && isset($rede[$resultado])) {
        throw new Falha("Não abriu: $rede[$resultado]");
    }
    if ($resultado !== Q7::Q7_OK) {
        throw new Falha('Não abriu: ' . Q7::mensagem($resultado));
    }
    $estado = Q7::StatusImpressora(Q7::Q7_STATUS_ALL);
    if ($estado === Q7::Q7_ERR_NOT_OPEN) {
        throw new Falha('Não abriu: a impressora recusou a conexão.');
    } elseif ($estado < 0) {
        throw new Falha('Sem estado: ' . Q7::mensagem($estado));
    } elseif ($estado & Q7::Q7_STATE_BIT_PAPER_OUT) {
        throw new Falha('Sem papel.');
    } elseif ($estado & Q7::Q7_STATE_BIT_COVER_OPEN) {
        throw new Falha('Tampa aberta.');
    }
    echo 'Impressora: ', Q7::IdImpressora(Q7::Q7_ID_MODEL), "\n";
}

function linha(string $nome, float $preco): string
{
    $valor = number_format($preco, 2, ',', '.');
    return $nome . str_repeat(' ', 48 - iconv_strlen($nome, 'UTF-8') - strlen($valor)) . $valor . "\n"; // 48 colunas
}

[, $modelo, $tipo, $conexao, $parametro, $pasta] = $argv;
echo 'Q7_Impressora ', Q7::GetVersaoDLL(), "\n";
try {
    $rodape = file_get_contents("$pasta/mensagem.txt");
    if (!preg_match('//u', $rodape)) {
        throw new Falha('O texto não está em UTF-8.');
    }
    abre($modelo, (int) $tipo, $conexao, (int) $parametro);
    confere(Q7::ImpressaoTexto("Padaria São João\n", Q7::Q7_ALIGN_CENTER, Q7::Q7_STYLE_BOLD, Q7::Q7_SIZE_DOUBLE));
    confere(Q7::ImpressaoTexto(linha('Pão francês', 7.5) . linha('Café com açúcar', 6) . linha('Maçã', 3.25) . linha('TOTAL', 16.75), 0, 0, 0));
    confere(Q7::DefinePosicao(Q7::Q7_ALIGN_CENTER));
    confere(Q7::ImpressaoCodigoBarras(Q7::Q7_BARCODE_EAN13, '7891000315507', 80, 2, Q7::Q7_HRI_BELOW));
    confere(Q7::ImpressaoQRCode('https://exemplo.com.br', 4, Q7::Q7_QR_LEVEL_M));
    confere(Q7::ImpressaoTexto($rodape, 0, 0, 0));
    confere(Q7::Corte(4));
    confere(Q7::ImprimeXMLNFCe(file_get_contents("$pasta/autorizada-consumidor-cpf.xml"), 1, '', Q7::Q7_NFCE_SEPARATORS | Q7::Q7_NFCE_ISSUER_IE));
    confere(Q7::Corte(4));
    confere(Q7::ImprimeXMLSAT(file_get_contents("$pasta/venda-simples.xml"), 0));
    confere(Q7::Corte(4));
    confere(Q7::AbreGaveta(0, 50, 200));
    confere(Q7::StatusImpressora(Q7::Q7_STATUS_PAPER)); // ainda responde: recebeu tudo
    confere(Q7::FechaConexaoImpressora());
    echo "Impresso.\n";
} catch (Falha $falha) {
    echo $falha->getMessage(), "\n";
    exit(1);
}
