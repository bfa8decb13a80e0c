// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "VersionTexts.h"

#include <QRegularExpression>

namespace BatchWorker {

QString NumberIn(const char* text)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+(\\.[0-9]+)+"));
    const QString all = QString::fromLatin1(text).simplified();
    const QRegularExpressionMatch match = number.match(all);
    return match.hasMatch() ? match.captured() : all;
}

QString Unpacked(unsigned packed, unsigned base, int parts)
{
    QString text;
    for (int part = 0; part < parts; ++part) {
        text = QString::number(part == parts - 1 ? packed : packed % base) +
               (text.isEmpty() ? QString() : QLatin1Char('.') + text);
        packed /= base;
    }
    return text;
}

} // namespace BatchWorker
