// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchMessage.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QDomDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTranslator>
#include <QtTest>

/// The translations that are shipped.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sourcesAreFinished_data() { catalogues(); }
    void sourcesAreFinished();
    void sourcesMatchTheCode();
    void everyTextIsTranslated_data() { languages(); }
    void everyTextIsTranslated();
    void libraryShowsTranslations_data();
    void libraryShowsTranslations();

private:
    static void catalogues();
    static void languages();
};

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString state;

    QString Name() const { return context + QLatin1String(": ") + source; }
};

QVector<Message> Messages(const QString& file)
{
    QFile source(file);
    QDomDocument document;
    if (!source.open(QIODevice::ReadOnly) || !document.setContent(&source)) {
        return {};
    }
    QVector<Message> messages;
    for (QDomElement context = document.documentElement().firstChildElement(QStringLiteral("context"));
         !context.isNull(); context = context.nextSiblingElement(QStringLiteral("context"))) {
        const QString name = context.firstChildElement(QStringLiteral("name")).text();
        for (QDomElement message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
             message = message.nextSiblingElement(QStringLiteral("message"))) {
            const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
            messages.append({name, message.firstChildElement(QStringLiteral("source")).text(), translation.text(),
                             translation.attribute(QStringLiteral("type"))});
        }
    }
    return messages;
}

QString SourceFile(const QString& language)
{
    return QStringLiteral(CATALOGUE_SOURCES "/batchcore_%1.ts").arg(language);
}

/// Those of the library and those of its hosts.
QStringList SourceNames()
{
    return QDir(QStringLiteral(CATALOGUE_SOURCES)).entryList({QStringLiteral("*.ts")}, QDir::Files);
}

/// What stands for arguments, in the order of the digits.
QStringList Placeholders(const QString& text)
{
    QStringList placeholders;
    QRegularExpressionMatchIterator matches = QRegularExpression(QStringLiteral("%[1-9]")).globalMatch(text);
    while (matches.hasNext()) {
        placeholders.append(matches.next().captured());
    }
    placeholders.sort();
    return placeholders;
}

QString CatalogueFile(const QString& language)
{
    return QStringLiteral(CATALOGUES "/batchcore_%1.qm").arg(language);
}

QStringList Names(const QVector<Message>& messages)
{
    QStringList names;
    for (const Message& message : messages) {
        names.append(message.Name());
    }
    names.sort();
    return names;
}

} // namespace

