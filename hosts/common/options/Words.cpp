// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Words.h"

#include "hosts/common/Language.h"
#include "job/values/Phrase.h"

namespace BatchHost {

QString NearestHint(const QString& text, const QStringList& words)
{
    const QString nearest = BatchJob::NearestWord(text, words);
    return nearest.isEmpty() ? QString() : BatchJob::Phrase::English("; did you mean \"%1\"?").arg(nearest);
}

QString WithFullStop(const QString& text)
{
    const QString ends = QStringLiteral("?.\uFF1F\u3002");
    return ends.contains(text.right(1)) ? text : Messages::tr("%1.").arg(text);
}

RequestError NoSuchWord(const QString& text, const QStringList& words)
{
    return {BatchJob::Phrase::English("\"%1\" is not one of %2").arg(text, words.join(QStringLiteral(", "))) +
            NearestHint(text, words)};
}

} // namespace BatchHost
