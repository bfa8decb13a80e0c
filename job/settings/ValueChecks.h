// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/JobValues.h"
#include "job/values/Phrase.h"

#include <QString>
#include <QStringList>

#include <array>

namespace BatchJob {

/// Checks one value after the other and keeps the error of the first that is refused. An error names the field, its
/// value and what is allowed.
class ValueChecks
{
public:
    /// The value of one of `words`.
    template<std::size_t count>
    void OneOf(const char* field, int value, const std::array<Word, count>& words)
    {
        if (FindWord(words, value)) {
            return;
        }
        QStringList allowed;
        for (const BatchJob::Word& word : words) {
            allowed.append(QStringLiteral("%1 (%2)").arg(word.value).arg(QLatin1String(word.word)));
        }
        Refuse(field, QString::number(value), Phrase::English("one of %1").arg(allowed.join(QStringLiteral(", "))));
    }

    void Range(const char* field, int value, int minimum, int maximum);

    /// From 0 to 1.
    void Opacity(const char* field, double value);

    /// Refuses a field that none of the checks above fits.
    void Refuse(const char* field, const QString& value, const QString& allowed);

    /// The same with an error that is a whole sentence.
    void Refuse(const QString& sentence);

    bool IsAccepted() const { return error.isEmpty(); }

    /// Empty when nothing is refused.
    const QString& Error() const { return error; }

private:
    QString error;
};

/// `text` in quotes, for errors.
QString Quoted(const QString& text);

} // namespace BatchJob
