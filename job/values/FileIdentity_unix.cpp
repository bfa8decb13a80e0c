#include "FileIdentity.h"

#include <QFile>

#include <sys/stat.h>

namespace BatchJob {

std::optional<FileIdentity> IdentityOf(const QString& path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0) {
        return std::nullopt;
    }
    return FileIdentity{quint64(found.st_dev), quint64(found.st_ino)};
}

} // namespace BatchJob
