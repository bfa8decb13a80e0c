#include "PrivateTempFolder.h"

#include <QDir>
#include <QFile>

namespace BatchHost {

namespace {

/// What is left for the folder of a socket's path of 107 bytes.
constexpr int longestFolder = 70;

QString Template()
{
    const QString name = QStringLiteral("velkora-batch-XXXXXX");
    const QString preferred = QDir::temp().filePath(name);
#ifdef Q_OS_UNIX
    if (QFile::encodeName(preferred).size() > longestFolder) {
        return QStringLiteral("/tmp/") + name;
    }
#endif
    return preferred;
}

} // namespace

PrivateTempFolder::PrivateTempFolder()
    : folder(Template())
{
    if (folder.isValid()) {
        qputenv("TMPDIR", QFile::encodeName(folder.path()));
    }
}

PrivateTempFolder::~PrivateTempFolder() = default;

} // namespace BatchHost
