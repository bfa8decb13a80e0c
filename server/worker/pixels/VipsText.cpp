// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "VipsText.h"

#include "job/values/Phrase.h"

#include <QStringList>

namespace BatchWorker {

QString TextOf(const vips::VError& problem)
{
    constexpr int longest = 500;
    const QString all = QString::fromLocal8Bit(problem.what());
    vips_error_clear();
    QStringList lines = all.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.removeDuplicates();
    const QString text =
        lines.isEmpty() ? BatchJob::Phrase::English("its data make no sense") : lines.join(QStringLiteral("; "));
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("...");
}

bool IsOutOfMemory(const QString& text)
{
    return text.contains(QLatin1String("out of memory"), Qt::CaseInsensitive) ||
           text.contains(QLatin1String("cannot allocate memory"), Qt::CaseInsensitive) ||
           text.contains(QLatin1String("insufficient memory"), Qt::CaseInsensitive);
}

} // namespace BatchWorker
