// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Events.h"

#include <QJsonDocument>

QVector<QJsonObject> EventsOf(const QByteArray& output, const QString& kind)
{
    QVector<QJsonObject> events;
    for (const QByteArray& line : output.trimmed().split('\n')) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (kind.isEmpty() || event.value(QLatin1String("event")).toString() == kind) {
            events.append(event);
        }
    }
    return events;
}
