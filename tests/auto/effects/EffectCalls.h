// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QString>

/// Effects as a job calls them.
namespace EffectCalls {

/// Applies the effect with the JSON text `parameters` after their check. Throws what the effect throws, and
/// std::runtime_error when the parameters are refused.
BatchWorker::Picture Apply(const QString& id, const QByteArray& parameters, const BatchWorker::Picture& picture);

/// Why the parameters are refused; empty when they are accepted.
QString Refusal(const QString& id, const QByteArray& parameters);

/// What the effect says when it fails; empty when it does not.
QString Failure(const QString& id, const QByteArray& parameters, const BatchWorker::Picture& picture);

/// The JSON object `others`, or an empty one, with "file" in it.
QByteArray WithFile(const QString& path, const QByteArray& others = QByteArray());

} // namespace EffectCalls
