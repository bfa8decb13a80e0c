#include "UserPath.h"

#include <QDir>

namespace BatchHost {

QString AbsolutePath(const QString& path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

} // namespace BatchHost
