; O instalador, feito por scripts/build-windows da mesma pasta que o zip:
;
;   makensis -DVERSION=01.01.00 -DNUMBERS=1.1.0.0 -DBITS=32 -DCONTENT=PASTA -DREMOVAL=LISTA.nsh
;            -DOUTPUT=ARQUIVO.exe instalador.nsi
;
; Silencioso: ARQUIVO.exe /S [/DADOS=C:\Q7] [/GRUPO=*S-1-5-32-545] [/D=C:\Pasta do programa]
; (/D por último e sem aspas). Para remover: desinstalar.exe /S [/APAGARLOG]
; Termina com 0; com 2 se nada fez, porque um programa usa a DLL; com 3 se instalou, mas sem dar ao
; grupo os seus direitos.

Unicode true
ManifestDPIAware true
SetCompressor /SOLID lzma
RequestExecutionLevel admin
CRCCheck force
AllowSkipFiles off ; um arquivo que não pode ser trocado não passa por instalado

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include x64.nsh
!include nsDialogs.nsh

!define TITLE "Q7_Impressora (${BITS} bits)"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Q7_Impressora-${BITS}"
!define DATA_KEY "SOFTWARE\Q7"

Name "${TITLE}"
OutFile "${OUTPUT}"
BrandingText "Q7_Impressora ${VERSION}"
!if ${BITS} == 64
    InstallDir "$PROGRAMFILES64\Q7_Impressora"
    !define OTHER 32
!else
    InstallDir "$PROGRAMFILES32\Q7_Impressora"
    !define OTHER 64
!endif

VIProductVersion "${NUMBERS}"
VIAddVersionKey /LANG=1046 ProductName "Q7_Impressora"
VIAddVersionKey /LANG=1046 FileDescription "Instalador da Q7_Impressora"
VIAddVersionKey /LANG=1046 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1046 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=1046 LegalCopyright "Q7_Impressora"

Var DataFolder
Var Group      ; a quem a pasta de dados dá direitos, como o icacls o toma
Var FolderField
Var GroupField
Var KeepsLog

!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
Page custom askForData takeData
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\manual\index.html"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Abrir o manual"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "PortugueseBR"

; O valor está na visão de 64 bits; num Windows de 32 bits há uma só.
!macro ownView
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
!macroend

; Nada é trocado nem removido pela metade.
!macro demandUnused file
    ${Do}
        ${IfNot} ${FileExists} "${file}"
            ${Break}
        ${EndIf}
        ClearErrors
        FileOpen $0 "${file}" a
        ${IfNot} ${Errors}
            FileClose $0
            ${Break}
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Um programa está usando ${file}. Feche-o e tente de novo." /SD IDCANCEL IDRETRY +2
        Abort
    ${Loop}
!macroend

Function .onInit
    !if ${BITS} == 64
        ${IfNot} ${RunningX64}
            MessageBox MB_ICONSTOP "Este Windows é de 32 bits: use o instalador da Q7_Impressora de 32 bits." /SD IDOK
            Abort
        ${EndIf}
    !endif
    !insertmacro ownView
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/DADOS=" $DataFolder
    ${If} ${Errors}
        ReadRegStr $DataFolder HKLM "${DATA_KEY}" "data_path"
        ${If} $DataFolder == ""
            StrCpy $DataFolder "C:\Q7"
        ${EndIf}
    ${EndIf}
    ClearErrors
    ${GetOptions} $0 "/GRUPO=" $Group
    ${If} ${Errors}
        StrCpy $Group "*S-1-5-32-545" ; o grupo Usuários, seja qual for o idioma do sistema
    ${EndIf}
FunctionEnd

Function askForData
    !insertmacro MUI_HEADER_TEXT "Pasta de dados" "Onde ficam o log e a configuração, e quem pode gravar."
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateLabel} 0 0 100% 24u "A biblioteca procura nesta pasta o log e os arquivos de configuração. O log começa desligado; liga-se com $\"q7 log ligar$\"."
    Pop $0
    ${NSD_CreateDirRequest} 0 28u 78% 13u "$DataFolder"
    Pop $FolderField
    ${NSD_CreateBrowseButton} 80% 28u 20% 13u "Procurar..."
    Pop $0
    ${NSD_OnClick} $0 browse
    ${NSD_CreateLabel} 0 52u 100% 24u "Grupo que usa o programa de vendas e por isso grava nela (*S-1-5-32-545 é o dos Usuários deste computador):"
    Pop $0
    ${NSD_CreateText} 0 78u 78% 13u "$Group"
    Pop $GroupField
    nsDialogs::Show
FunctionEnd

Function browse
    nsDialogs::SelectFolderDialog "Pasta de dados" "$DataFolder"
    Pop $0
    ${If} $0 != error
        ${NSD_SetText} $FolderField $0
    ${EndIf}
