// The settings file on Windows: no export writes it, so its component is tested by itself.
#include "config_file.h"
#include "data_folder.h"

#include <QFile>
#include <cstdio>

namespace
{

bool failed = false;

void check(const char* name, bool passed)
{
    std::printf("%s %s\n", passed ? "ok" : "FAILED", name);
    failed = failed || !passed;
}

QByteArray content()
{
    QFile file(q7::configFilePath());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

} // namespace

// Its argument is the data folder that the registry names.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    check("data folder from the registry", q7::dataFolder() == QString::fromUtf8(argv[1]));
    QFile::remove(q7::configFilePath());
    check("settings file made", q7::ensureConfigFile());
    check("every key with its default",
          content().count('=') == 16 && content().count("\n[") + content().startsWith('[') == 5);
    {
        q7::IniFile settings(q7::configFilePath());
        check("default read back",
              q7::config::caminhoXsd(settings) == "C:/Program Files (x86)/Q7/");
        settings.setValue("configuracao_impressora/caminho_xsd", "D:/esquemas/");
    }
    const QByteArray edited = content();
    check("an existing file is left alone", q7::ensureConfigFile() && content() == edited);
    return failed ? 1 : 0;
}
