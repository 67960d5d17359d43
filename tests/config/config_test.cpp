// The data folder and the settings file.

#include "config_file.h"
#include "data_folder.h"
#include "fiscal_settings.h"

#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

using namespace q7test;

namespace
{

std::string text(const QString& string)
{
    return string.toStdString();
}

std::string workingFolder()
{
    char path[4096] = {};
    return std::string(getcwd(path, sizeof path)) + '/';
}

void setDataPath(const std::string& path)
{
    setenv("Q7_DATA_PATH", path.c_str(), 1);
}

TEST(Folder, IsTheRegisteredOneWhenItExists)
{
    const TemporaryFolder folder;
    folder.write("file", "");
    unsetenv("Q7_DATA_PATH");
    EXPECT_EQ(workingFolder(), q7::dataFolder());
    for (const std::string& path :
         {std::string(), folder.path() + "/missing", folder.path() + "/file"}) {
        setDataPath(path);
        EXPECT_EQ(workingFolder(), q7::dataFolder()) << path;
    }
    setDataPath(folder.path()); // as it stands, without a separator
    EXPECT_EQ(folder.path(), q7::dataFolder());
    EXPECT_EQ(folder.path() + "q7_conf.ini", q7::configFilePath());
    EXPECT_EQ(folder.path() + "/log", q7::pathInDataFolder("log"));
    setDataPath(folder.path() + '/');
    EXPECT_EQ(folder.path() + "/q7_conf.ini", q7::configFilePath());
    EXPECT_EQ(folder.path() + "/log", q7::pathInDataFolder("log"));
}

// Other programs of the family read the file: to the letter as Qt's settings class would write it,
// but for the order, which is theirs.
TEST(ConfigFile, IsMadeWithEveryDefault)
{
    const DataFolder data(DataFolder::Log::Off);
    EXPECT_TRUE(q7::ensureConfigFile());
    EXPECT_EQ("[configuracao_impressora]\n"
              "caminho_biblioteca=C:/Program Files (x86)/Q7/Q7_Impressora.dll\n"
              "caminho_xsd=C:/Program Files (x86)/Q7/\n"
              "\n[configuracao_sat]\n"
              "gerencia_XML=0\n"
              "caminho_XML=\n"
              "caminho_biblioteca_sat=C:/Program Files (x86)/Q7/dllsat.dll\n"
              "caminho_biblioteca_q7_sat=C:/Program Files (x86)/Q7/Q7_SAT.dll\n"
              "\n[configuracao_service]\n"
              "porta=89\n"
              "modoComunicacao=1\n"
              "tipoComando=0\n"
              "path_file_in=C:/Program Files (x86)/Q7/pathIN/\n"
              "path_file_out=C:/Program Files (x86)/Q7/pathOUT/\n"
              "separadorFuncoes=*|*\n"
              "separadorValores=:|\n"
              "\n[configuracao_etiqueta]\n"
              "caminho_biblioteca=C:/Program Files (x86)/Q7/Q7_Etiqueta.dll\n"
              "\n[configuracao_geral]\n"
              "log=0\n"
              "caminho_log=C:/Program Files (x86)/Q7/\n",
              data.read("q7_conf.ini"));
}

TEST(ConfigFile, ThatExistsIsLeftAsItIs)
{
    const DataFolder data(DataFolder::Log::Off);
    const std::string edited = "[configuracao_impressora]\ncaminho_xsd=D:/Ação, e mais/\n"
                               "[configuracao_service]\nporta=90\nmodoComunicacao=abc\n";
    data.write("q7_conf.ini", edited);
    EXPECT_TRUE(q7::ensureConfigFile());
    EXPECT_EQ(edited, data.read("q7_conf.ini"));

    const q7::IniFile settings(q7::configFilePath());
    EXPECT_EQ("D:/Ação, e mais/", text(q7::config::caminhoXsd(settings)));
    EXPECT_EQ(90, q7::config::porta(settings));
    EXPECT_EQ(0, q7::config::modoComunicacao(settings));
    // What it lacks is not written, and reads as its default.
    EXPECT_EQ("C:/Program Files (x86)/Q7/", text(q7::config::caminhoLog(settings)));
    EXPECT_EQ(0, q7::config::tipoComando(settings));
}

TEST(ConfigFile, ThatCannotBeMadeIsReported)
{
    setDataPath("/proc/");
    EXPECT_FALSE(q7::ensureConfigFile());
}

q7::FiscalLayout layoutIn(const DataFolder& data, const std::string& name)
{
    return q7::fiscalLayoutIn(q7::IniFile(data.path() + '/' + name));
}

TEST(FiscalFile, ChoosesTheLayout)
{
    const std::string inForce = "INFO q7_fiscal.ini: nfce/leiaute EM VIGOR: ";
    const std::string ignored = "INFO q7_fiscal.ini: nfce/leiaute IGNORADO: ";
    using Log = std::vector<std::string>;
    const struct {
        const char* content;
        q7::FiscalLayout layout;
        Log log;
    } rows[] = {
        {"[nfce]\nleiaute=6.0\n", q7::FiscalLayout::Version6_0, {inForce + "6.0"}},
        {"; comentário\r\n\r\n[outro]\r\nleiaute=5\r\n[nfce]\r\nleiaute = 6.0\r\n",
         q7::FiscalLayout::Version6_0,
         {inForce + "6.0"}},
        {"[nfce]\nleiaute=original\n", q7::FiscalLayout::Original, {inForce + "original"}},
        {"", q7::FiscalLayout::Original, {inForce + "original"}},
        {"[nfce]\nleiaute=6\n", q7::FiscalLayout::Original, {ignored + "6", inForce + "original"}},
        {"[nfce]\nleiaute=\n", q7::FiscalLayout::Original, {ignored, inForce + "original"}},
    };
    DataFolder data;
    for (const auto& row : rows) {
        data.write("site.ini", row.content);
        EXPECT_EQ(layoutIn(data, "site.ini"), row.layout) << row.content;
        EXPECT_EQ(data.takeLog(), row.log);
    }
    EXPECT_EQ(layoutIn(data, "missing.ini"), q7::FiscalLayout::Original);
    EXPECT_EQ(data.takeLog(), Log());
    // A folder in the place of the file.
    EXPECT_EQ(layoutIn(data, ""), q7::FiscalLayout::Original);
    EXPECT_EQ(data.takeLog(), (Log{"INFO q7_fiscal.ini: NAO PODE SER LIDO", inForce + "original"}));
}

} // namespace
