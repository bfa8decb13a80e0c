// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ThumbnailFiles.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>
#include <QtEndian>

#include <array>

namespace BatchDesktop {

namespace {

const QString& BrokenEnd()
{
    static const QString end = QStringLiteral(".broken");
    return end;
}

/// The value of the text `key` in the PNG file `path`, as far as it stands before the pixels. The file is not decoded.
QByteArray PngText(const QString& path, const QByteArray& key)
{
    constexpr int mostChunks = 64;
    constexpr qint64 longestText = 1 << 16;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(8) != QByteArray("\x89PNG\r\n\x1A\n", 8)) {
        return {};
    }
    for (int i = 0; i < mostChunks; ++i) {
        const QByteArray head = file.read(8);
        if (head.size() < 8 || head.endsWith("IDAT")) {
            return {};
        }
        const qint64 length = qFromBigEndian<quint32>(head.constData());
        if (head.endsWith("tEXt") && length <= longestText) {
            const QByteArray text = file.read(length);
            if (text.startsWith(key + '\0')) {
                return text.mid(key.size() + 1);
            }
        } else if (!file.seek(file.pos() + length)) {
            return {};
        }
        file.read(4); // checksum
    }
    return {};
}

/// The name of a thumbnail tells the picture; the URI in it is compared if it is not compressed.
bool IsOf(const QString& thumbnail, const QByteArray& uri, qint64 modified)
{
    const QByteArray text = PngText(thumbnail, "Thumb::URI");
    return PngText(thumbnail, "Thumb::MTime") == QByteArray::number(modified) && (text.isEmpty() || text == uri);
}

} // namespace

ThumbnailFiles::ThumbnailFiles(const QString& ownFolder, const QString& desktopFolder)
    : ownFolder(ownFolder)
    , desktopFolder(desktopFolder)
{
    constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    QDir().mkpath(ownFolder);
    QFile::setPermissions(ownFolder, ownerOnly);
}

ThumbnailFiles ThumbnailFiles::OfUser()
{
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return {cache + QStringLiteral("/velkora-batch/thumbnails"), cache + QStringLiteral("/thumbnails")};
}

ThumbnailFiles::Place ThumbnailFiles::Find(const QString& picture) const
{
    const QFileInfo info(picture);
    if (!info.isFile()) {
        return {};
    }
    const qint64 modified = info.lastModified().toSecsSinceEpoch();
    const QByteArray uri = QUrl::fromLocalFile(picture).toEncoded(QUrl::FullyEncoded);
    const QString name = QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex());
    Place place;
    place.own = QStringLiteral("%1/%2-%3.png").arg(ownFolder, name, QString::number(modified));
    place.isMade = QFileInfo::exists(place.own);
    place.isBroken = QFileInfo::exists(place.own + BrokenEnd());
    if (place.isMade || place.isBroken) {
        return place;
    }
    for (const char* size : std::array{"large", "x-large", "xx-large", "normal"}) {
        const QString candidate = QStringLiteral("%1/%2/%3.png").arg(desktopFolder, QLatin1String(size), name);
        if (IsOf(candidate, uri, modified)) {
            place.desktop = candidate;
            break;
        }
    }
    return place;
}

void ThumbnailFiles::MarkBroken(const QString& own)
{
    QFile mark(own + BrokenEnd());
    mark.open(QIODevice::WriteOnly); // Without the mark it is tried once in each session.
}

void ThumbnailFiles::Prune(qint64 bytes) const
{
    qint64 sum = 0;
    const QFileInfoList newestFirst = QDir(ownFolder).entryInfoList(QDir::Files, QDir::Time);
    for (const QFileInfo& file : newestFirst) {
        sum += file.size();
        if (sum > bytes) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace BatchDesktop
