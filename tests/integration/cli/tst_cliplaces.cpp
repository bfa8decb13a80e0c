// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"

#include <QDateTime>
#include <QImage>
#include <QtTest>

/// Where results go and what they are called where the inputs or the job leave something open, and that the help says
/// so.
class tst_CliPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesTimeStandsForCaptureTime_data();
    void filesTimeStandsForCaptureTime();
    void helpTellsTheFallback();
    void relativeOutputsStartWhereTheCommandIsGiven();
    void jobsKeepWholePaths();
    void relativeOutputsInJobsStartWhereTheyRun();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    CliRun Run(const QStringList& arguments, const QString& folder = QString()) const
    {
        return CliRun::Of(arguments, Path(folder));
    }

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliPlaces::init()
{
    root = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("elsewhere")));
    QImage picture(16, 12, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(Path(QStringLiteral("a.png")))); // It says nothing of a time.
    QFile file(Path(QStringLiteral("a.png")));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2019, 3, 4), QTime(5, 6, 7)), QFileDevice::FileModificationTime));
}

void tst_CliPlaces::filesTimeStandsForCaptureTime_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("date") << QStringList{QStringLiteral("--name"), QStringLiteral("date")}
                          << QStringLiteral("out/20190304.png");
    QTest::newRow("time") << QStringList{QStringLiteral("--name"), QStringLiteral("time")}
                          << QStringLiteral("out/050607.png");
    QTest::newRow("folders") << QStringList{QStringLiteral("--structure"), QStringLiteral("date")}
                             << QStringLiteral("out/2019/2019-03-04/a.png");
}

void tst_CliPlaces::filesTimeStandsForCaptureTime()
{
    QFETCH(QStringList, options);
    QFETCH(QString, wanted);
    const CliRun run = Run(QStringList{QStringLiteral("run"), QStringLiteral("a.png"), QStringLiteral("-oout"),
                                       QStringLiteral("--settings"), Path(QStringLiteral("settings"))} +
                           options);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(QFile::exists(Path(wanted)), run.err.constData());
}

void tst_CliPlaces::helpTellsTheFallback()
{
    const QString help = QString::fromUtf8(Run({QStringLiteral("help"), QStringLiteral("run")}).out).simplified();
    QVERIFY2(help.contains(QStringLiteral("date, by capture date, or that of the file where a picture has none")),
             qPrintable(help));
    QVERIFY2(
        help.contains(QStringLiteral("date and time, those of the capture, or of the file where a picture has none")),
        qPrintable(help));
    QVERIFY2(help.contains(QStringLiteral("a relative one starts at the current folder")), qPrintable(help));
}

void tst_CliPlaces::relativeOutputsStartWhereTheCommandIsGiven()
{
    const CliRun run =
        Run({QStringLiteral("plan"), QStringLiteral("../a.png"), QStringLiteral("-o"), QStringLiteral("../out/./x")},
            QStringLiteral("elsewhere"));
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(QString::fromUtf8(run.out).contains(QStringLiteral("/out/x/a.png")), run.out.constData());
    QVERIFY2(!run.out.contains("elsewhere"), run.out.constData());
}

void tst_CliPlaces::jobsKeepWholePaths()
{
    QCOMPARE(
        Run({QStringLiteral("create"), QStringLiteral("job.xml"), QStringLiteral("a.png"), QStringLiteral("-oout")})
            .exitCode,
        0);
    const CliRun run = Run({QStringLiteral("plan"), QStringLiteral("../job.xml")}, QStringLiteral("elsewhere"));
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(QString::fromUtf8(run.out).contains(QStringLiteral("/out/a.png")), run.out.constData());
    QVERIFY2(!run.out.contains("elsewhere"), run.out.constData());
}

/// Such a job was written by another program. Where its results go must not depend on who runs it where.
void tst_CliPlaces::relativeOutputsInJobsStartWhereTheyRun()
{
    const CliRun created =
        Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("a.png"), QStringLiteral("-oout")});
    QFile job(Path(QStringLiteral("job.xml")));
    QVERIFY(job.open(QIODevice::WriteOnly));
    QString text = QString::fromUtf8(created.out);
    text.replace(QRegularExpression(QStringLiteral("<folder fileName=\"[^\"]*\"")),
                 QStringLiteral("<folder fileName=\"blog\""));
    job.write(text.toUtf8());
    job.close();
    const CliRun run = Run({QStringLiteral("run"), QStringLiteral("../job.xml")}, QStringLiteral("elsewhere"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY(QFile::exists(Path(QStringLiteral("elsewhere/blog/a.png"))));
    QVERIFY(!QFile::exists(Path(QStringLiteral("blog"))));
    QCOMPARE(Run({QStringLiteral("plan"), QStringLiteral("job.xml"), QStringLiteral("-oout")}).exitCode, 0);
}

QTEST_GUILESS_MAIN(tst_CliPlaces)
#include "tst_cliplaces.moc"
