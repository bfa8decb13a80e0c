// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Texts for people in their language. Files, reports and JSON stay English; so do option names and words, and numbers
/// are written in the same way everywhere. All functions belong to the main thread.
namespace BatchHost {

/// The languages that an environment asks for, best first, such as "de". `locale` is the first of LC_ALL, LC_MESSAGES
/// and LANG that is not empty, `languages` is LANGUAGE. The locales C and POSIX ask for none, whatever LANGUAGE says.
QStringList WantedLanguages(const QByteArray& locale, const QByteArray& languages);

/// Texts come in the first of the user's languages that there is a catalogue for; English needs none. Must be called
/// before the process changes its locale.
void UseLanguageOfUser();

/// Texts come in `language`, such as "de"; in English if there is no catalogue for it.
void UseLanguage(const QString& language);

/// A text that is made where it is shown.
struct Messages
{
    /// `english` in the user's language, with its placeholders.
    static QString tr(const char* english);

    /// `text` itself, marked for the catalogues: of a table whose texts are shown by tr().
    static constexpr const char* Marked(const char* text) { return text; }
};

/// A text that was made elsewhere, as `BatchJob::Phrase`, in the user's language. Its arguments are filled in; what is
/// not known stays as it is.
QString Translated(const QString& english);

} // namespace BatchHost
