// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "PictureFiles.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <optional>

/// What the real command says in other languages, and what no language changes.
class tst_CliLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void messagesAreTranslated_data();
    void messagesAreTranslated();
    void errorsAreTranslated_data() { languages(); }
    void errorsAreTranslated();
    void eventsAndReportsNeverChange_data();
    void eventsAndReportsNeverChange();
    void jobsNeverChange_data() { languages(); }
    void jobsNeverChange();
    void plansAreTranslatedButNotTheirJson();
    void localesChoose_data();
    void localesChoose();

private:
    static void languages();
    QProcessEnvironment Environment() const;

    /// Into an output folder that is not there yet.
    CliRun Run(const QString& arguments, const QByteArray& language) const;
    QStringList Results() const;

    std::optional<QTemporaryDir> root;
};

namespace {

/// `text` without what differs from run to run.
QByteArray WithoutTimes(QByteArray text)
{
    const QRegularExpression times(QStringLiteral(
        "\"[a-zA-Z]*[sS]econds\": ?[0-9.]+|[0-9.]+ seconds|[0-9.]*,?\"?20\\d\\d-\\d\\d-\\d\\dT[0-9:.]+Z"));
    return QString::fromUtf8(text).remove(times).toUtf8();
}

QByteArrayList SortedLines(const QByteArray& text)
{
    QByteArrayList lines = WithoutTimes(text).split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
}

} // namespace

void tst_CliLanguage::languages()
{
    QTest::addColumn<QByteArray>("language");

    for (const char* const language : {"de", "es", "fr", "ja"}) {
        QTest::newRow(language) << QByteArray(language);
    }
}

/// A whole picture, one that is cut off, and a file that is no picture.
void tst_CliLanguage::initTestCase()
{
    root.emplace();
    PictureFiles::WriteJpeg(root->filePath(QStringLiteral("photos/a.jpg")));
    PictureFiles::WriteTruncated(root->filePath(QStringLiteral("photos/cut.jpg")));
    QFile other(root->filePath(QStringLiteral("photos/other.jpg")));
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write("no picture") > 0);
}

QProcessEnvironment tst_CliLanguage::Environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), root->path());
    environment.insert(QStringLiteral("TMPDIR"), root->path());
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE", "XDG_CONFIG_HOME"}) {
        environment.remove(QString::fromLatin1(name));
    }
    return environment;
}

CliRun tst_CliLanguage::Run(const QString& arguments, const QByteArray& language) const
{
    QProcessEnvironment environment = Environment();
    environment.insert(QStringLiteral("LANGUAGE"), QString::fromLatin1(language));
    QDir(root->filePath(QStringLiteral("out"))).removeRecursively();
    return CliRun::Of(arguments.split(QLatin1Char(' ')), root->path(), environment);
}

QStringList tst_CliLanguage::Results() const
{
    return QDir(root->filePath(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden);
}

void tst_CliLanguage::messagesAreTranslated_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("failed");
    QTest::addColumn<QString>("unknown");
    QTest::addColumn<QString>("counted");

    const auto row = [](const char* language, const char* failed, const char* unknown, const char* counted) {
        QTest::newRow(language) << QByteArray(language) << QString::fromUtf8(failed) << QString::fromUtf8(unknown)
                                << QString::fromUtf8(counted);
    };
    row("en", "failed ", "no decoder knows this kind of file", "Written             1  to ");
    row("de", "fehlgeschlagen ", "kein Decoder kennt diese Art von Datei", "Geschrieben             1  nach ");
    row("es", "error ", "ningún decodificador conoce este tipo de archivo", "Escritas            1  en ");
    row("fr", "échec ", "aucun décodeur ne connaît ce type de fichier", "Écrites             1  vers ");
    row("ja", "失敗 ", "この種類のファイルを読めるデコーダーがありません", "書き出し            1  → ");
    row("it", "failed ", "no decoder knows this kind of file", "Written             1  to ");
    row("it:de", "fehlgeschlagen ", "kein Decoder kennt diese Art von Datei", "Geschrieben             1  nach ");
    row("en:de", "failed ", "no decoder knows this kind of file", "Written             1  to ");
}

