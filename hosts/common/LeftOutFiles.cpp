// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LeftOutFiles.h"

#include "job/formats/FormatCatalog.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace BatchHost {

namespace {

/// Of files that lie beside pictures and are none that anyone wants to process. They are not opened, which takes time
/// on slow disks. A "thm" is a JPEG file, the preview of a video or of a camera RAW file.
const QSet<QString>& CompanionExtensions()
{
    static const QSet<QString> extensions = [] {
        QSet<QString> all;
        for (const char* extension :
             {"aae", "avi",  "csv", "ctg", "db",  "doc", "docx", "dop",  "gpx", "htm", "html", "icc", "icm",
              "ini", "json", "log", "lrv", "m4v", "md",  "mov",  "mp3",  "mp4", "mts", "on1",  "pdf", "pp3",
              "rar", "rtf",  "srt", "thm", "tmp", "txt", "wav",  "xlsx", "xml", "xmp", "zip"}) {
            all.insert(QString::fromLatin1(extension));
        }
        return all;
    }();
    return extensions;
}

} // namespace

QString FormatOfUnknownFile(const QString& path)
{
    if (CompanionExtensions().contains(QFileInfo(path).suffix().toLower())) {
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    return BatchJob::FormatOfFile(file.read(BatchJob::formatHeadSize), QString());
}

} // namespace BatchHost
