#pragma once

#include "BatchValues.h"
#include "UsageError.h"

#include <ParameterSchema.h>

#include <QStringList>

/// The words of BatchValues.h, read from and written to command lines.
namespace BatchCli {

template<std::size_t count>
QStringList AllWords(const std::array<BatchValues::Word, count>& words)
{
    QStringList all;
    for (const BatchValues::Word& word : words) {
        all.append(QString::fromLatin1(word.word));
    }
    return all;
}

/// "; did you mean "X"?", or nothing when no word of `words` is near.
QString NearestHint(const QString& text, const QStringList& words);

/// The error of a text that should have been one of `words`.
UsageError NoSuchWord(const QString& text, const QStringList& words);

/// The value whose word is `text`, in any letter case. Throws UsageError when there is none.
template<std::size_t count>
int ValueOf(const std::array<BatchValues::Word, count>& words, const QString& text)
{
    for (const BatchValues::Word& word : words) {
        if (text.compare(QLatin1String(word.word), Qt::CaseInsensitive) == 0) {
            return word.value;
        }
    }
    throw NoSuchWord(text, AllWords(words));
}

/// The word of `value`; its number when a job holds one without meaning.
template<std::size_t count>
QString WordOf(const std::array<BatchValues::Word, count>& words, int value)
{
    const BatchValues::Word* const word = BatchValues::FindWord(words, value);
    return word == nullptr ? QString::number(value) : QString::fromLatin1(word->word);
}

} // namespace BatchCli
