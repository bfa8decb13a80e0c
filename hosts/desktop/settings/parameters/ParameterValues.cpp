// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterValues.h"

#include <QJsonDocument>

namespace BatchDesktop {

QByteArray WithValue(const QByteArray& given, const BatchJob::ParameterSchema& parameter, const QJsonValue& value)
{
    QJsonObject object = ObjectOf(given);
    if (value.isUndefined() || value == parameter.defaultValue) {
        object.remove(parameter.name);
    } else {
        object.insert(parameter.name, value);
    }
    return TextOfObject(object);
}

QJsonValue ValueIn(const QByteArray& given, const BatchJob::ParameterSchema& parameter)
{
    const QJsonObject object = ObjectOf(given);
    const auto found = object.constFind(parameter.name);
    return found == object.constEnd() ? parameter.defaultValue : QJsonValue(*found);
}

QJsonObject ObjectOf(const QByteArray& given)
{
    return QJsonDocument::fromJson(given).object();
}

QByteArray TextOfObject(const QJsonObject& object)
{
    return object.isEmpty() ? QByteArray() : QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace BatchDesktop
