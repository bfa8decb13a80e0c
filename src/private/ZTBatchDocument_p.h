// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchDocument.h"

#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QPointer>

/// The state of a ZTBatchDocument. The three objects are the document's children. The pointers are guarded, in case a
/// host deletes one against the rules.
class Q_DECL_HIDDEN ZTBatchDocument::Private
{
public:
    explicit Private(ZTBatchDocument* owner);
    ~Private();

    ZTBatchDocument* owner;
    QPointer<ZTBatchInputModel> inputModel;
    QString documentName;
    QString documentFileName;
    QPointer<ZTStyle> style;
    QString groupFilter;
    QPointer<ZTBatchOutputSettings> outputSettings;
    int modificationState = 0;

private:
    Q_DISABLE_COPY(Private)
};
