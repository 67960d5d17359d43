// "q7_conf.ini": the settings that this library shares with its sibling libraries.
#pragma once

#include <QSettings>
#include <QString>

namespace q7
{

/** The file's path: the data folder's text followed directly by the file name. No separator is
 *  added, all libraries of the family find the file this way. */
QString configFilePath();

/** Makes the file with every default when it does not exist; an existing file is left as it is.
 *  Returns whether it exists or was written without error. */
bool ensureConfigFile();

/** One getter per key, over an IniFile(configFilePath()). A missing key yields its
 *  default; an existing file is never completed. */
namespace config
{
QString caminhoBiblioteca(const QSettings& settings);
QString caminhoXsd(const QSettings& settings);
int gerenciaXml(const QSettings& settings);
QString caminhoXml(const QSettings& settings);
QString caminhoBibliotecaSat(const QSettings& settings);
QString caminhoBibliotecaQ7Sat(const QSettings& settings);
int porta(const QSettings& settings);
int modoComunicacao(const QSettings& settings);
int tipoComando(const QSettings& settings);
QString pathFileIn(const QSettings& settings);
QString pathFileOut(const QSettings& settings);
QString separadorFuncoes(const QSettings& settings);
QString separadorValores(const QSettings& settings);
QString caminhoBibliotecaEtiqueta(const QSettings& settings);
int log(const QSettings& settings);
QString caminhoLog(const QSettings& settings);
} // namespace config

/** INI settings read and written as UTF-8. */
class IniFile : public QSettings
{
public:
    explicit IniFile(const QString& path);
};

} // namespace q7
