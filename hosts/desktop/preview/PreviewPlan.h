// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/making/ResultPlan.h"

#include <QByteArray>
#include <QString>

namespace BatchDesktop {

/// Where a preview is made, and for which screen.
struct PreviewPlace
{
    QString folder;            ///< of its files
    QByteArray displayProfile; ///< the ICC profile of the screen
};

/// What the workers of one preview are told.
struct PreviewPlan
{
    ResultPlan result;               ///< if it is refused, the rest is empty
    BatchProtocol::WorkerJob before; ///< cuts and sizes the picture only, and makes it ready to be shown
    QByteArray beforeKey;            ///< equal for previews whose picture before is the same

    /// The plan for the picture `file`. Asks the file system; safe on any thread.
    static PreviewPlan Of(const QString& file, const Settings& settings, const PreviewPlace& place);
};

/// What the worker is told that makes a finished result ready to be shown.
BatchProtocol::WorkerJob DisplayJob(const PreviewPlace& place);

/// The format of pictures that are ready to be shown.
QString DisplayFormat();

} // namespace BatchDesktop
