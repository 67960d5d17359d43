# What integrators are handed: the zip's first page followed to the letter, the import library for
# Visual C++, and the zip for another Qt. Sourced by test-windows, whose checks and Wine it uses.

# ------------------------------------------------------------------ the first page

# A folder as people have them.
first=$work/"Meus cupons não lidos"
mkdir "$first"
(cd "$first" && unzip -q "$package")
first=$first/$(basename "$unpacked")

# first_page PATTERN: of LEIAME.txt, up to the first receipt.
first_page() { tr -d '\r' <"$first/LEIAME.txt" | sed '/^No programa/,$d' | sed -n "$1"; }
expect "LEIAME: ten steps at most" test "$(first_page '/^  [0-9]*\. /p' | wc -l)" -le 10

# follow COMMAND: as the reader would type it in the zip's folder; the compiler is this machine's.
follow() {
    local status=0
    case $1 in
    gcc\ *) (cd "$first" && eval "$triplet-${1//\\//}") ;;
    *) in_wine timeout --kill-after=5 300 env -C "$first" wine cmd /c "$1" 6>&- 7>&- ;;
    esac >"$work/step" 2>&1 || status=$?
    [ "$status" -eq 0 ] || tail -n 5 "$work/step"
    return "$status"
}
page=http://127.0.0.1:8080
answers_with() { # STATUS OPTION...: the page answers a request so
    local status=$1
    shift
    same "$(curl -s -o "$work/answer.http" -w '%{http_code}' "$@")" "$status"
}
# on_paper NUMBER TEXT: the page shows that receipt, with that text.
on_paper() { answers_with 200 "$page/cupons/$1/texto.txt" && grep -q "$2" "$work/answer.http"; }

mapfile -t steps < <(first_page 's/^ *> //p')
in_wine env -C "$first" wine cmd /c "${steps[0]}" >"$work/page.said" 2>&1 6>&- 7>&- &
processes[page]=$!
waiting_for "$work/page.said" '^Página: http://127.0.0.1:8080/'
for step in "${steps[@]:1}"; do expect "LEIAME: $step" follow "$step"; done
expect "LEIAME: the test page is there to see" on_paper 1 "Q7_Impressora"
expect "LEIAME: and the note" on_paper 2 "NFC-e"
expect "LEIAME: and the till's receipt" on_paper 3 "Padaria São João"
token=$(curl -s "$page/" | sed -n 's/.*name="q7-token" content="\([^"]*\)".*/\1/p')
expect "page: another site's switch is refused" answers_with 403 -X POST -d papel=sem \
    -H "Origin: http://exemplo.com" -H "X-Q7-Token: $token" "$page/chaves"
expect "page: one without its token, too" answers_with 403 -X POST -d papel=sem \
    -H "Origin: $page" "$page/chaves"
expect "page: its own is taken" answers_with 204 -X POST -d papel=sem -H "Origin: $page" \
    -H "X-Q7-Token: $token" "$page/chaves"
tool_says "the page's paper switch" 4 "sem papel" estado -i VANTA@net:127.0.0.1
in_wine wine taskkill /im q7.exe /f >/dev/null 2>&1 || kill "${processes[page]}" 2>/dev/null || true
wait "${processes[page]}" 2>/dev/null || true
unset 'processes[page]'

# ------------------------------------------------------------------ Visual C++

# As its compiler makes calls, without anything of its own.
cat >"$work/msvc.c" <<'C'
#include "q7_impressora.h"
int entry(void)
{
    const char* version = GetVersaoDLL();
    return version[0] == '0' && ImpressaoTexto("x", 0, 0, 0) == Q7_ERR_NOT_OPEN &&
                   PrintText(0, "x", 0, 0, 0) == Q7_ERR_NOT_OPEN
               ? 42
               : 1;
}
C
clang --target="$cpu-pc-windows-msvc" -ffreestanding -Wall -Wextra -Werror \
    -I"$unpacked/declaracoes/c" -c "$work/msvc.c" -o "$work/msvc.obj"
expect "Visual C++: its linker takes the .lib" lld-link /nologo /nodefaultlib /entry:entry \
    /subsystem:console /safeseh:no "/out:$unpacked/bin/msvc.exe" "$work/msvc.obj" \
    "$unpacked/lib/Q7_Impressora.lib"
status=0
wine "$(as_windows "$unpacked/bin/msvc.exe")" >/dev/null 2>&1 || status=$?
expect "Visual C++: and the program calls" same "$status" 42
rm -f "$unpacked/bin/msvc.exe"

# ------------------------------------------------------------------ the other width

# Both ways, where both are there: the continuous build has them in its second run.
others=$((96 - bits)) other=$PWD/build/windows
[ "$others" = 32 ] || other+=-64
if [ -e "$other/package" ]; then
    tool_says "a library of $others bits" 1 "é de $others bits e este programa é de $bits" \
        --versao --biblioteca "$(as_windows "$other/Q7_Impressora.dll")"
    unpacked=$(echo "$other"/package/*-win"$others") tool_says "that of $others bits, with one of $bits" 1 \
        "é de $bits bits e este programa é de $others" --versao --biblioteca "$dll"
else
    say "without a build of $others bits: the library of the other width is left out"
fi

# ------------------------------------------------------------------ another Qt

(cd "$work" && unzip -q "$unpacked-religar.zip")
relink=$work/$(basename "$unpacked")-religar
expect "another Qt: linked again" "$relink/religar.sh" "$(cache_folder)/windows-$cpu/prefix"
expect "another Qt: with the same one it is the same DLL" cmp "$relink/Q7_Impressora.dll" \
    "$windows/Q7_Impressora.dll"
expect "another Qt: and the same q7" cmp "$relink/tools/q7/q7.exe" "$windows/tools/q7/q7.exe"
