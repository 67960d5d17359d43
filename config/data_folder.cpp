#include "data_folder.h"

#include "registered_data_folder.h"

#include <QDir>

namespace q7
{

QString dataFolder()
{
    QString registered = registeredDataFolder();
    if (!registered.isEmpty() && QDir(registered).exists())
        return registered;
    return QDir::currentPath() + QLatin1Char('/');
}

QString pathInDataFolder(const QString& fileName)
{
    QString path = dataFolder();
    if (!path.endsWith(QLatin1Char('/')) && !path.endsWith(QLatin1Char('\\')))
        path += QLatin1Char('/');
    return path + fileName;
}

} // namespace q7
