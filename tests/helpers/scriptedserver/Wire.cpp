// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Wire.h"

#include <QUrl>
#include <QtEndian>

namespace {

constexpr quint32 nullCount = 0xFFFFFFFF;

quint32 CountAt(const QByteArray& bytes, int position)
{
    return qFromBigEndian<quint32>(bytes.constData() + position);
}

QString TextAt(const QByteArray& bytes, int position, quint32 count)
{
    QString text;
    for (quint32 i = 0; count != nullCount && i + 1 < count; i += 2) {
        text.append(QChar(qFromBigEndian<quint16>(bytes.constData() + position + i)));
    }
    return text;
}

int Length(quint32 count)
{
    return count == nullCount ? 0 : static_cast<int>(count);
}

} // namespace

QByteArray Wire::Int(qint32 value)
{
    QByteArray bytes(sizeof(value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray Wire::Text(const QString& text)
{
    QByteArray bytes = Int(text.size() * 2);
    for (const QChar character : text) {
        bytes.append(static_cast<char>(character.unicode() >> 8));
        bytes.append(static_cast<char>(character.unicode() & 0xFF));
    }
    return bytes;
}

QByteArray Wire::Frame(const QString& name, const QByteArray& payload)
{
    return Text(name) + Int(payload.size()) + payload;
}

QByteArray Wire::Payload(const QStringList& fields, const QString& sessionId)
{
    QByteArray payload;
    for (const QString& field : fields) {
        if (field == QLatin1String("id")) {
            payload += Text(sessionId);
        } else if (field == QLatin1String("null")) {
            payload += QByteArray(4, '\xFF');
        } else if (field.startsWith(QLatin1String("s:"))) {
            payload += Text(QUrl::fromPercentEncoding(field.mid(2).toUtf8()));
        } else if (field.startsWith(QLatin1String("i:"))) {
            payload += Int(field.mid(2).toInt());
        } else if (field.startsWith(QLatin1String("b:"))) {
            payload += field.mid(2) == QLatin1String("1") ? '\1' : '\0';
        } else if (field.startsWith(QLatin1String("x:"))) {
            payload += QByteArray::fromHex(field.mid(2).toLatin1());
        } else {
            qFatal("The script has an unknown field: %s", qUtf8Printable(field));
        }
    }
    return payload;
}

bool Wire::TakeFrame(QByteArray& bytes, QString& name, QByteArray& payload)
{
    if (bytes.size() < 4) {
        return false;
    }
    const quint32 nameCount = CountAt(bytes, 0);
    const int payloadStart = 4 + Length(nameCount) + 4;
    if (bytes.size() < payloadStart) {
        return false;
    }
    const int payloadLength = Length(CountAt(bytes, payloadStart - 4));
    if (bytes.size() < payloadStart + payloadLength) {
        return false;
    }
    name = TextAt(bytes, 4, nameCount);
    payload = bytes.mid(payloadStart, payloadLength);
    bytes.remove(0, payloadStart + payloadLength);
    return true;
}

QString Wire::FirstText(const QByteArray& payload)
{
    return payload.size() < 4 ? QString() : TextAt(payload, 4, CountAt(payload, 0));
}
