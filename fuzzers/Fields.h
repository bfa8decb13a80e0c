// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// The input of a fuzzer as fields, each of which ends with a zero byte or with the input. Behind the last field all
/// fields are empty.
class Fields
{
public:
    Fields(const uint8_t* data, size_t size)
        : rest(QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)))
    {
    }

    bool IsAtEnd() const { return rest.isEmpty(); }

    QByteArray Bytes()
    {
        const int zero = rest.indexOf('\0');
        const int end = zero == -1 ? rest.size() : zero;
        const QByteArray field(rest.constData(), end);
        rest = QByteArray::fromRawData(rest.constData() + end, rest.size() - end);
        if (zero != -1) {
            rest = QByteArray::fromRawData(rest.constData() + 1, rest.size() - 1);
        }
        return field;
    }

    /// UTF-8 or, behind a byte of value 1, UTF-16, which can hold what no decoder of UTF-8 gives.
    QString Text()
    {
        const QByteArray bytes = Bytes();
        if (!bytes.startsWith('\1')) {
            return QString::fromUtf8(bytes);
        }
        QString text((bytes.size() - 1) / 2, Qt::Uninitialized);
        std::memcpy(text.data(), bytes.constData() + 1, static_cast<std::size_t>(text.size()) * sizeof(QChar));
        return text;
    }

    /// A decimal number; 0 for anything else.
    int Number() { return Bytes().toInt(); }

    /// A number from 0 to `count` - 1.
    int Choice(int count)
    {
        const int number = Number() % count;
        return number < 0 ? number + count : number;
    }

private:
    QByteArray rest;
};
