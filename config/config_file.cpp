#include "config_file.h"

#include "data_folder.h"

#include <QFile>
#include <QStringList>

namespace q7
{
namespace
{

struct Setting {
    const char* group;
    const char* key;
    const char* defaultText;
};

constexpr char printerGroup[] = "configuracao_impressora";
constexpr char satGroup[] = "configuracao_sat";
constexpr char serviceGroup[] = "configuracao_service";
constexpr char labelGroup[] = "configuracao_etiqueta";
constexpr char generalGroup[] = "configuracao_geral";

// In the order in which a new file is written on Windows; elsewhere QSettings sorts.
constexpr Setting settingTable[] = {
    {printerGroup, "caminho_biblioteca", "C:/Program Files (x86)/Q7/Q7_Impressora.dll"},
    {printerGroup, "caminho_xsd", "C:/Program Files (x86)/Q7/"},
    {satGroup, "gerencia_XML", "0"},
    {satGroup, "caminho_XML", ""},
    {satGroup, "caminho_biblioteca_sat", "C:/Program Files (x86)/Q7/dllsat.dll"},
    {satGroup, "caminho_biblioteca_q7_sat", "C:/Program Files (x86)/Q7/Q7_SAT.dll"},
    {serviceGroup, "porta", "89"},
    {serviceGroup, "modoComunicacao", "1"},
    {serviceGroup, "tipoComando", "0"},
    {serviceGroup, "path_file_in", "C:/Program Files (x86)/Q7/pathIN/"},
    {serviceGroup, "path_file_out", "C:/Program Files (x86)/Q7/pathOUT/"},
    {serviceGroup, "separadorFuncoes", "*|*"},
    {serviceGroup, "separadorValores", ":|"},
    {labelGroup, "caminho_biblioteca", "C:/Program Files (x86)/Q7/Q7_Etiqueta.dll"},
    {generalGroup, "log", "0"},
    {generalGroup, "caminho_log", "C:/Program Files (x86)/Q7/"},
};

// Rows of the table above.
enum Row {
    CaminhoBiblioteca,
    CaminhoXsd,
    GerenciaXml,
    CaminhoXml,
    CaminhoBibliotecaSat,
    CaminhoBibliotecaQ7Sat,
    Porta,
    ModoComunicacao,
    TipoComando,
    PathFileIn,
    PathFileOut,
    SeparadorFuncoes,
    SeparadorValores,
    CaminhoBibliotecaEtiqueta,
    Log,
    CaminhoLog,
};

QString pathOf(const Setting& setting)
{
    return QLatin1String(setting.group) + '/' + QLatin1String(setting.key);
}

QString text(const QSettings& settings, Row row)
{
    const Setting& setting = settingTable[row];
    const QVariant value = settings.value(pathOf(setting), QLatin1String(setting.defaultText));
    // A comma in a hand-edited, unquoted value makes the INI reader split it into a list, without
    // the blanks behind the commas.
    return value.type() == QVariant::StringList ? value.toStringList().join(", ")
                                                : value.toString();
}

int number(const QSettings& settings, Row row)
{
    return text(settings, row).toInt();
}

} // namespace

QString configFilePath()
{
    return dataFolder() + "q7_conf.ini";
}

bool ensureConfigFile()
{
    const QString path = configFilePath();
    if (QFile::exists(path))
        return true;
    IniFile settings(path);
    for (const Setting& setting : settingTable)
        settings.setValue(pathOf(setting), QLatin1String(setting.defaultText));
    settings.sync();
    return settings.status() == QSettings::NoError;
}

namespace config
{
QString caminhoBiblioteca(const QSettings& settings)
{
    return text(settings, CaminhoBiblioteca);
}
QString caminhoXsd(const QSettings& settings)
{
    return text(settings, CaminhoXsd);
}
int gerenciaXml(const QSettings& settings)
{
    return number(settings, GerenciaXml);
}
QString caminhoXml(const QSettings& settings)
{
    return text(settings, CaminhoXml);
}
QString caminhoBibliotecaSat(const QSettings& settings)
{
    return text(settings, CaminhoBibliotecaSat);
}
QString caminhoBibliotecaQ7Sat(const QSettings& settings)
{
    return text(settings, CaminhoBibliotecaQ7Sat);
}
int porta(const QSettings& settings)
{
    return number(settings, Porta);
}
int modoComunicacao(const QSettings& settings)
{
    return number(settings, ModoComunicacao);
}
int tipoComando(const QSettings& settings)
{
    return number(settings, TipoComando);
}
QString pathFileIn(const QSettings& settings)
{
    return text(settings, PathFileIn);
}
QString pathFileOut(const QSettings& settings)
{
    return text(settings, PathFileOut);
}
QString separadorFuncoes(const QSettings& settings)
{
    return text(settings, SeparadorFuncoes);
}
QString separadorValores(const QSettings& settings)
{
    return text(settings, SeparadorValores);
}
QString caminhoBibliotecaEtiqueta(const QSettings& settings)
{
    return text(settings, CaminhoBibliotecaEtiqueta);
}
int log(const QSettings& settings)
{
    return number(settings, Log);
}
QString caminhoLog(const QSettings& settings)
{
    return text(settings, CaminhoLog);
}
} // namespace config

IniFile::IniFile(const QString& path) : QSettings(path, QSettings::IniFormat)
{
    setIniCodec("UTF-8");
}

} // namespace q7
