// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QVector>
#include <QtEndian>

/// The bytes of `number`, the lowest first.
template<typename Number>
QByteArray LittleEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// Makes a TIFF directory with its values behind it.
class TiffDirectory
{
public:
    void Add(quint16 tag, quint16 type, quint32 count, const QByteArray& value);
    void AddShort(quint16 tag, quint16 value) { Add(tag, 3, 1, LittleEndian(value)); }
    void AddShorts(quint16 tag, const QVector<quint16>& values);
    void AddLong(quint16 tag, quint32 value) { Add(tag, 4, 1, LittleEndian(value)); }
    void AddText(quint16 tag, const QByteArray& text) { Add(tag, 2, quint32(text.size() + 1), text + '\0'); }
    void AddFractions(quint16 tag, quint16 type, const QVector<double>& values);

    /// `start`: the position of the directory in the file.
    QByteArray Bytes(quint32 start) const;

private:
    struct Entry
    {
        quint16 type = 0;
        quint32 count = 0;
        QByteArray value;
    };
    QMap<quint16, Entry> entries;
};
