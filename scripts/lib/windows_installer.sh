# The installer: installed, used and removed under Wine, whose prefix has both views of the registry.
# Sourced by test-windows after the other parts: it takes the data folder over.

installer=$unpacked-instalador.exe
c_drive=$WINEPREFIX/drive_c
program_folder="$c_drive/Program Files (x86)/Q7_Impressora"
[ "$bits" = 32 ] || program_folder="$c_drive/Program Files/Q7_Impressora"
data_folder="$c_drive/Dados do caixa"
# install OPTION...; uninstall OPTION...: silently. The uninstaller goes on as a copy of itself.
install() {
    printf '@"%s" /S %s\r\n' "$(as_windows "$installer")" "$*" >"$work/install.bat"
    wine cmd /c "$(as_windows "$work/install.bat")"
}
uninstall() {
    local try
    wine "$program_folder/desinstalar.exe" /S "$@" || return
    for try in {1..200}; do [ -e "$program_folder" ] && sleep 0.1 || return 0; done
    find "$program_folder"
    return 1
}
# data_path VIEW: the value there.
data_path() {
    in_wine wine reg query 'HKLM\SOFTWARE\Q7' /v data_path "/reg:$1" 2>/dev/null | tr -d '\r' |
        sed -n 's/^.*REG_SZ *//p'
}
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
expect "installer: the manual in the start menu" test -e \
    "$c_drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Q7_Impressora/Manual ($bits bits).lnk"
expect "installer: q7 is of use" installed_q7 log ligar
expect "installer: and prints" installed_q7 testar -i "$(at tool)"
expect "installer: the library finds its data folder" grep -q 'FUNCAO.*AbreConexaoImpressora' \
    "$data_folder/log_q7.txt"
expect "uninstaller: removes" uninstall
expect "uninstaller: but not the log, unasked" test -s "$data_folder/log_q7.txt"
expect "uninstaller: nothing of it in the registry" same "$(data_path 64)$(
    in_wine wine reg query 'HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall' /s /reg:64 \
        2>/dev/null | grep -i q7)" ""
expect "uninstaller: nor in the start menu" test ! -e \
    "$c_drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Q7_Impressora"
install '/DADOS="C:\Dados do caixa"'
expect "uninstaller: told to, the log too" uninstall /APAGARLOG
expect "uninstaller: and then the folder" test ! -e "$data_folder"
