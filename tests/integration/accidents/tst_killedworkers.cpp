// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AccidentStage.h"
#include "PictureFiles.h"
#include "ProcessEnd.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

/// A worker that somebody kills in the middle of a picture costs that picture.
class tst_KilledWorkers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondWorkerIsKilled();
};

void tst_KilledWorkers::secondWorkerIsKilled()
{
    AccidentStage stage;
    constexpr int pictures = 4;
    for (int i = 0; i < pictures; ++i) {
        PictureFiles::WriteNoise(stage.Path(QStringLiteral("in/%1.jpg").arg(i)), 1600, 1200);
    }
    stage.Start({QStringLiteral("run"), stage.Path(QStringLiteral("in")), QStringLiteral("-o"),
                 stage.Path(QStringLiteral("out")), QStringLiteral("--format=png"),
                 QStringLiteral("--effect=blur:sigma=3"), QStringLiteral("--workers=2"),
                 QStringLiteral("--on-processing-error=skip")});
    const auto unfinished = [&] { return stage.Names(QStringLiteral("out")).filter(QStringLiteral(".tmp")).size(); };
    QVERIFY2(QTest::qWaitFor([&] { return unfinished() == 2; }, 60'000),
             qPrintable(stage.Names(QStringLiteral("out")).join(QLatin1Char(' '))));
    const QList<qint64> workers = stage.Workers();
    QCOMPARE(workers.size(), 2);
    KillProcess(workers.at(1));
    QVERIFY2(stage.End() == 0, stage.Err() + stage.Out());
    const QJsonObject end = QJsonDocument::fromJson(stage.Out().trimmed().split('\n').last()).object();
    QCOMPARE(end.value(QStringLiteral("event")).toString(), QStringLiteral("end"));
    QCOMPARE(end.value(QStringLiteral("written")).toInt(), pictures - 1);
    QCOMPARE(stage.Out().count("\"event\":\"failed\"") + stage.Out().count("\"event\":\"skipped\""), 1);
    QVERIFY2(stage.Err().contains(": the worker ended"), stage.Err().constData());
    QCOMPARE(stage.Names(QStringLiteral("out")).filter(QRegularExpression(QStringLiteral("\\A[0-3]\\.png\\z"))).size(),
             pictures - 1);
    QCOMPARE(stage.Names(QStringLiteral("out")).size(), pictures - 1);
    QCOMPARE(stage.Names(QStringLiteral("tmp")), QStringList());
}

QTEST_GUILESS_MAIN(tst_KilledWorkers)
#include "tst_killedworkers.moc"
