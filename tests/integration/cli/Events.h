// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

/// The JSON objects of `output`, one a line; those of the event `kind` if that is not empty.
QVector<QJsonObject> EventsOf(const QByteArray& output, const QString& kind = QString());
