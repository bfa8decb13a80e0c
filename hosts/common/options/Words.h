// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/RequestError.h"
#include "job/values/JobValues.h"
#include "job/values/ParameterSchema.h"

#include <QStringList>

/// Reads the words of options.
namespace BatchHost {

/// "; did you mean "X"?", or nothing when none of `words` is similar to `text`.
QString NearestHint(const QString& text, const QStringList& words);

/// `text`, in the user's language, with a full stop, unless it has a question mark or a full stop already.
QString WithFullStop(const QString& text);

/// The error of a text that should have been one of `words`.
RequestError NoSuchWord(const QString& text, const QStringList& words);

/// The value whose word is `text`, in any letter case. Throws RequestError when there is none.
template<std::size_t count>
int ValueOf(const std::array<BatchJob::Word, count>& words, const QString& text)
{
    for (const BatchJob::Word& word : words) {
        if (text.compare(QLatin1String(word.word), Qt::CaseInsensitive) == 0) {
            return word.value;
        }
    }
    throw NoSuchWord(text, AllWords(words));
}

} // namespace BatchHost