FunctionEnd

Function takeData
    ${NSD_GetText} $FolderField $DataFolder
    ${NSD_GetText} $GroupField $Group
FunctionEnd

Section
    SetShellVarContext all
    !insertmacro ownView
    !insertmacro demandUnused "$INSTDIR\bin\Q7_Impressora.dll"
    !insertmacro demandUnused "$INSTDIR\bin\q7.exe"
    ; Sempre com barra no fim, como a biblioteca o espera.
    StrCpy $0 $DataFolder 1 -1
    ${If} $0 != "\"
        StrCpy $DataFolder "$DataFolder\"
    ${EndIf}

    SetOutPath "$INSTDIR"
    File /r "${CONTENT}/*"
    WriteUninstaller "$INSTDIR\desinstalar.exe"
    CreateDirectory "$SMPROGRAMS\Q7_Impressora"
    CreateShortcut "$SMPROGRAMS\Q7_Impressora\Manual (${BITS} bits).lnk" "$INSTDIR\manual\index.html"

    ; Uma pasta nova não herda os direitos do disco, que deixariam qualquer usuário ler o log. Numa
    ; que já existe os direitos são de quem a fez; o grupo ganha os seus.
    StrCpy $3 ""
    ${IfNot} ${FileExists} "$DataFolder*.*"
        StrCpy $3 '/inheritance:r /grant "*S-1-5-18:(OI)(CI)F" /grant "*S-1-5-32-544:(OI)(CI)F" '
    ${EndIf}
    CreateDirectory "$DataFolder"
    StrCpy $1 $DataFolder -1
    nsExec::ExecToStack '"$SYSDIR\icacls.exe" "$1" $3/grant "$Group:(OI)(CI)M"'
    Pop $0
    Pop $2
    ${If} $0 != 0
        DetailPrint "icacls: $2"
        SetErrorLevel 3
        MessageBox MB_ICONEXCLAMATION "Não foi possível dar ao grupo $Group o direito de gravar em $1. Dê-o nas propriedades da pasta." /SD IDOK
    ${EndIf}

    ; A chave nas duas visões, o valor na de 64 bits: é assim que a biblioteca o procura.
    WriteRegStr HKLM "${DATA_KEY}" "data_path" "$DataFolder"
    SetRegView 32
    WriteRegStr HKLM "${DATA_KEY}" "" ""
    !insertmacro ownView
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${TITLE}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section Uninstall
    SetShellVarContext all
    !insertmacro ownView
    ReadRegStr $DataFolder HKLM "${DATA_KEY}" "data_path"

    !insertmacro demandUnused "$INSTDIR\bin\Q7_Impressora.dll"
    !insertmacro demandUnused "$INSTDIR\bin\q7.exe"
    ; Só o que foi instalado, arquivo por arquivo: as pastas podem conter o que é de outros.
    !include "${REMOVAL}"
    Delete "$SMPROGRAMS\Q7_Impressora\Manual (${BITS} bits).lnk"
    RMDir "$SMPROGRAMS\Q7_Impressora"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"

    ; O que a outra largura também usa fica enquanto ela está instalada.
    ReadRegStr $0 HKLM "Software\Microsoft\Windows\CurrentVersion\Uninstall\Q7_Impressora-${OTHER}" "InstallLocation"
    ${If} $0 == ""
    ${AndIf} $DataFolder != ""
        StrCpy $KeepsLog yes
        StrCpy $2 "$DataFolder"
        StrCpy $2 "$2log_q7.txt"
        ${GetParameters} $0
        ClearErrors
        ${GetOptions} $0 "/APAGARLOG" $1
        ${IfNot} ${Errors}
            StrCpy $KeepsLog no
        ${ElseIf} ${FileExists} "$2"
            MessageBox MB_YESNO|MB_ICONQUESTION "Apagar também o log, $2? Ele contém o CSC e dados de clientes." /SD IDNO IDNO keeps
            StrCpy $KeepsLog no
            keeps:
        ${EndIf}
        ${If} $KeepsLog == no
            Delete "$2"
        ${EndIf}
        StrCpy $1 $DataFolder -1
        RMDir "$1" ; só se nada ficou nela
        DeleteRegValue HKLM "${DATA_KEY}" "data_path"
        DeleteRegKey /ifempty HKLM "${DATA_KEY}"
        SetRegView 32
        DeleteRegValue HKLM "${DATA_KEY}" ""
        DeleteRegKey /ifempty HKLM "${DATA_KEY}"
    ${EndIf}
    Delete "$INSTDIR\desinstalar.exe" ; por último: o que foi interrompido pode ser repetido
    RMDir "$INSTDIR"
SectionEnd
