// The data folder, the settings file and the log.

#include "config_file.h"
#include "data_folder.h"
#include "log.h"

#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>
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
    EXPECT_EQ(workingFolder(), text(q7::dataFolder()));
    for (const std::string& path :
         {std::string(), folder.path() + "/missing", folder.path() + "/file"}) {
        setDataPath(path);
        EXPECT_EQ(workingFolder(), text(q7::dataFolder())) << path;
    }
    setDataPath(folder.path()); // as it stands, without a separator
    EXPECT_EQ(folder.path(), text(q7::dataFolder()));
    EXPECT_EQ(folder.path() + "q7_conf.ini", text(q7::configFilePath()));
    EXPECT_EQ(folder.path() + "/log", text(q7::pathInDataFolder("log")));
    setDataPath(folder.path() + '/');
    EXPECT_EQ(folder.path() + "/q7_conf.ini", text(q7::configFilePath()));
    EXPECT_EQ(folder.path() + "/log", text(q7::pathInDataFolder("log")));
}

// Other programs of the family read the file: its groups, keys and texts, to the letter.
TEST(ConfigFile, IsMadeWithEveryDefault)
{
    const DataFolder data(DataFolder::Log::Off);
    EXPECT_TRUE(q7::ensureConfigFile());
    std::istringstream file(data.read("q7_conf.ini"));
    std::set<std::string> settings; // in the order of the file's writer
    std::string group;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && line.front() == '[')
            group = line;
        else if (!line.empty())
            settings.insert(group + line);
    const std::string folder = "C:/Program Files (x86)/Q7/";
    const std::set<std::string> expected = {
        "[configuracao_impressora]caminho_biblioteca=" + folder + "Q7_Impressora.dll",
        "[configuracao_impressora]caminho_xsd=" + folder,
        "[configuracao_sat]gerencia_XML=0",
        "[configuracao_sat]caminho_XML=",
        "[configuracao_sat]caminho_biblioteca_sat=" + folder + "dllsat.dll",
        "[configuracao_sat]caminho_biblioteca_q7_sat=" + folder + "Q7_SAT.dll",
        "[configuracao_service]porta=89",
        "[configuracao_service]modoComunicacao=1",
        "[configuracao_service]tipoComando=0",
        "[configuracao_service]path_file_in=" + folder + "pathIN/",
        "[configuracao_service]path_file_out=" + folder + "pathOUT/",
        "[configuracao_service]separadorFuncoes=*|*",
        "[configuracao_service]separadorValores=:|",
        "[configuracao_etiqueta]caminho_biblioteca=" + folder + "Q7_Etiqueta.dll",
        "[configuracao_geral]log=0",
        "[configuracao_geral]caminho_log=" + folder,
    };
    EXPECT_EQ(expected, settings);
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
    const std::pair<QString (*)(const QSettings&), std::string> lacking[] = {
        {q7::config::caminhoBiblioteca, "C:/Program Files (x86)/Q7/Q7_Impressora.dll"},
        {q7::config::caminhoBibliotecaEtiqueta, "C:/Program Files (x86)/Q7/Q7_Etiqueta.dll"},
        {q7::config::caminhoBibliotecaSat, "C:/Program Files (x86)/Q7/dllsat.dll"},
        {q7::config::caminhoBibliotecaQ7Sat, "C:/Program Files (x86)/Q7/Q7_SAT.dll"},
        {q7::config::pathFileIn, "C:/Program Files (x86)/Q7/pathIN/"},
        {q7::config::pathFileOut, "C:/Program Files (x86)/Q7/pathOUT/"},
        {q7::config::caminhoLog, "C:/Program Files (x86)/Q7/"},
        {q7::config::caminhoXml, ""},
        {q7::config::separadorFuncoes, "*|*"},
        {q7::config::separadorValores, ":|"},
    };
    for (const auto& [getter, value] : lacking)
        EXPECT_EQ(value, text(getter(settings)));
    for (const auto getter : {q7::config::gerenciaXml, q7::config::tipoComando, q7::config::log})
        EXPECT_EQ(0, getter(settings));
}

TEST(ConfigFile, ThatCannotBeMadeIsReported)
{
    setDataPath("/proc/");
    EXPECT_FALSE(q7::ensureConfigFile());
}

TEST(Log, LinesCarryTheirKind)
{
    DataFolder data;
    q7::writeLog(1, "1B40");
    q7::writeLog(2, "Corte. PARAMETROS:3");
    q7::writeLog(3, "Biblioteca");
    q7::writeLog(0, "nada");
    q7::writeLog(7, "ação \xFF]\n[");
    q7::writeLog(2, "");
    EXPECT_EQ((std::vector<std::string>{"COMANDOSENVIADOS 1B40", "FUNCAO Corte. PARAMETROS:3",
                                        "INFO Biblioteca", "LOGINDEFINIDO nada",
                                        "LOGINDEFINIDO ação \uFFFD", "MALFORMED [", "FUNCAO "}),
              data.takeLog());
}

TEST(Log, IsOnWhileItsFileExists)
{
    DataFolder data(DataFolder::Log::Off);
    setDataPath(data.path()); // the separator is added
    const auto expectOff = [&data] {
        q7::writeLog(2, "nada");
        EXPECT_NE(0, access((data.path() + "/log_q7.txt").c_str(), F_OK));
        EXPECT_FALSE(q7::logIsOn());
    };
    expectOff();
    data.write("log_q7.txt", "");
    q7::writeLog(2, "one");
    EXPECT_EQ(std::vector<std::string>{"FUNCAO one"}, data.takeLog());
    data.stopLog();
    expectOff();
}

TEST(Log, ThatCannotBeOpenedIsToldOnStandardOutput)
{
    const TemporaryFolder data;
    ASSERT_EQ(0, std::system(("mkdir " + data.path() + "/log_q7.txt").c_str()));
    setDataPath(data.path());
    testing::internal::CaptureStdout();
    q7::writeLog(2, "one");
    q7::writeLog(2, "two");
    EXPECT_EQ("Erro ao abrir arquivo!\nErro ao abrir arquivo!\n",
              testing::internal::GetCapturedStdout());
}

} // namespace
