# The installer: installed, used and removed under Wine, whose prefix has both views of the registry.
# Sourced by test-windows after the other parts: it takes the data folder over.

installer=$unpacked-instalador.exe
c_drive=$WINEPREFIX/drive_c
program_folder="$c_drive/Program Files (x86)/Q7_Impressora"
[ "$bits" = 32 ] || program_folder="$c_drive/Program Files/Q7_Impressora"
data_folder="$c_drive/Dados do caixa"
# silently PROGRAM OPTION...: the options as they stand here.
silently() {
    printf '@"%s" /S %s\r\n' "$(as_windows "$1")" "${*:2}" >"$work/silently.bat"
    wine cmd /c "$(as_windows "$work/silently.bat")"
}
install() { silently "$installer" "$@"; }
# The uninstaller goes on as a copy of itself.
uninstall() {
    local try
    silently "$program_folder/desinstalar.exe" "$@" || return
    for try in {1..200}; do [ -e "$program_folder/desinstalar.exe" ] && sleep 0.1 || break; done
    sleep 0.1
    [ ! -e "$program_folder" ] || (cd "$program_folder" && find . -type f)
}
# data_path VIEW: the value there.
data_path() {
    in_wine wine reg query 'HKLM\SOFTWARE\Q7' /v data_path "/reg:$1" 2>/dev/null | tr -d '\r' |
        sed -n 's/^.*REG_SZ *//p'
}
# Wine's icacls does nothing; this one writes down what it is asked for, and knows no group Ninguem.
cat >"$work/icacls.c" <<'C'
#include <stdio.h>
#include <string.h>
#include <windows.h>
int main(void)
{
    FILE* asked = fopen("C:\\icacls.txt", "a");
    fprintf(asked, "%s\n", strchr(GetCommandLineA(), ' ') + 1);
    fclose(asked);
    return strstr(GetCommandLineA(), "Ninguem") != NULL ? 1332 : 0;
}
C
"$triplet-gcc" "$work/icacls.c" -o "$work/icacls.exe"
cp "$work/icacls.exe" "$c_drive/windows/syswow64/icacls.exe"
asked_icacls() { tr -d '\r' <"$c_drive/icacls.txt" | sed -n "$1p"; }
export WINEDLLOVERRIDES="$WINEDLLOVERRIDES;icacls.exe=n"

installed_q7() { wine "$program_folder/bin/q7.exe" "$@" >/dev/null 2>&1; }

in_wine wine reg delete 'HKLM\SOFTWARE\Q7' /f /reg:64 >/dev/null 2>&1 || true
in_wine wine reg delete 'HKLM\SOFTWARE\Q7' /f /reg:32 >/dev/null 2>&1 || true
expect "installer: installs" install '/DADOS="C:\Dados do caixa"' '/GRUPO=*S-1-5-11'
expect "installer: everything that the zip has" diff -r -x desinstalar.exe "$unpacked" "$program_folder"
expect "installer: nothing in the system's folders" same \
    "$(find "$c_drive/windows" -iname 'q7*' ! -iname '*.lnk')" ""
expect "installer: the data folder, in the 64-bit view" same "$(data_path 64)" 'C:\Dados do caixa\'
expect "installer: and there alone" same "$(data_path 32)" ""
expect "installer: the data folder is there, the log off" same "$(ls "$data_folder" 2>&1)" ""
expect "installer: where the group alone may write, besides administrators and the system" same \
    "$(asked_icacls 1)" '"C:\Dados do caixa" /inheritance:r'"$(
        printf ' /grant "*%s"' 'S-1-5-18:(OI)(CI)F' 'S-1-5-32-544:(OI)(CI)F' 'S-1-5-11:(OI)(CI)M')"
expect "installer: the manual in the start menu" test -e \
    "$c_drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Q7_Impressora/Manual ($bits bits).lnk"
expect "installer: q7 is of use" installed_q7 log ligar
expect "installer: and prints" installed_q7 testar -i "$(at tool)"
expect "installer: the library finds its data folder" grep -q 'FUNCAO.*AbreConexaoImpressora' \
    "$data_folder/log_q7.txt"
status=
printf 'de outros' >"$program_folder/bin/outro.txt"
library_in_build=$dll
dll=$(as_windows "$program_folder/bin/Q7_Impressora.dll")
begin_session
tell threads
install '/DADOS="C:\Dados do caixa"' >/dev/null || status=$?
silently "$program_folder/desinstalar.exe" "_?=$(as_windows "$program_folder")" || status+=$?
expect "installer: neither renews nor removes what is in use" same "$status" 22
end_session "installer"
dll=$library_in_build
expect "uninstaller: removes all but what is not its own" same "$(uninstall)" ./bin/outro.txt
expect "uninstaller: but not the log, unasked" test -s "$data_folder/log_q7.txt"
expect "uninstaller: nothing of it in the registry" same "$(data_path 64)$(
    in_wine wine reg query 'HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall' /s /reg:64 \
        2>/dev/null | grep -i q7)" ""
expect "uninstaller: nor in the start menu" test ! -e \
    "$c_drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Q7_Impressora"
rm -r "$program_folder"
program_folder="$c_drive/Caixa"
status=0
install '/DADOS="C:\Dados do caixa"' /GRUPO=Ninguem '/D=C:\Caixa' || status=$?
expect "installer: tells of a group that there is not" same "$status" 3
expect "installer: a folder that is there keeps its other rights" same "$(asked_icacls '$')" \
    '"C:\Dados do caixa" /grant "Ninguem:(OI)(CI)M"'
expect "uninstaller: told to, the log too, and both folders" same \
    "$(uninstall /APAGARLOG && ls -d "$program_folder" "$data_folder" 2>/dev/null)" ""
