/* Gerado a partir de q7_impressora.h por scripts/declarations; não altere. */
#ifndef Q7_MENSAGEM_H
#define Q7_MENSAGEM_H

#include "q7_impressora.h"

/* Diz o que um código de retorno significa e o que fazer, em UTF-8. */
static const char* q7_mensagem(int codigo)
{
    switch (codigo) {
    case Q7_OK:
        return "Sucesso. O que fazer: nada; depois de abrir por TCP chame StatusImpressora, que devolve -4 se a conexão foi recusada.";
    case Q7_ERR_KIND:
        return "Tipo de conexão desconhecido. O que fazer: passe uma das constantes de Q7Connection, ou um texto como \"COM3,9600\", \"NET,192.168.0.10,9100\" ou \"USB\".";
    case Q7_ERR_MODEL:
        return "Modelo desconhecido, ou a impressora é de outro modelo conhecido. O que fazer: confira o nome na lista de AbreConexaoImpressora e o que a impressora diz no autoteste.";
    case Q7_ERR_NOT_OPEN:
        return "Nenhuma conexão aberta. O que fazer: confira se a impressora está ligada e na rede e abra de novo.";
    case Q7_ERR_UNKNOWN_PRINTER:
        return "A impressora não informou um modelo conhecido. O que fazer: confira cabo, energia, velocidade e endereço e abra de novo.";
    case Q7_ERR_ALREADY_OPEN:
        return "Conexão já aberta. O que fazer: nada; feche a conexão antes de abrir outra.";
    case Q7_ERR_SPEED:
        return "Velocidade serial não permitida. O que fazer: passe 300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 ou 115200, a mesma que está configurada na impressora.";
    case Q7_ERR_SERIAL_NOT_FOUND:
        return "Porta serial não encontrada. O que fazer: veja o nome da porta no Gerenciador de Dispositivos (no Linux, em /dev).";
    case Q7_ERR_SERIAL_DENIED:
        return "Porta serial em uso ou sem permissão. O que fazer: feche o outro programa; no Linux, ponha o usuário no grupo dialout e entre de novo.";
    case Q7_ERR_SERIAL_UNKNOWN:
        return "Porta serial falhou por motivo desconhecido. O que fazer: retire e recoloque o adaptador; atualize o driver.";
    case Q7_ERR_USB_ABSENT:
        return "Impressora USB não encontrada. O que fazer: copie os identificadores do Gerenciador de Dispositivos (VID e PID) para \"q7_usb.ini\" e reinicie o programa.";
    case Q7_ERR_USB_OPEN:
        return "A impressora USB não pôde ser aberta. O que fazer: feche o outro programa; o número de erro do sistema está no log, na linha \"ERRO DE ABERTURA DE PORTA:\".";
    case Q7_ERR_TCP_PORT:
        return "Porta TCP fora da faixa. O que fazer: passe a porta da impressora, em geral 9100.";
    case Q7_ERR_ALIGNMENT:
        return "Alinhamento fora de 0 a 2. O que fazer: passe Q7_ALIGN_LEFT, Q7_ALIGN_CENTER ou Q7_ALIGN_RIGHT.";
    case Q7_ERR_STYLE:
        return "Estilo, negrito ou fonte fora da faixa. O que fazer: some constantes de Q7Style, cada uma uma só vez.";
    case Q7_ERR_SIZE:
        return "Tamanho fora de 0 a 119, ou espaçamento fora de 1 a 255. O que fazer: passe um valor de Q7Size; o espaçamento é em pontos.";
    case Q7_ERR_NOT_SENT:
        return "Nada foi enviado. O que fazer: confira o texto e o papel da impressora; imprima textos longos em partes.";
    case Q7_ERR_QR_SIZE:
        return "Tamanho do módulo do QR Code fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 4 serve para quase tudo.";
    case Q7_ERR_QR_LEVEL:
        return "Nível de correção do QR Code fora de 1 a 4. O que fazer: passe um valor de Q7QrLevel.";
    case Q7_ERR_QR_EMPTY:
        return "Conteúdo do QR Code vazio. O que fazer: confira de onde vem o conteúdo.";
    case Q7_ERR_BARCODE_HEIGHT:
        return "Altura do código de barras fora de 1 a 255. O que fazer: passe a altura em pontos; 80 pontos são 10 mm a 8 pontos por milímetro.";
    case Q7_ERR_BARCODE_WIDTH:
        return "Largura do módulo do código de barras fora de 1 a 6. O que fazer: passe de 1 a 6 pontos; 2 serve para quase tudo.";
    case Q7_ERR_BARCODE_HRI:
        return "Posição do texto do código de barras fora de 1 a 4. O que fazer: passe um valor de Q7Hri.";
    case Q7_ERR_BARCODE_TYPE:
        return "Tipo de código de barras fora de 0 a 8. O que fazer: passe uma das constantes; só PrintBarCode e PrtPrintBarCode aceitam também 65 a 73.";
    case Q7_ERR_BARCODE_DATA:
        return "Dados inválidos para o tipo de código de barras. O que fazer: veja em ImpressaoCodigoBarras o que cada tipo aceita.";
    case Q7_ERR_XSD:
        return "Documento ou esquema inválido. O que fazer: nada.";
    case Q7_ERR_XSD_MISSING:
        return "Arquivo de esquema ausente. O que fazer: nada.";
    case Q7_ERR_NO_REPLY:
        return "A impressora não respondeu. O que fazer: confira a impressora e o cabo e pergunte de novo.";
    case Q7_ERR_SIGNATURE:
        return "A assinatura não tem 344 caracteres. O que fazer: passe o elemento assinaturaQRCODE da venda cancelada, inteiro.";
    case Q7_ERR_NFCE_VERSION:
        return "Versão do leiaute da NFC-e diferente de 4.00. O que fazer: passe uma NFC-e da versão 4.00.";
    case Q7_ERR_NFCE_NO_VERSION:
        return "Não é uma NFC-e, ou é uma sem o atributo versao. O que fazer: passe o texto do XML autorizado, com a raiz nfeProc ou NFe.";
    case Q7_ERR_NFCE_EMISSION:
        return "Tipo de emissão (tpEmis) ausente ou 0. O que fazer: passe o XML inteiro, com o grupo infNFeSupl.";
    case Q7_ERR_NFCE_OPTIONS:
        return "Opções da NFC-e acima de 65535. O que fazer: some constantes de Q7NfceOption.";
    case Q7_ERR_NFCE_MODEL:
        return "NF-e (modelo 55) que não é um DANFE Simplificado Tipo 2. Só com o leiaute 6.0. O que fazer: passe uma NFC-e (modelo 65) ou uma NF-e com tpImp 6.";
    case Q7_ERR_NFCE_QR:
        return "Nota sem QR Code. Só com o leiaute 6.0. O que fazer: passe o XML com o grupo infNFeSupl inteiro; em contingência sem ele, também o CSC.";
    case Q7_ERR_BUZZER_COUNT:
        return "Quantidade de sinais sonoros acima de 63. O que fazer: passe de 0 a 63.";
    case Q7_ERR_BUZZER_TIME:
        return "Os dois tempos do sinal sonoro acima de 25. O que fazer: passe os tempos em unidades de 100 ms.";
    case Q7_ERR_DRAWER_PIN:
        return "Pino da gaveta acima de 1. O que fazer: passe 0 ou 1.";
    case Q7_ERR_DRAWER_TIME:
        return "Um tempo da gaveta acima de 255. O que fazer: passe o tempo em unidades de 2 ms.";
    case Q7_ERR_STATUS_UNAVAILABLE:
        return "Estado não disponível nesta conexão. O que fazer: pergunte por outra conexão ou por outro estado.";
    case Q7_ERR_STATUS_KIND:
        return "Pergunta de estado fora de 1 a 5. O que fazer: passe uma das constantes.";
    case Q7_ERR_IMAGE_KEY:
        return "A chave da imagem não são dois caracteres visíveis. O que fazer: passe a chave com que a imagem foi gravada, por exemplo \"00\".";
    case Q7_ERR_IMAGE_SCALE:
        return "Escala da imagem fora de 1 a 2. O que fazer: passe um valor de Q7ImageScale a ImprimeImagemMemoria.";
    case Q7_ERR_DIRECTION:
        return "Direção de impressão fora de 0 a 3. O que fazer: passe um valor de Q7Direction.";
    case Q7_ERR_POSITION:
        return "Posição horizontal acima de 500. O que fazer: passe de 0 a 500 pontos.";
    case Q7_ERR_ID_KIND:
        return "Pergunta de identificação fora de 0 a 6. O que fazer: passe uma das constantes; IdImpressora devolve este código como o texto \"-402\".";
    case Q7_ERR_FAILED:
        return "Sem resultado: nada foi enviado, ou outra falha. O que fazer: confira os argumentos; se persistir, ligue o log.";
    default:
        return codigo > 0 ? "Erro do sistema ou da rede." : "Código desconhecido.";
    }
}

#endif /* Q7_MENSAGEM_H */
