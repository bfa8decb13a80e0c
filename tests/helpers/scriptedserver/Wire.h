#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The bytes of the protocol, put together and taken apart by hand: what is tested must not be its own measure.
namespace Wire {

QByteArray Int(qint32 value);
QByteArray Text(const QString& text);

QByteArray Frame(const QString& name, const QByteArray& payload);

/// The payload that `fields` describe, each "id" (the text `sessionId`), "s:TEXT" (percent-encoded), "null" (a null
/// text), "i:NUMBER", "b:0", "b:1" or "x:HEX".
QByteArray Payload(const QStringList& fields, const QString& sessionId);

/// Takes the first whole frame off `bytes`; false when there is none.
bool TakeFrame(QByteArray& bytes, QString& name, QByteArray& payload);

/// The text at the start of a payload.
QString FirstText(const QByteArray& payload);

} // namespace Wire
