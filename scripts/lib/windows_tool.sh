# q7.exe under Wine, as it lies in the zip beside the DLL. Sourced by test-windows, whose printers,
# checks and Wine it uses.

# tool_says NAME STATUS PATTERN ARGUMENT...: q7 ends with that status and says a line like that.
tool_says() {
    local name=$1 status=$2 pattern=$3 ended=0
    shift 3
    LC_ALL=C.UTF-8 wine "$(as_windows "$unpacked/bin/q7.exe")" "$@" >"$work/tool" 2>&1 || ended=$?
    if [ "$ended" = "$status" ] && grep -q -- "$pattern" "$work/tool"; then
        ok "q7: $name"
    else
        wrong "q7: $name: ended with $ended, not $status, or does not say: $pattern"
        cat "$work/tool"
    fi
}
at() { printf 'VANTA@net:127.0.0.1:%s' "$(port_of "$1")"; }

expect "q7: Windows 7 has what is imported" same \
    "$(comm -23 <(imports "$unpacked/bin/q7.exe") <(in_windows7))" ""
expect "q7: adds at most 6 MB to the zip" test 6291456 -ge \
    "$(unzip -v "$package" | awk '$NF ~ /\/q7\.exe$/ { print $3 }')"
tool_says "its library is the one beside it" 0 "^Biblioteca: Z:.*\\\\Q7_Impressora.dll" --versao
tool_says "a library that is missing" 1 "^O que houve: A biblioteca C:.nada.dll não foi encontrada" \
    --versao --biblioteca 'C:\nada.dll'
tool_says "a library that is none" 1 "README.md não é uma biblioteca." \
    --versao --biblioteca "$(as_windows "$PWD/README.md")"
tool_says "codes" 0 "Porta serial em uso ou sem permissão" erro -13
tool_says "the data folder and its view" 0 "^No registro, visão de 64 bits: C:.Q7" log pasta

printer tool --port 0
printer tool_other --port 0 --model SORBE
printer tool_late --port 0 --late 1500
printer tool_silent --port 0 --silent
printer tool_empty --port 0 --state paper-out
tool_says "a printer that is well" 0 "^A impressora terminou: sim" testar -i "$(at tool)"
tool_says "another model" 1 "é uma SORBE, não uma VANTA" testar -i "$(at tool_other)"
tool_says "a late answer" 3 "respondeu só depois de 1,[5-9] s" testar -i "$(at tool_late)"
tool_says "no answer" 3 "não respondeu quem é" testar -i "$(at tool_silent)"
tool_says "no paper" 4 "sem papel" testar -i "$(at tool_empty)"
tool_says "a refused connection" 3 "recusou a conexão na porta 1" testar -i VANTA@net:127.0.0.1:1
tool_says "an unknown host" 3 "não foi encontrado na rede" testar -i VANTA@net:nao-existe.invalid
tool_says "a missing port" 3 "A porta COM77 não existe" testar -i VANTA@com:COM77
tool_says "no USB printer of that name" 3 "-21 (Q7_ERR_USB_ABSENT)" testar -i DUNEL@usb
tool_says "USB printers" 0 "vendor_id=0abc" listar

# A printer that is off: the queue of connections that nobody takes is full.
perl -MIO::Socket::INET -e '
    my $deaf = IO::Socket::INET->new(Listen => 0, LocalAddr => "127.0.0.1") or die;
    my @waiting = map { IO::Socket::INET->new(PeerAddr => "127.0.0.1", PeerPort => $deaf->sockport,
        Blocking => 0) } 1 .. 20;
    $| = 1; print "port ", $deaf->sockport, "\n"; sleep 600' >"$work/deaf.said" &
processes[deaf]=$!
waiting_for "$work/deaf.said" '^port '
tool_says "a printer that is off" 3 "Ninguém respondeu" testar -i "$(at deaf)"

: >"$work/tool_taken"
ln -sfn "$work/tool_taken" "$devices/com8"
begin_session
tell hold COM8
tool_says "a port in use" 3 "A porta COM8 está em uso" testar -i VANTA@com:COM8
end_session "q7"

# The same document, drawn by both systems.
document="$work/nota de março.xml"
cp examples/documents/contingencia-offline.xml "$document"
tool_says "a picture" 0 "nota de março-1-2.png" visualizar "$(as_windows "$document")" -o \
    "$(as_windows "$work/drawn-windows")"
"$native/tools/q7/q7" visualizar "$document" -o "$work/drawn" >/dev/null
expect "q7: draws what Linux draws" diff -r "$work/drawn" "$work/drawn-windows"
tool_says "broken XML" 5 "O XML não é bem formado: na linha 1" imprimir \
    "$(as_windows "$PWD/README.md")" -i "$(at tool)"
tool_says "a printed document" 0 "^Impresso: sim" imprimir "$(as_windows "$document")" -i "$(at tool)"

# The printer and its page on ports of their own, ended as by Ctrl+C: Wine makes it of the signal.
wine "$(as_windows "$unpacked/bin/q7.exe")" impressora --porta 0 --pagina 0 >"$work/own.said" 2>&1 \
    6>&- 7>&- &
processes[own]=$!
waiting_for "$work/own.said" '^Página: '
own=$(tr -d '\r' <"$work/own.said" | sed -n 's/^Impressora: //p')
page=$(tr -d '\r' <"$work/own.said" | sed -n 's:^Página\: \(.*\)/$:\1:p')
tool_says "its own printer" 0 "^A impressora terminou: sim" testar -i "$own"
expect "q7: its page has the test page" grep -q "Fim da página de teste" \
    <(curl -s "$page/cupons/1/texto.txt")
expect "q7: its page answers to no other name" same \
    "$(curl -s -o /dev/null -w '%{http_code}' -H 'Host: exemplo.com' "$page/")" 403
kill -INT "$(pgrep -n -f 'q7\.exe.* impressora --porta 0 --pagina 0')"
own_status=0
wait "${processes[own]}" || own_status=$?
unset 'processes[own]'
expect "q7: Ctrl+C ends it well" same "$own_status" 0
