// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Versions.h"

#include <QStringList>

namespace BatchJob {

QString DifferenceBetween(const Versions& versions, const Versions& others)
{
    QStringList texts;
    for (auto it = versions.begin(); it != versions.end(); ++it) {
        if (others.value(it.key()) != it.value()) {
            texts.append(it.key() + QLatin1Char(' ') + it.value());
        }
    }
    for (auto it = others.begin(); it != others.end(); ++it) {
        if (!versions.contains(it.key())) {
            texts.append(it.key() + QStringLiteral(" (none)"));
        }
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace BatchJob
