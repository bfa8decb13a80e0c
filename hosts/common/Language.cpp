// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Language.h"

#include "Catalogue.h"

#include <QFile>
#include <QLocale>

#include <memory>

/// The catalogues are in a static library, where nothing else registers them. Qt wants this outside of namespaces.
static void RegisterCatalogues()
{
    Q_INIT_RESOURCE(catalogues);
}

namespace BatchHost {

namespace {

const QString sourceLanguage = QStringLiteral("en");

/// None for English. It is read when the first text is shown.
struct Choice
{
    QString language = sourceLanguage;
    std::unique_ptr<Catalogue> catalogue;
};

Choice& TheChoice()
{
    static Choice choice;
    return choice;
}

/// The catalogue of the product, then that of the library.
QStringList FilesOf(const QString& language)
{
    return {QStringLiteral(":/translations/velkora_%1.ts").arg(language),
            QStringLiteral(":/translations/batchcore_%1.ts").arg(language)};
}

bool HasCatalogue(const QString& language)
{
    RegisterCatalogues();
    return QFile::exists(FilesOf(language).first());
}

const Catalogue* TheCatalogue()
{
    Choice& choice = TheChoice();
    if (!choice.catalogue && choice.language != sourceLanguage) {
        choice.catalogue = std::make_unique<Catalogue>();
        for (const QString& path : FilesOf(choice.language)) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly)) {
                choice.catalogue->Add(file);
            }
        }
    }
    return choice.catalogue.get();
}

/// "de" of "de_AT.UTF-8@euro" and of "de-AT".
QString LanguageOf(const QByteArray& locale)
{
    QString text = QString::fromLatin1(locale).toLower();
    for (const char end : {'.', '@', '_', '-'}) {
        text = text.section(QLatin1Char(end), 0, 0);
    }
    return text;
}

bool IsPlain(const QByteArray& locale)
{
    const QString language = LanguageOf(locale);
    return language == QLatin1String("c") || language == QLatin1String("posix");
}

QByteArray LocaleOfEnvironment()
{
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray locale = qgetenv(name);
        if (!locale.isEmpty()) {
            return locale;
        }
    }
    return {};
}

} // namespace

QStringList WantedLanguages(const QByteArray& locale, const QByteArray& languages)
{
    // C.UTF-8 says how bytes are read and nothing of languages.
    if (IsPlain(locale) && !locale.contains('.')) {
        return {};
    }
    QStringList wanted;
    for (const QByteArray& language : languages.split(':')) {
        if (!language.isEmpty()) {
            wanted.append(LanguageOf(language));
        }
    }
    if (wanted.isEmpty() && !locale.isEmpty() && !IsPlain(locale)) {
        wanted.append(LanguageOf(locale));
    }
    return wanted;
}

void UseLanguageOfUser()
{
    const QByteArray locale = LocaleOfEnvironment();
    const QByteArray languages = qgetenv("LANGUAGE");
    QStringList wanted = WantedLanguages(locale, languages);
    if (locale.isEmpty() && languages.isEmpty()) {
        // Systems that keep the language elsewhere. Not that of numbers and dates, which may be another.
        for (const QString& language : QLocale::system().uiLanguages()) {
            wanted.append(LanguageOf(language.toLatin1()));
        }
    }
    for (const QString& language : wanted) {
        if (language == sourceLanguage || HasCatalogue(language)) {
            UseLanguage(language);
            return;
        }
    }
    UseLanguage(sourceLanguage);
}

void UseLanguage(const QString& language)
{
    TheChoice() = {HasCatalogue(language) ? language : sourceLanguage, nullptr};
}

QString Messages::tr(const char* english)
{
    const QString text = QString::fromUtf8(english);
    const Catalogue* const catalogue = TheCatalogue();
    return catalogue ? catalogue->Exact(text) : text;
}

QString Translated(const QString& english)
{
    const Catalogue* const catalogue = TheCatalogue();
    return catalogue ? catalogue->Filled(english) : english;
}

} // namespace BatchHost
