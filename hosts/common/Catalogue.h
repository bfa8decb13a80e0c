// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

class QIODevice;

namespace BatchHost {

/// The texts of one language, from translation sources (.ts): texts as they are written in the code, and texts whose
/// arguments are filled in already, as servers and exceptions bring them.
class Catalogue
{
public:
    /// Adds the finished texts of `source`. False when it is not a translation source; what was read before its fault
    /// counts.
    bool Add(QIODevice& source);

    /// `english` in this language if the code has exactly this text, with its placeholders; otherwise as it is.
    QString Exact(const QString& english) const;

    /// `english`, whose arguments are filled in, in this language. Parts that are not known stay as they are, such as
    /// the messages of libraries, and so do paths and what is quoted.
    QString Filled(const QString& english) const;

private:
    /// A text with arguments.
    struct Pattern
    {
        QStringList literals; ///< what stands around the arguments, one more than there are arguments
        QVector<int> numbers; ///< of the arguments, 1 to 9, in the order of the English text
        QString translation;

        int Length() const;
        bool IsBetween(int argument, char before, char after) const;
    };

    void AddMessage(const QString& context, const QString& source, const QString& translation);
    static Pattern PatternOf(const QString& source, const QString& translation);
    static bool Match(const Pattern& pattern, const QString& text, QStringList& arguments);

    bool FindWhole(const QString& english, QString& found) const;
    QString FilledIn(const Pattern& pattern, const QStringList& arguments) const;
    QString Argument(const QString& text) const;
    bool FindList(const QString& english, QString& found) const;
    int FindPart(const QStringList& parts, int first, const QString& start, QString& found) const;
    QString Rest(const QStringList& parts, int first) const;

    QHash<QString, QString> texts;
    QVector<Pattern> patterns; ///< the longest first
};

} // namespace BatchHost
