#pragma once

#include "hosts/common/RequestError.h"
#include "job/values/JobValues.h"
#include "job/values/ParameterSchema.h"

#include <QStringList>

/// The words of JobValues.h, read from and written to command lines.
namespace BatchCli {

/// "; did you mean "X"?", or nothing when no word of `words` is near.
QString NearestHint(const QString& text, const QStringList& words);

/// The error of a text that should have been one of `words`.
BatchHost::RequestError NoSuchWord(const QString& text, const QStringList& words);

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

} // namespace BatchCli
