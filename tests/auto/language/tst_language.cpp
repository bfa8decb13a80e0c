// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/Catalogue.h"
#include "hosts/common/Language.h"
#include "hosts/common/PresetTitles.h"
#include "hosts/common/SystemMessages.h"

#include "server/protocol/TaskFailure.h"

#include "ZTBatchMessage.h"

#include <QBuffer>
#include <QDomDocument>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

#include <clocale>
#include <cstring>

using namespace BatchHost;

/// Texts for people in their language: which language that is, and what becomes of texts whose arguments are filled in.
class tst_Language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { UseLanguage(QStringLiteral("en")); }
    void environmentsChoose_data();
    void environmentsChoose();
    void filledTextsAreFound_data() { languages(); }
    void filledTextsAreFound();
    void reasonsAreTranslated_data();
    void reasonsAreTranslated();
    void namesAndUnknownTextsStay_data();
    void namesAndUnknownTextsStay();
    void reportsOfWorkersAreTranslated();
    void libraryTextsAreTranslated();
    void messagesOfTheSystemAreKnown();
    void messagesOfLibrariesAreKnown_data();
    void messagesOfLibrariesAreKnown();
    void titlesOfPresetsAreKnown();
    void englishStaysAsItIs();
    void otherLanguagesAreEnglish();
    void brokenCataloguesAreReported();

private:
    static void languages();
};

namespace {

struct Entry
{
    QString context;
    QString source;
    QString translation;
};

QVector<Entry> EntriesOf(const QString& language)
{
    QFile file(QStringLiteral(CATALOGUE_SOURCES "/velkora_%1.ts").arg(language));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        return {};
    }
    QVector<Entry> entries;
    const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QDomElement context = message.parentNode().firstChildElement(QStringLiteral("name"));
        entries.append({context.text(), message.firstChildElement(QStringLiteral("source")).text(),
                        message.firstChildElement(QStringLiteral("translation")).text()});
    }
    return entries;
}

/// With words in place of %1, %2, ... that no text has.
QString WithArguments(QString text)
{
    for (int i = 1; i <= 9; ++i) {
        text.replace(QStringLiteral("%%1").arg(i), QStringLiteral("<%1>").arg(i));
    }
    return text;
}

} // namespace

