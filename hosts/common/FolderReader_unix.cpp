// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderReader.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

using namespace BatchJob;

namespace BatchHost {

namespace {

QString ErrorText()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString ReadableForm(const char* name)
{
    QString text;
    for (const char* byte = name; *byte != '\0'; ++byte) {
        const auto value = static_cast<unsigned char>(*byte);
        const bool isPlain = value >= 0x20 && value < 0x7F && value != '\\';
        text += isPlain ? QString(QLatin1Char(*byte)) : QStringLiteral("\\x%1").arg(value, 2, 16, QLatin1Char('0'));
    }
    return text;
}

FileIdentity IdentityFrom(const struct stat& state)
{
    return {quint64(state.st_dev), quint64(state.st_ino)};
}

FolderEntry EntryOf(int folder, const char* name)
{
    FolderEntry entry;
    entry.name = QFile::decodeName(name);
    entry.hasName = QFile::encodeName(entry.name) == name;
    if (!entry.hasName) {
        entry.name = ReadableForm(name);
    }
    struct stat state
    {
    };
    if (fstatat(folder, name, &state, AT_SYMLINK_NOFOLLOW) != 0) {
        return entry;
    }
    entry.isLink = S_ISLNK(state.st_mode);
    if (entry.isLink && fstatat(folder, name, &state, 0) != 0) {
        entry.isDangling = true;
        return entry;
    }
    if (S_ISDIR(state.st_mode)) {
        entry.kind = FolderEntry::Kind::Folder;
        entry.identity = IdentityFrom(state);
    } else if (S_ISREG(state.st_mode)) {
        entry.kind = FolderEntry::Kind::File;
        entry.modified = QDateTime::fromSecsSinceEpoch(state.st_mtime, Qt::UTC);
    }
    return entry;
}

} // namespace

FolderContent ReadFolder(const QString& path)
{
    FolderContent content;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(QFile::encodeName(path).constData()), &closedir);
    struct stat state
    {
    };
    if (!folder || fstat(dirfd(folder.get()), &state) != 0) {
        content.error = ErrorText();
        return content;
    }
    content.identity = IdentityFrom(state);
    errno = 0;
    while (const dirent* const found = readdir(folder.get())) {
        if (std::strcmp(found->d_name, ".") != 0 && std::strcmp(found->d_name, "..") != 0) {
            content.entries.append(EntryOf(dirfd(folder.get()), found->d_name));
        }
        errno = 0;
    }
    if (errno != 0) {
        content.error = ErrorText();
    }
    return content;
}

} // namespace BatchHost
