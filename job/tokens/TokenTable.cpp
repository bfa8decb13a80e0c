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

const TokenRecord& RecordOf(Token token)
{
    return *std::find_if(tokenTable.begin(), tokenTable.end(),
                         [token](const TokenRecord& record) { return record.token == token; });
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