void tst_Translations::languages()
{
    QTest::addColumn<QString>("language");

    for (const char* const language : {"de", "es", "fr", "ja"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void tst_Translations::catalogues()
{
    QTest::addColumn<QString>("name");

    const QStringList names = SourceNames();
    QCOMPARE(names.size(), 8);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_Translations::sourcesAreFinished()
{
    QFETCH(QString, name);

    const QVector<Message> messages = Messages(QStringLiteral(CATALOGUE_SOURCES "/") + name);
    QVERIFY(messages.size() >= 19);
    for (const Message& message : messages) {
        QVERIFY2(message.state.isEmpty() && !message.translation.isEmpty(), qPrintable(message.Name()));
        // A translation ends with a full stop or a colon exactly when its source does.
        QCOMPARE(QStringLiteral(".:\u3002\uFF1A").contains(message.translation.right(1)),
                 QStringLiteral(".:").contains(message.source.right(1)));
        QVERIFY2(Placeholders(message.translation) == Placeholders(message.source), qPrintable(message.Name()));
    }
}

/// The catalogues have exactly the texts that the tools find in the code now.
void tst_Translations::sourcesMatchTheCode()
{
    if (QStringLiteral(LUPDATE).isEmpty()) {
        QSKIP("The tools run on the building machine, whose own tests compare the same files.");
    }

    const QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LUPDATE"), QStringLiteral(LUPDATE));
    QProcess tool;
    tool.setProcessEnvironment(environment);
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(QStringLiteral("bash"), {QStringLiteral(UPDATE_SCRIPT), folder.path()});
    constexpr int patience = 240'000; // ms
    QVERIFY(tool.waitForFinished(patience));
    const QByteArray output = tool.readAll();
    QVERIFY2(tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0, output.constData());
    QVERIFY2(output.isEmpty(), output.constData());
    for (const QString& name : SourceNames()) {
        const QStringList texts = Names(Messages(folder.filePath(name)));
        QVERIFY(!texts.isEmpty());
        QCOMPARE(Names(Messages(QStringLiteral(CATALOGUE_SOURCES "/") + name)), texts);
    }
}

void tst_Translations::everyTextIsTranslated()
{
    QFETCH(QString, language);

    QTranslator translator;
    QVERIFY(translator.load(CatalogueFile(language)));
    const QVector<Message> messages = Messages(SourceFile(language));
    for (const Message& message : messages) {
        QCOMPARE(translator.translate(message.context.toUtf8().constData(), message.source.toUtf8().constData()),
                 message.translation);
    }
}

void tst_Translations::libraryShowsTranslations_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("original");
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("tooLarge");
    QTest::addColumn<QString>("notFound");
    QTest::addColumn<QString>("terminated");

    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("Original") << QStringLiteral("Bild")
                        << QStringLiteral("Das Bild ist zu gro\u00DF.")
                        << QStringLiteral("Warnung! Einige Dateien wurden nicht gefunden und \u00FCbersprungen:")
                        << QStringLiteral("Der Prozess wurde unerwartet beendet.");
    QTest::newRow("es") << QStringLiteral("es") << QStringLiteral("Original") << QStringLiteral("Imagen")
                        << QStringLiteral("La imagen es demasiado grande.")
                        << QStringLiteral("\u00A1Advertencia! Algunos archivos no se han encontrado y se han omitido:")
                        << QStringLiteral("El proceso ha terminado de forma an\u00F3mala.");
    QTest::newRow("fr") << QStringLiteral("fr") << QStringLiteral("Original") << QStringLiteral("Image")
                        << QStringLiteral("L\u2019image est trop grande.")
                        << QStringLiteral("Attention\u202F! Certains fichiers sont introuvables et ont \u00E9t\u00E9 "
                                          "ignor\u00E9s\u00A0:")
                        << QStringLiteral("Le processus s\u2019est termin\u00E9 de fa\u00E7on anormale.");
    QTest::newRow("ja") << QStringLiteral("ja") << QStringLiteral("\u5143\u306E\u5F62\u5F0F")
                        << QStringLiteral("\u753B\u50CF")
                        << QStringLiteral("\u753B\u50CF\u304C\u5927\u304D\u3059\u304E\u307E\u3059\u3002")
                        << QStringLiteral("\u8B66\u544A\uFF1A\u4E00\u90E8\u306E\u30D5\u30A1\u30A4\u30EB\u304C\u898B"
                                          "\u3064\u304B\u3089\u306A\u3044\u305F\u3081\u3001\u30B9\u30AD\u30C3\u30D7"
                                          "\u3055\u308C\u307E\u3057\u305F\uFF1A")
                        << QStringLiteral("\u30D7\u30ED\u30BB\u30B9\u304C\u7570\u5E38\u7D42\u4E86\u3057\u307E\u3057"
                                          "\u305F\u3002");
}

void tst_Translations::libraryShowsTranslations()
{
    QFETCH(QString, language);
    QFETCH(QString, original);
    QFETCH(QString, image);
    QFETCH(QString, tooLarge);
    QFETCH(QString, notFound);
    QFETCH(QString, terminated);

    QTranslator translator;
    QVERIFY(translator.load(CatalogueFile(language)));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(ZTBatchOutputSettings::GetOriginalFormatName(), original);
    QCOMPARE(ZTBatchOutputSettings::GetOriginalFormat(), QStringLiteral("Original"));
    QCOMPARE(ZTBatchMessage::ErrorDescription(ZTBatchMessage::ImageTooLarge), tooLarge);
    QCOMPARE(QCoreApplication::translate("ZTBatchManager", "Abnormal process termination."), terminated);

    ZTBatchDocument document;
    QCOMPARE(document.GetOutputSettings()->GetCustomTemplate(ZTBatchOutputSettings::PartMiddle), image);
    auto* const node = new TreeNode<BatchNodeData>;
    node->data.type = File;
    node->data.fileName = QStringLiteral("/nowhere/a.jpg");
    document.GetInputModel()->InsertBranch(node, QModelIndex());
    QTextBrowser browser;
    document.Serialize(&browser);
    QCOMPARE(browser.document()->firstBlock().text(), notFound);
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
