// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TemporaryName.h"

#include <QRandomGenerator>
#include <QRegularExpression>

namespace BatchProtocol {

QString NewTemporaryName()
{
    const quint64 number = QRandomGenerator::system()->generate64();
    return QStringLiteral(".velkora-%1.tmp").arg(number, 16, 16, QLatin1Char('0'));
}

bool IsTemporaryName(const QString& name)
{
    static const QRegularExpression form(QStringLiteral("\\A\\.velkora-[0-9a-f]{16}\\.tmp\\z"));
    return form.match(name).hasMatch();
}

} // namespace BatchProtocol
