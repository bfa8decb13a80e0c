// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureUpdate.h"

#include <ZTBatchInputModel.h>

#include <QDateTime>
#include <QFileInfo>

void PictureUpdate::DoUpdate(ZTBatchInputModel* model, const QModelIndex& index, bool ignoreModificationTime)
{
    const BatchNodeData& input = *model->getNodeData(index);
    const QFileInfo file(input.fileName);
    const QString modified = file.exists() ? file.lastModified().toString(Qt::ISODate) : QString();
    if (input.type == Folder || (modified == input.lastModification && !ignoreModificationTime)) {
        return;
    }
    model->setEnabled(index, file.exists());
    model->setLastModification(index, modified);
    model->setToolTip(index, file.exists() ? tr("Changed %1").arg(modified) : tr("The file is gone."));
}
