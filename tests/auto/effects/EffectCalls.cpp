// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"

#include "job/effects/EffectCatalog.h"
#include "server/worker/effects/Effects.h"
#include "server/worker/pixels/PictureFailure.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

namespace EffectCalls {

using namespace BatchJob;
using namespace BatchWorker;

Picture Apply(const QString& id, const QByteArray& parameters, const Picture& picture)
{
    const EffectSchema* const schema = FindEffect(id);
    if (!schema) {
        throw std::runtime_error("no effect " + id.toStdString());
    }
    const CheckedParameters checked = CheckEffect(*schema, parameters);
    if (!checked.IsValid()) {
        throw std::runtime_error(checked.error.toStdString());
    }
    return ApplyEffect(*schema, checked.values, picture);
}

QString Refusal(const QString& id, const QByteArray& parameters)
{
    const EffectSchema* const schema = FindEffect(id);
    return schema ? CheckEffect(*schema, parameters).error : QStringLiteral("no such effect");
}

QString Failure(const QString& id, const QByteArray& parameters, const Picture& picture)
{
    try {
        ApplyEffect(*FindEffect(id), QJsonDocument::fromJson(parameters).object(), picture);
    } catch (const PictureFailure& failure) {
        return failure.kind == PictureFailure::Kind::ProcessingFailed ? failure.reason : QStringLiteral("another kind");
    }
    return {};
}

QByteArray WithFile(const QString& path, const QByteArray& others)
{
    QJsonObject object = QJsonDocument::fromJson(others).object();
    object.insert(QStringLiteral("file"), path);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace EffectCalls
