// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Encodes and decodes messages without the library's own code: what is tested must not check itself.
namespace Wire {

QByteArray Int(qint32 value);
QByteArray Text(const QString& text);

QByteArray Frame(const QString& name, const QByteArray& payload);

/// The payload with these fields, each "id" (the text `sessionId`), "s:TEXT" (percent-encoded), "null" (a null text),
/// "i:NUMBER", "b:0", "b:1" or "x:HEX".
QByteArray Payload(const QStringList& fields, const QString& sessionId);

/// Removes the first complete frame from `bytes`; false if there is none.
bool TakeFrame(QByteArray& bytes, QString& name, QByteArray& payload);

/// The text at the start of a payload.
QString FirstText(const QByteArray& payload);

} // namespace Wire
