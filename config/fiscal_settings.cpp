#include "fiscal_settings.h"

#include "data_folder.h"
#include "log.h"

namespace q7
{
namespace
{

constexpr char originalName[] = "original";
constexpr char version6_0Name[] = "6.0";

void tell(const QString& what)
{
    writeLog(LogKind::Information, "q7_fiscal.ini: " + what);
}

FiscalLayout chosenLayout(const IniFile& settings)
{
    const std::optional<QString> name = settings.value("nfce", "leiaute");
    if (name == QLatin1String(version6_0Name))
        return FiscalLayout::Version6_0;
    if (name && name != QLatin1String(originalName))
        tell("nfce/leiaute IGNORADO: " + *name);
    return FiscalLayout::Original;
}

} // namespace

FiscalLayout fiscalLayout()
{
    static const FiscalLayout layout = fiscalLayoutIn(IniFile(pathInDataFolder("q7_fiscal.ini")));
    return layout;
}

FiscalLayout fiscalLayoutIn(const IniFile& settings)
{
    if (settings.state() == FileState::Missing)
        return FiscalLayout::Original;
    if (settings.state() == FileState::Unreadable)
        tell("NAO PODE SER LIDO");
    const FiscalLayout layout = chosenLayout(settings);
    tell(QLatin1String("nfce/leiaute EM VIGOR: ") +
         QLatin1String(layout == FiscalLayout::Version6_0 ? version6_0Name : originalName));
    return layout;
}

} // namespace q7