void tst_Language::languages()
{
    QTest::addColumn<QString>("language");

    for (const char* const language : {"de", "es", "fr", "ja"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void tst_Language::environmentsChoose_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("languages");
    QTest::addColumn<QStringList>("wanted");

    const auto row = [](const char* name, const char* locale, const char* languages, const QString& wanted) {
        QTest::newRow(name) << QByteArray(locale) << QByteArray(languages)
                            << wanted.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    row("nothing is set", "", "", {});
    row("a locale", "de_AT.UTF-8", "", QStringLiteral("de"));
    row("a locale with a variant", "de_DE@euro", "", QStringLiteral("de"));
    row("a language alone", "fr", "", QStringLiteral("fr"));
    row("LANGUAGE stands above the locale", "de_DE.UTF-8", "ja:fr_FR", QStringLiteral("ja fr"));
    row("LANGUAGE without a locale", "", "es", QStringLiteral("es"));
    row("C means English", "C", "de", {});
    row("POSIX means English", "POSIX", "de", {});
    row("C.UTF-8 says nothing of the language", "C.UTF-8", "de", QStringLiteral("de"));
    row("C.UTF-8 alone", "C.UTF-8", "", {});
    row("empty languages", "fr_FR", "::", QStringLiteral("fr"));
}

void tst_Language::environmentsChoose()
{
    QFETCH(QByteArray, locale);
    QFETCH(QByteArray, languages);
    QFETCH(QStringList, wanted);

    QCOMPARE(WantedLanguages(locale, languages), wanted);
}

/// Each text is recognized by itself, and none is taken for another one.
void tst_Language::filledTextsAreFound()
{
    QFETCH(QString, language);

    UseLanguage(language);
    const QVector<Entry> entries = EntriesOf(language);
    QVERIFY(entries.size() > 300);
    for (const Entry& entry : entries) {
        if (entry.context == QLatin1String("BatchJob::Phrase")) {
            QCOMPARE(Translated(WithArguments(entry.source)), WithArguments(entry.translation));
        } else {
            // Another context is a marking function that the tools could not resolve: an #include is missing there.
            QCOMPARE(entry.context, QStringLiteral("BatchHost::Messages"));
        }
        QCOMPARE(Messages::tr(entry.source.toUtf8().constData()), entry.translation);
    }
}

void tst_Language::reasonsAreTranslated_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");

    const auto row = [](const char* english, const char* german) {
        QTest::newRow(english) << QString::fromUtf8(english) << QString::fromUtf8(german);
    };
    row("the file is empty", "die Datei ist leer");
    row("\"/a/b.jpg\" exists already", "„/a/b.jpg“ existiert bereits");
    row("the file ends after 40 % of the picture", "die Datei endet nach 40 % des Bildes");
    row("the worker ended by signal 11", "der Worker-Prozess wurde durch das Signal 11 beendet");
    row("the worker ended by signal 11; its last output: free(): invalid pointer",
        "der Worker-Prozess wurde durch das Signal 11 beendet; letzte Ausgabe: free(): invalid pointer");
    row("\"quality\" is 300; it must be a whole number from 1 to 100",
        "„quality“ ist 300; erlaubt ist eine ganze Zahl von 1 bis 100");
    row("\"compression\" is lwz; it must be one of none, lzw; did you mean lzw?",
        "„compression“ ist lwz; erlaubt ist eines von none, lzw; meinten Sie lzw?");
    row("\"opacity\" is 300; it must be a number from 0 to 100 (percent)",
        "„opacity“ ist 300; erlaubt ist eine Zahl von 0 bis 100 (Prozent)");
    row("\"unit\" is pixel; it must be one of percent, pixels; did you mean pixels?",
        "„unit“ ist pixel; erlaubt ist eines von percent, pixels; meinten Sie pixels?");
    row("Effect 2, \"blurr\", does not exist; did you mean \"blur\"?",
        "Den Effekt 2, „blurr“, gibt es nicht; meinten Sie „blur“?");
    row("The output folder is \"out\"; it must be an absolute path",
        "Der Ausgabeordner ist \"out\"; erlaubt ist ein absoluter Pfad");
    row("written with a warning: it has 3 pages; only the first is used",
        "mit einer Warnung geschrieben: die Datei hat 3 Seiten; nur die erste wird verwendet");
    row("written with a warning: the result is sRGB instead of CMYK; EXIF cannot be removed from the result",
        "mit einer Warnung geschrieben: das Ergebnis ist sRGB statt CMYK; EXIF kann nicht aus dem Ergebnis entfernt "
        "werden");
    row("the folder /o/x cannot be made: Permission denied",
        "der Ordner /o/x kann nicht angelegt werden: Zugriff verweigert");
    row("--report: the name \"a.txt\" must end with .csv or .json",
        "--report: der Name „a.txt“ muss mit .csv oder .json enden");
    row("--format-option: format JPEG: \"quality\" is 300; it must be a whole number from 1 to 100",
        "--format-option: Format JPEG: \"quality\" ist 300; erlaubt ist eine ganze Zahl von 1 bis 100");
    row("--effect: effect blur: \"sigm\" is not one of sigma; did you mean \"sigma\"?",
        "--effect: Effekt blur: „sigm“ ist keines von sigma; meinten Sie „sigma“?");
    row("--shadow-colour: \"whit\" is not a colour; use #rrggbb or a name; did you mean \"white\"?",
        "--shadow-colour: „whit“ ist keine Farbe; #rrggbb oder einen Namen verwenden; meinten Sie „white“?");
    row("/l.txt, line 3: /a/b.jpg does not exist (and 2 more)",
        "/l.txt, Zeile 3: /a/b.jpg existiert nicht (und 2 weitere)");
    row("0123abcd  2026-01-31 12:00:00  3 of 10 pictures  /a, /b/c.jpg",
        "0123abcd  2026-01-31 12:00:00  3 von 10 Bildern  /a, /b/c.jpg");
    row("written as \"/o/a (2).jpg\" (naming policy)", "als „/o/a (2).jpg“ geschrieben (Regel für Namen)");
}

void tst_Language::reasonsAreTranslated()
{
    QFETCH(QString, english);
    QFETCH(QString, german);

    UseLanguage(QStringLiteral("de"));
    QCOMPARE(Translated(english), german);
}

void tst_Language::namesAndUnknownTextsStay_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");

    const auto row = [](const char* name, const QString& english, const QString& german) {
        QTest::newRow(name) << english << german;
    };
    const auto same = [&row](const char* name, const QString& text) { row(name, text, text); };
    same("empty", {});
    same("a message of a library", QStringLiteral("VipsJpeg: Unsupported marker type 0x12"));
    same("a path alone", QStringLiteral("/photos/a.jpg"));
    same("a text without end", QStringLiteral("the worker ").repeated(100'000));
    same("a word of an option behind a context", QStringLiteral("--unit: pixels"));
    same("a list of unknown texts", QStringLiteral("one thing; another thing"));
    row("a quoted name that is a text", QStringLiteral("\"the file is empty\" exists already"),
        QString::fromUtf8("„the file is empty“ existiert bereits"));
    row("a path that ends as a text", QStringLiteral("/a: it does not exist is not a folder"),
        QString::fromUtf8("/a: it does not exist ist kein Ordner"));
    row("a name with a placeholder", QStringLiteral("\"/a/%1.jpg\" is the result of \"/b/%2.jpg\""),
        QString::fromUtf8("„/a/%1.jpg“ ist das Ergebnis von „/b/%2.jpg“"));
    row("an unknown part", QStringLiteral("the journal /j cannot be used: strange"),
        QString::fromUtf8("das Journal /j kann nicht verwendet werden: strange"));
}

void tst_Language::namesAndUnknownTextsStay()
{
    QFETCH(QString, english);
    QFETCH(QString, german);

    UseLanguage(QStringLiteral("de"));
    QCOMPARE(Translated(english), german);
}

/// The way from the code that makes a text to the one that shows it.
void tst_Language::reportsOfWorkersAreTranslated()
{
    UseLanguage(QStringLiteral("fr"));
    const BatchProtocol::Report hung =
        BatchProtocol::FailureOfEnd(BatchProtocol::WorkerEnd::Hung, {}, BatchProtocol::ServerLimits());
    QVERIFY2(hung.reason.startsWith(QLatin1String("it takes longer")), qPrintable(hung.reason));
    QVERIFY2(Translated(hung.reason).startsWith(QString::fromUtf8("le traitement dépasse la limite de ")),
             qPrintable(Translated(hung.reason)));
}

void tst_Language::libraryTextsAreTranslated()
{
    UseLanguage(QStringLiteral("de"));
    const QString sentence = ZTBatchMessage::ErrorDescription(ZTBatchMessage::ImageTooLarge);
    QCOMPARE(sentence, QStringLiteral("Image too large."));
    QCOMPARE(Translated(sentence), QString::fromUtf8("Das Bild ist zu groß."));
    QCOMPARE(Translated(sentence.chopped(1)), QString::fromUtf8("Das Bild ist zu groß"));
}

void tst_Language::messagesOfTheSystemAreKnown()
{
#ifdef Q_OS_UNIX
    const QByteArray previous = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    for (const SystemMessage& message : systemMessages) {
        QCOMPARE(QString::fromLocal8Bit(std::strerror(message.number)), QString::fromLatin1(message.text));
    }
    std::setlocale(LC_ALL, previous.constData());
#endif
    UseLanguage(QStringLiteral("ja"));
    for (const SystemMessage& message : systemMessages) {
        QVERIFY(Translated(QString::fromLatin1(message.text)) != QString::fromLatin1(message.text));
    }
}

void tst_Language::messagesOfLibrariesAreKnown_data()
{
    QTest::addColumn<QString>("xml");

    for (const char* const xml : {"x", "", "<a>", "<a></b>", "<a/><b/>", "<a b></a>"}) {
        QTest::newRow(xml) << QString::fromLatin1(xml);
    }
}

/// As Qt gives them, and the one about expressions that wildcards can make.
void tst_Language::messagesOfLibrariesAreKnown()
{
    QFETCH(QString, xml);

    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    const QString expression = QRegularExpression(QStringLiteral("[z-a]")).errorString();
    for (const char* const language : {"de", "es", "fr", "ja"}) {
        UseLanguage(QString::fromLatin1(language));
        QVERIFY2(Translated(reader.errorString()) != reader.errorString(), qPrintable(reader.errorString()));
        QVERIFY2(Translated(expression) != expression, qPrintable(expression));
    }
}

void tst_Language::titlesOfPresetsAreKnown()
{
    QStringList known;
    for (const char* const title : presetTitles) {
        known.append(QString::fromLatin1(title));
    }
    UseLanguage(QStringLiteral("es"));
    const QFileInfoList presets = QDir(QStringLiteral(PRESETS)).entryInfoList({QStringLiteral("*.xml")});
    QCOMPARE(presets.size(), known.size());
    for (const QFileInfo& preset : presets) {
        QFile file(preset.filePath());
        QDomDocument document;
        QVERIFY(file.open(QIODevice::ReadOnly) && document.setContent(&file));
        const QString title = document.documentElement().attribute(QStringLiteral("name"));
        QVERIFY2(known.contains(title), qPrintable(title));
        QVERIFY(Translated(title) != title);
    }
}

void tst_Language::englishStaysAsItIs()
{
    for (const Entry& entry : EntriesOf(QStringLiteral("de"))) {
        QCOMPARE(Translated(WithArguments(entry.source)), WithArguments(entry.source));
        QCOMPARE(Messages::tr(entry.source.toUtf8().constData()), entry.source);
    }
}

void tst_Language::otherLanguagesAreEnglish()
{
    for (const char* const language : {"it", "", "../de", "de_DE"}) {
        UseLanguage(QString::fromLatin1(language));
        QCOMPARE(Translated(QStringLiteral("the file is empty")), QStringLiteral("the file is empty"));
    }
}

void tst_Language::brokenCataloguesAreReported()
{
    const auto read = [](const QByteArray& text, Catalogue& catalogue) {
        QBuffer buffer;
        buffer.setData(text);
        return buffer.open(QIODevice::ReadOnly) && catalogue.Add(buffer);
    };
    const QByteArray message = "<context><name>BatchJob::Phrase</name><message><source>yes</source>"
                               "<translation>ja</translation></message></context>";
    Catalogue whole;
    QVERIFY(read("<TS>" + message + "</TS>", whole));
    QCOMPARE(whole.Filled(QStringLiteral("yes")), QStringLiteral("ja"));
    Catalogue cutOff;
    QVERIFY(!read("<TS>" + message + "<context", cutOff));
    QCOMPARE(cutOff.Filled(QStringLiteral("yes")), QStringLiteral("ja"));
    Catalogue other;
    QVERIFY(!read("<html/>", other));
    QVERIFY(!read({}, other));
    QCOMPARE(other.Filled(QStringLiteral("yes")), QStringLiteral("yes"));
}

QTEST_GUILESS_MAIN(tst_Language)
#include "tst_language.moc"
