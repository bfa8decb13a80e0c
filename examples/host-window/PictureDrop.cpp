// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureDrop.h"

#include "InputFiles.h"

#include <QMimeData>
#include <QUrl>

bool PictureDrop::DoIsAccept(const QMimeData& data) const
{
    return data.hasUrls();
}

void PictureDrop::DoDropData(ZTBatchInputModel* model, const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    AddInputs(*model, paths);
}