void tst_CliLanguage::messagesAreTranslated()
{
    QFETCH(QByteArray, language);
    QFETCH(QString, failed);
    QFETCH(QString, unknown);
    QFETCH(QString, counted);

    const CliRun run = Run(QStringLiteral("run photos --workers 1 -o out"), language);
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Results(), QStringList{QStringLiteral("a.jpg")});
    const QString file = root->filePath(QStringLiteral("photos/other.jpg"));
    QVERIFY2(run.Err().contains(failed + file + QStringLiteral(": ") + unknown), run.err.constData());
    QVERIFY2(run.Err().contains(counted), run.err.constData());
}

void tst_CliLanguage::errorsAreTranslated()
{
    QFETCH(QByteArray, language);

    const CliRun english = Run(QStringLiteral("run nowhere -o out"), "en");
    const CliRun run = Run(QStringLiteral("run nowhere -o out"), language);
    QCOMPARE(run.exitCode, english.exitCode);
    const QString path = root->filePath(QStringLiteral("nowhere"));
    QVERIFY2(english.Err().contains(path + QStringLiteral(" does not exist.")), english.err.constData());
    QVERIFY2(run.Err().contains(path) && !run.Err().contains(QStringLiteral("does not exist")), run.err.constData());
}

void tst_CliLanguage::eventsAndReportsNeverChange_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("report");

    QTest::newRow("de") << QByteArray("de") << QStringLiteral("report.csv");
    QTest::newRow("es") << QByteArray("es") << QStringLiteral("report.json");
    QTest::newRow("fr") << QByteArray("fr") << QStringLiteral("report.csv");
    QTest::newRow("ja") << QByteArray("ja") << QStringLiteral("report.json");
}

void tst_CliLanguage::eventsAndReportsNeverChange()
{
    QFETCH(QByteArray, language);
    QFETCH(QString, report);

    const auto outcome = [&](const QByteArray& ofLanguage) {
        const CliRun run = Run(QStringLiteral("run photos --json --workers 1 -o out --report ") + report, ofLanguage);
        QFile file(root->filePath(report));
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        return SortedLines(run.out + text + QByteArray::number(run.exitCode));
    };
    static QHash<QString, QByteArrayList> english;
    if (!english.contains(report)) {
        english.insert(report, outcome("en"));
    }
    QVERIFY(english.value(report).join().count("no decoder knows this kind of file") >= 3);
    QCOMPARE(outcome(language), english.value(report));
}

/// The default name of results among them, which the library would translate.
void tst_CliLanguage::jobsNeverChange()
{
    QFETCH(QByteArray, language);

    const QString arguments = QStringLiteral("create - photos -o out --size 50.5%");
    QCOMPARE(Run(arguments, language).out, Run(arguments, "en").out);
    QVERIFY(Run(arguments, "en").out.contains("50.5"));
}

void tst_CliLanguage::plansAreTranslatedButNotTheirJson()
{
    QCOMPARE(Run(QStringLiteral("plan photos --json -o out"), "de").out,
             Run(QStringLiteral("plan photos --json -o out"), "en").out);
}

void tst_CliLanguage::localesChoose_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("word");

    const QString written = QStringLiteral("Written");
    const QString geschrieben = QStringLiteral("Geschrieben");
    QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("de") << written;
    QTest::newRow("POSIX") << QStringLiteral("POSIX") << QStringLiteral("de") << written;
    QTest::newRow("C.UTF-8") << QStringLiteral("C.UTF-8") << QString() << written;
    QTest::newRow("a locale without a catalogue") << QStringLiteral("it_IT.UTF-8") << QString() << written;
    // Many systems do not have it, but its name is all that is needed.
    QTest::newRow("German") << QStringLiteral("de_DE.UTF-8") << QString() << geschrieben;
    QTest::newRow("German in another encoding") << QStringLiteral("de_DE") << QString() << geschrieben;
}

void tst_CliLanguage::localesChoose()
{
    QFETCH(QString, locale);
    QFETCH(QString, language);
    QFETCH(QString, word);

    QProcessEnvironment environment = Environment();
    environment.insert(QStringLiteral("LC_ALL"), locale);
    environment.insert(QStringLiteral("LANGUAGE"), language);
    const CliRun run = CliRun::Of({QStringLiteral("run"), QStringLiteral("photos"), QStringLiteral("--workers"),
                                   QStringLiteral("1"), QStringLiteral("-o"), QStringLiteral("out")},
                                  root->path(), environment);
    QVERIFY2(run.Err().contains(word), run.err.constData());
}

QTEST_GUILESS_MAIN(tst_CliLanguage)
#include "tst_clilanguage.moc"
