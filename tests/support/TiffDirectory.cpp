// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffDirectory.h"

#include <cmath>

void TiffDirectory::Add(quint16 tag, quint16 type, quint32 count, const QByteArray& value)
{
    entries.insert(tag, {type, count, value});
}

void TiffDirectory::AddShorts(quint16 tag, const QVector<quint16>& values)
{
    QByteArray bytes;
    for (const quint16 value : values) {
        bytes += LittleEndian(value);
    }
    Add(tag, 3, quint32(values.size()), bytes);
}

void TiffDirectory::AddFractions(quint16 tag, quint16 type, const QVector<double>& values)
{
    constexpr int denominator = 10'000;
    QByteArray bytes;
    for (const double value : values) {
        bytes += LittleEndian(qint32(std::lround(value * denominator))) + LittleEndian(qint32(denominator));
    }
    Add(tag, type, quint32(values.size()), bytes);
}

QByteArray TiffDirectory::Bytes(quint32 start) const
{
    QByteArray directory = LittleEndian(quint16(entries.size()));
    QByteArray values;
    const quint32 valuesStart = start + 2 + quint32(entries.size()) * 12 + 4;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        const Entry& entry = it.value();
        directory += LittleEndian(it.key()) + LittleEndian(entry.type) + LittleEndian(entry.count);
        if (entry.value.size() <= 4) {
            directory += entry.value.leftJustified(4, '\0');
        } else {
            directory += LittleEndian(valuesStart + quint32(values.size()));
            values += entry.value + QByteArray(entry.value.size() % 2, '\0');
        }
    }
    return directory + LittleEndian(quint32(0)) + values;
}
