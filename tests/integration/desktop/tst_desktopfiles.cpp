// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/formats/FormatCatalog.h"

#include "hosts/common/JobDefaults.h"
#include "hosts/desktop/system/DesktopNames.h"

#include "ZTBatchDocument.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QMimeDatabase>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;

/// The files that make the window a part of the desktop.
class tst_DesktopFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void validatorsAccept_data();
    void validatorsAccept();
    void menuEntryNamesTheProgram();
    void menuEntryIsTranslated_data();
    void menuEntryIsTranslated();
    void everyFormatThatIsReadIsOffered();
    void jobFilesHaveATypeOfTheirOwn();
    void otherXmlIsNoJob();
    void symbolHasEverySize();

private:
    QString Data(const QString& name) const { return QDir(QStringLiteral(DESKTOP_DATA)).filePath(name); }
    QString Entry(const QString& key) const;
    bool WriteFile(const QString& name, const QByteArray& content) const;

    QTemporaryDir folder;
};

void tst_DesktopFiles::initTestCase()
{
    // The type of job files joins those of the system, in a data folder of the test's own.
    const QString packages = folder.filePath(QStringLiteral("mime/packages"));
    QVERIFY(QDir().mkpath(packages));
    QVERIFY(QFile::copy(Data(QStringLiteral("velkora-batch.xml")), packages + QStringLiteral("/velkora-batch.xml")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    QProcess update;
    update.setProcessChannelMode(QProcess::MergedChannels);
    update.start(QStringLiteral("update-mime-database"), {folder.filePath(QStringLiteral("mime"))});
    QVERIFY(update.waitForFinished());
    const QByteArray said = update.readAll();
    QVERIFY2(update.exitStatus() == QProcess::NormalExit && update.exitCode() == 0, said.constData());
    QVERIFY2(said.isEmpty(), said.constData());
}

QString tst_DesktopFiles::Entry(const QString& key) const
{
    QFile file(Data(desktopId + QStringLiteral(".desktop")));
    if (file.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            if (line.startsWith(key + QLatin1Char('='))) {
                return line.mid(key.size() + 1);
            }
        }
    }
    return {};
}

bool tst_DesktopFiles::WriteFile(const QString& name, const QByteArray& content) const
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

void tst_DesktopFiles::validatorsAccept_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("menu entry") << QStringLiteral("desktop-file-validate")
                                << QStringList{Data(desktopId + QStringLiteral(".desktop"))};
    QTest::newRow("AppStream") << QStringLiteral("appstreamcli")
                               << QStringList{QStringLiteral("validate"), QStringLiteral("--no-net"),
                                              QStringLiteral("--pedantic"),
                                              Data(QStringLiteral("example.batchcore.velkorabatch.metainfo.xml"))};
}

void tst_DesktopFiles::validatorsAccept()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QProcess validator;
    validator.setProcessChannelMode(QProcess::MergedChannels);
    validator.start(program, arguments);
    QVERIFY2(validator.waitForFinished(), qPrintable(validator.errorString()));
    const QByteArray said = validator.readAll();
    QVERIFY2(validator.exitStatus() == QProcess::NormalExit && validator.exitCode() == 0, said.constData());
    QVERIFY2(!said.contains("warning") && !said.contains("hint"), said.constData());
}

void tst_DesktopFiles::menuEntryNamesTheProgram()
{
    QCOMPARE(Entry(QStringLiteral("Name")), applicationTitle);
    QCOMPARE(Entry(QStringLiteral("Icon")), desktopId);
    QCOMPARE(Entry(QStringLiteral("StartupWMClass")), desktopId);
    QCOMPARE(Entry(QStringLiteral("Exec")), desktopId + QStringLiteral(" %F"));
}

void tst_DesktopFiles::menuEntryIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"de", "es", "fr", "ja"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void tst_DesktopFiles::menuEntryIsTranslated()
{
    QFETCH(QString, language);
    for (const char* key : {"GenericName", "Comment", "Keywords"}) {
        const QString english = Entry(QString::fromLatin1(key));
        const QString translated = Entry(QStringLiteral("%1[%2]").arg(QString::fromLatin1(key), language));
        QVERIFY2(!translated.isEmpty() && translated != english, key);
    }
    QFile types(Data(QStringLiteral("velkora-batch.xml")));
    QVERIFY(types.open(QIODevice::ReadOnly));
    QVERIFY(types.readAll().contains("<comment xml:lang=\"" + language.toLatin1() + "\">"));
    QFile appStream(Data(QStringLiteral("example.batchcore.velkorabatch.metainfo.xml")));
    QVERIFY(appStream.open(QIODevice::ReadOnly));
    QVERIFY(appStream.readAll().contains("<summary xml:lang=\"" + language.toLatin1() + "\">"));
}

// As far as the system knows a type for the extension that only pictures have.
void tst_DesktopFiles::everyFormatThatIsReadIsOffered()
{
    const QStringList offered = Entry(QStringLiteral("MimeType")).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    const QMimeDatabase types;
    int known = 0;
    for (const QString& extension : BatchJob::ReadableExtensions()) {
        const QMimeType type = types.mimeTypeForFile(QStringLiteral("a.") + extension, QMimeDatabase::MatchExtension);
        if (type.name().startsWith(QLatin1String("image/"))) {
            ++known;
            QVERIFY2(offered.contains(type.name()), qPrintable(extension + QLatin1Char(' ') + type.name()));
        }
    }
    QVERIFY2(known > 30, qPrintable(QString::number(known)));
    for (const QString& name : offered) {
        QVERIFY2(types.mimeTypeForName(name).isValid(), qPrintable(name));
    }
}

void tst_DesktopFiles::jobFilesHaveATypeOfTheirOwn()
{
    const QString wanted = QStringLiteral("application/x-velkora-batch+xml");
    ZTBatchDocument job;
    BatchHost::SetJobDefaults(job);
    const QByteArray text = job.Serialize(nullptr).toUtf8();
    QVERIFY(WriteFile(QStringLiteral("summer.vbatch.xml"), text));
    QVERIFY(WriteFile(QStringLiteral("summer"), text));
    const QMimeDatabase types;
    QCOMPARE(types.mimeTypeForFile(folder.filePath(QStringLiteral("summer.vbatch.xml"))).name(), wanted);
    QCOMPARE(types.mimeTypeForFile(folder.filePath(QStringLiteral("summer"))).name(), wanted);
    QVERIFY(types.mimeTypeForName(wanted).inherits(QStringLiteral("application/xml")));
    QVERIFY(Entry(QStringLiteral("MimeType")).contains(wanted));
}

void tst_DesktopFiles::otherXmlIsNoJob()
{
    QVERIFY(WriteFile(QStringLiteral("other.xml"), "<?xml version=\"1.0\"?>\n<other/>\n"));
    QCOMPARE(QMimeDatabase().mimeTypeForFile(folder.filePath(QStringLiteral("other.xml"))).name(),
             QStringLiteral("application/xml"));
}

void tst_DesktopFiles::symbolHasEverySize()
{
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QImage symbol(Data(QStringLiteral("icons/%1.png").arg(size)));
        QCOMPARE(symbol.size(), QSize(size, size));
        QVERIFY(symbol.hasAlphaChannel());
        QCOMPARE(qAlpha(symbol.pixel(0, 0)), 0);
        QVERIFY(qAlpha(symbol.pixel(size / 2, size / 2)) == 255);
    }
}

QTEST_GUILESS_MAIN(tst_DesktopFiles)
#include "tst_desktopfiles.moc"
