// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TokenTable.h"

#include <algorithm>

namespace BatchJob {

const TokenRecord* FindToken(const QString& word)
{
    const auto found = std::find_if(tokenTable.begin(), tokenTable.end(),
                                    [&word](const TokenRecord& record) { return word == QLatin1String(record.word); });
    return found == tokenTable.end() ? nullptr : &*found;
}

QStringList AllTokens()
{
    QStringList all;
    for (const TokenRecord& record : tokenTable) {
        all.append(QStringLiteral("{%1}").arg(QLatin1String(record.word)));
    }
    return all;
}

} // namespace BatchJob
