// "q7_conf.ini": the settings that this library shares with its sibling libraries.
#pragma once

#include "ini_file.h"

namespace q7
{

/** The file's path: the data folder's text followed directly by the file name. No separator is
 *  added, all libraries of the family find the file this way. */
NativePath configFilePath();

/** Makes the file with every default when it does not exist; an existing file is left as it is.
 *  Returns whether it exists or was written without error. */
bool ensureConfigFile();

/** One getter per key, over an IniFile(configFilePath()). A missing key yields its default; an
 *  existing file is never completed. */
namespace config
{
struct Text : IniSetting {
    QString operator()(const IniFile& settings) const;
};
struct Number : IniSetting {
    int operator()(const IniFile& settings) const;
};

constexpr char printer[] = "configuracao_impressora";
constexpr Text caminhoBiblioteca{
    {printer, "caminho_biblioteca", "C:/Program Files (x86)/Q7/Q7_Impressora.dll"}};
constexpr Text caminhoXsd{{printer, "caminho_xsd", "C:/Program Files (x86)/Q7/"}};

constexpr char sat[] = "configuracao_sat";
constexpr Number gerenciaXml{{sat, "gerencia_XML", "0"}};
constexpr Text caminhoXml{{sat, "caminho_XML", ""}};
constexpr Text caminhoBibliotecaSat{
    {sat, "caminho_biblioteca_sat", "C:/Program Files (x86)/Q7/dllsat.dll"}};
constexpr Text caminhoBibliotecaQ7Sat{
    {sat, "caminho_biblioteca_q7_sat", "C:/Program Files (x86)/Q7/Q7_SAT.dll"}};

constexpr char service[] = "configuracao_service";
constexpr Number porta{{service, "porta", "89"}};
constexpr Number modoComunicacao{{service, "modoComunicacao", "1"}};
constexpr Number tipoComando{{service, "tipoComando", "0"}};
constexpr Text pathFileIn{{service, "path_file_in", "C:/Program Files (x86)/Q7/pathIN/"}};
constexpr Text pathFileOut{{service, "path_file_out", "C:/Program Files (x86)/Q7/pathOUT/"}};
constexpr Text separadorFuncoes{{service, "separadorFuncoes", "*|*"}};
constexpr Text separadorValores{{service, "separadorValores", ":|"}};

constexpr char label[] = "configuracao_etiqueta";
constexpr Text caminhoBibliotecaEtiqueta{
    {label, "caminho_biblioteca", "C:/Program Files (x86)/Q7/Q7_Etiqueta.dll"}};

constexpr char general[] = "configuracao_geral";
constexpr Number log{{general, "log", "0"}};
constexpr Text caminhoLog{{general, "caminho_log", "C:/Program Files (x86)/Q7/"}};
} // namespace config

} // namespace q7
