// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartStage.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// Parts that other versions of the program or of its libraries make than those that have made the plan.
class tst_CliPartVersions : public QObject, private PartStage
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void planNamesThem();
    void difference_data();
    void difference();
    void sameVersions();
    void strict();
    void eachPictureKeepsItsOwn();
    void nothingMadeNothingToSay();

private:
    QByteArray VersionOf(const QString& library) const;
    void PretendOther(const QString& library) const;
    QStringList KindsIn(const QString& report) const;
};

void tst_CliPartVersions::init()
{
    Reset();
    QCOMPARE(Split().exitCode, 0);
}

QByteArray tst_CliPartVersions::VersionOf(const QString& library) const
{
    const QByteArray header = Content(QStringLiteral("job.plan")).split('\n').value(1);
    const QJsonObject makers = QJsonDocument::fromJson(header).object().value(QStringLiteral("makers")).toObject();
    return makers.value(library).toString().toUtf8();
}

/// The plan says that it was made with another version of `library`.
void tst_CliPartVersions::PretendOther(const QString& library) const
{
    const QByteArray start = '"' + library.toUtf8() + "\":\"";
    EditHeader(start, start + "0.");
}

/// The kinds of warnings of each written picture, in the report's order.
QStringList tst_CliPartVersions::KindsIn(const QString& report) const
{
    QStringList kinds;
    const QJsonArray entries = QJsonDocument::fromJson(Content(report)).array();
    for (const QJsonValue entry : entries) {
        QStringList ofOne;
        const QJsonArray warnings = entry.toObject().value(QStringLiteral("warnings")).toArray();
        for (const QJsonValue warning : warnings) {
            ofOne.append(warning.toObject().value(QStringLiteral("kind")).toString());
        }
        if (entry.toObject().value(QStringLiteral("result")) == QLatin1String("written")) {
            kinds.append(ofOne.join(QLatin1Char('+')));
        }
    }
    return kinds;
}

void tst_CliPartVersions::planNamesThem()
{
    for (const char* const library : {"velkora-batch", "Qt", "pictures", "libvips", "libtiff", "libheif", "aom",
                                      "libde265", "libjxl", "openjpeg", "libraw", "lcms2",
#ifdef Q_OS_UNIX // On Windows they are parts of libvips, and HEVC has no encoder.
                                      "libjpeg", "libpng", "libwebp", "x265", "pango"
#endif
         }) {
        QVERIFY2(!VersionOf(QString::fromLatin1(library)).isEmpty(), library);
    }
    const CliRun run = RunPart(1, QStringLiteral("--same-versions --report part.json"));
    QVERIFY2(run.exitCode == 0, run.err);
    QCOMPARE(KindsIn(QStringLiteral("part.json")), QVector<QString>(6, QString()).toList());
}

void tst_CliPartVersions::difference_data()
{
    QTest::addColumn<QString>("library");
    for (const char* const library : {"velkora-batch", "pictures", "libjxl", "aom"}) {
        QTest::newRow(library) << QString::fromLatin1(library);
    }
}

/// Only what differs is named: on standard error, in the part's report and in that of all parts.
void tst_CliPartVersions::difference()
{
    QFETCH(QString, library);
    const QString here = library + QLatin1Char(' ') + QString::fromUtf8(VersionOf(library));
    PretendOther(library);
    const QString there = library + QLatin1Char(' ') + QString::fromUtf8(VersionOf(library));
    const QString text = QStringLiteral("made with %1, but the plan with %2").arg(here, there);
    const CliRun run = RunPart(1, QStringLiteral("--report part.csv"));
    QVERIFY2(run.exitCode == 0, run.err);
    QVERIFY2(run.Err().contains(QStringLiteral("the plan was made with %1, but here are %2.\n").arg(there, here)),
             run.err);
    const QByteArrayList lines = Content(QStringLiteral("part.csv")).trimmed().split('\n');
    QCOMPARE(lines.size(), 7);
    for (const QByteArray& line : lines.mid(1)) {
        QVERIFY2(line.contains("\"other-versions: " + text.toUtf8() + '"'), line);
    }
    const CliRun collected = Run(QStringLiteral("collect job.plan --report all.json"));
    QVERIFY2(collected.Err().contains(QStringLiteral("part 1 was ") + text + QStringLiteral("; its pictures may")),
             collected.err);
    QCOMPARE(KindsIn(QStringLiteral("all.json")), QVector<QString>(6, QStringLiteral("other-versions")).toList());
    QVERIFY(Content(QStringLiteral("all.json")).contains(text.toUtf8()));
}

