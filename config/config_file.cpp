#include "config_file.h"

#include "data_folder.h"

#include <iterator>
#include <string_view>

namespace q7
{

NativePath configFilePath()
{
    const std::string_view name("q7_conf.ini");
    return dataFolder().append(name.begin(), name.end());
}

bool ensureConfigFile()
{
    using namespace config;
    // In the order in which a new file has them.
    static constexpr IniSetting settings[] = {caminhoBiblioteca,
                                              caminhoXsd,
                                              gerenciaXml,
                                              caminhoXml,
                                              caminhoBibliotecaSat,
                                              caminhoBibliotecaQ7Sat,
                                              porta,
                                              modoComunicacao,
                                              tipoComando,
                                              pathFileIn,
                                              pathFileOut,
                                              separadorFuncoes,
                                              separadorValores,
                                              caminhoBibliotecaEtiqueta,
                                              config::log,
                                              caminhoLog};
    const NativePath path = configFilePath();
    return fileExists(path) ||
           createFile(path, iniContent(std::begin(settings), std::end(settings)));
}

namespace config
{
QString Text::operator()(const IniFile& settings) const
{
    return settings.value(group, key).value_or(QLatin1String(defaultText));
}
int Number::operator()(const IniFile& settings) const
{
    return settings.value(group, key).value_or(QLatin1String(defaultText)).toInt();
}
} // namespace config

} // namespace q7
