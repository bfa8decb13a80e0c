// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FontFiles.h"

#include <fontconfig/fontconfig.h>

namespace BatchWorker {

namespace {

// Takes over `list`.
void Append(QVector<QByteArray>& paths, FcStrList* list)
{
    if (!list) {
        return;
    }
    while (const FcChar8* path = FcStrListNext(list)) {
        paths.append(reinterpret_cast<const char*>(path));
    }
    FcStrListDone(list);
}

} // namespace

QVector<QByteArray> FontFiles()
{
    QVector<QByteArray> paths;
    if (FcInit() == FcTrue) {
        FcConfig* const settings = FcConfigGetCurrent();
        Append(paths, FcConfigGetFontDirs(settings));
        Append(paths, FcConfigGetCacheDirs(settings));
        Append(paths, FcConfigGetConfigFiles(settings));
    }
    return paths;
}

} // namespace BatchWorker
