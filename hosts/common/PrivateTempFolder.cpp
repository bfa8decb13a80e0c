#include "PrivateTempFolder.h"

#include <QDir>
#include <QFile>

namespace BatchHost {

namespace {

/// The path of a socket may have 107 bytes; this is left for its folder.
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
