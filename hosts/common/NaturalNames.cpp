// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NaturalNames.h"

#include <QHash>

#include <algorithm>

namespace BatchHost {

namespace {

/// Longer runs of digits are identifiers rather than numbers.
constexpr int longestNumber = 18;

bool IsDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Calls `visit` for each number in `name`, with the words before it, its start and its length.
template<typename Visit>
void VisitNumbers(const QString& name, Visit visit)
{
    QString words;
    for (int i = 0; i < name.size();) {
        if (!IsDigit(name.at(i))) {
            words += name.at(i++);
            continue;
        }
        const int start = i;
        while (i < name.size() && IsDigit(name.at(i))) {
            ++i;
        }
        if (i - start <= longestNumber) {
            visit(words, start, i - start);
        }
        words += QLatin1Char('0');
    }
}

} // namespace

QStringList NaturalNames(const QStringList& names)
{
    QHash<QString, int> lengths;
    for (const QString& name : names) {
        VisitNumbers(name, [&](const QString& words, int, int length) {
            int& longest = lengths[words];
            longest = std::max(longest, length);
        });
    }
    QStringList texts;
    texts.reserve(names.size());
    for (const QString& name : names) {
        QString text = name;
        VisitNumbers(name, [&](const QString& words, int start, int length) {
            const int grown = text.size() - name.size();
            text.insert(start + grown, QString(lengths.value(words) - length, QLatin1Char('0')));
        });
        texts.append(text);
    }
    return texts;
}

} // namespace BatchHost