void tst_CliPartVersions::sameVersions()
{
    PretendOther(QStringLiteral("openjpeg"));
    const CliRun refused = RunPart(1, QStringLiteral("--same-versions"));
    QCOMPARE(refused.exitCode, 2);
    QVERIFY2(refused.Err().contains(QLatin1String("the plan was made with openjpeg 0.")), refused.err);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
    for (int part = 1; part <= partCount; ++part) {
        QCOMPARE(RunPart(part).exitCode, 0);
    }
    QCOMPARE(Run(QStringLiteral("collect job.plan --same-versions")).exitCode, 1);
    QVERIFY(!NamesLike(QStringLiteral("job.plan")).isEmpty());
    QCOMPARE(Run(QStringLiteral("collect job.plan")).exitCode, 0);
}

void tst_CliPartVersions::strict()
{
    PretendOther(QStringLiteral("libvips"));
    const CliRun run = RunPart(1, QStringLiteral("--strict"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.Err().contains(QLatin1String("made with libvips ")), run.err);
}

/// A part that one version has begun and another has finished: the warning belongs to the pictures of the other one.
void tst_CliPartVersions::eachPictureKeepsItsOwn()
{
    const QByteArray plan = Content(QStringLiteral("job.plan"));
    PretendOther(QStringLiteral("libvips"));
    const QByteArray edited = Content(QStringLiteral("job.plan"));
    QVERIFY(edited != plan);
    QCOMPARE(RunPart(1).exitCode, 0);
    // Pictures of the same part and of this plan, as another machine has made them.
    const QStringList journals = NamesLike(QStringLiteral("job.plan-*.journal"));
    QCOMPARE(journals.size(), 1);
    QByteArray journal = Content(journals.first());
    const QByteArray library = "\"libvips\":\"";
    QCOMPARE(journal.count(library), 1);
    Write(journals.first(), journal.replace(library, library + "0."));
    QVERIFY(QFile::remove(Path(QStringLiteral("out/1.jpg"))));
    QVERIFY(QFile::remove(Path(QStringLiteral("out/4.jpg"))));
    const CliRun again = RunPart(1, QStringLiteral("--report part.json"));
    QVERIFY2(again.exitCode == 0, again.err);
    const QString other = QStringLiteral("other-versions");
    const QStringList expected{other, QString(), QString(), other, QString(), QString()};
    QCOMPARE(KindsIn(QStringLiteral("part.json")), expected);
    Run(QStringLiteral("collect job.plan --report all.json"));
    QCOMPARE(KindsIn(QStringLiteral("all.json")), expected);
}

void tst_CliPartVersions::nothingMadeNothingToSay()
{
    QCOMPARE(RunPart(1).exitCode, 0);
    const QStringList before = NamesLike(QStringLiteral("job.plan-*.journal"));
    QCOMPARE(RunPart(1).exitCode, 0);
    for (const QString& name : NamesLike(QStringLiteral("job.plan-*.journal"))) {
        if (!before.contains(name)) {
            Write(name, Content(name).replace("\"libvips\":\"", "\"libvips\":\"0."));
        }
    }
    const CliRun collected = Run(QStringLiteral("collect job.plan"));
    QVERIFY2(!collected.Err().contains(QLatin1String("was made with")), collected.err);
}

QTEST_GUILESS_MAIN(tst_CliPartVersions)
#include "tst_clipartversions.moc"
