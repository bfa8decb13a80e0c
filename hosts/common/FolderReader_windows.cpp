#include "FolderReader.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>


namespace BatchHost {

namespace {

/// There are no numbers of files to be had without opening them; the path that is left when all links are resolved
/// tells folders apart just as well.
FileIdentity IdentityOf(const QString& path)
{
    static QHash<QString, quint64> numbers;
    const QString resolved = QFileInfo(path).canonicalFilePath().toLower();
    const auto known = numbers.constFind(resolved);
    return {0, known != numbers.constEnd() ? *known : *numbers.insert(resolved, quint64(numbers.size() + 1))};
}

} // namespace

FolderContent ReadFolder(const QString& path)
{
    FolderContent content;
    const QDir folder(path);
    if (!folder.exists() || !folder.isReadable()) {
        content.error = QStringLiteral("it cannot be opened");
        return content;
    }
    content.identity = IdentityOf(path);
    const QFileInfoList infos =
        folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& info : infos) {
        FolderEntry entry;
        entry.name = info.fileName();
        entry.isLink = info.isSymLink();
        entry.leadsNowhere = entry.isLink && !info.exists();
        if (info.isDir()) {
            entry.kind = FolderEntry::Kind::Folder;
            entry.identity = IdentityOf(info.filePath());
        } else if (info.isFile()) {
            entry.kind = FolderEntry::Kind::File;
            entry.modified = info.lastModified().toUTC();
        }
        content.entries.append(entry);
    }
    return content;
}

FileIdentity IdentityOfFolder(const QString& path)
{
    return QFileInfo(path).isDir() ? IdentityOf(path) : FileIdentity();
}

} // namespace BatchHost
