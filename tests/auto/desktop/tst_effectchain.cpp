// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/settings/effects/EffectChain.h"
#include "job/effects/EffectCatalog.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QtTest>

using namespace BatchDesktop;

class tst_EffectChain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesReachTheJob();
    void stepsHaveNames();
    void rowsKeepTheirSelection();
    void aParameterIsOneStepUntilItEnds();
    void aDefaultIsLeftOut();
    void movesOutsideAreRefused();
    void randomChangesCanBeUndone();
};

namespace {

QStringList NamesOf(const EffectChain& chain)
{
    QStringList names;
    for (int row = 0; row < chain.rowCount(); ++row) {
        names.append(chain.At(row).name);
    }
    return names;
}

void AddThree(EffectChain& chain)
{
    for (const char* const name : {"exposure", "blur", "sharpen"}) {
        chain.Add(QString::fromLatin1(name));
    }
}

QStringList Names(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

void ChangeAtRandom(EffectChain& chain, QRandomGenerator& random)
{
    const int count = chain.rowCount();
    const int row = count == 0 ? 0 : random.bounded(count);
    const auto& all = BatchJob::Effects();
    switch (count == 0 ? 0 : random.bounded(6)) {
    case 0:
        chain.Add(all.at(random.bounded(all.size())).id);
        break;
    case 1:
        chain.Duplicate(row);
        break;
    case 2:
        chain.removeRows(row, 1);
        break;
    case 3:
        chain.Move(row, random.bounded(count));
        break;
    case 4:
        chain.setData(chain.index(row), random.bounded(2) == 0 ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
        break;
    default:
        chain.SetParameter(row, QStringLiteral("strength"), random.bounded(100));
    }
}

} // namespace

void tst_EffectChain::changesReachTheJob()
{
    EditedJob job;
    EffectChain chain(job, nullptr);
    const QAbstractItemModelTester tester(&chain, QAbstractItemModelTester::FailureReportingMode::QtTest);
    AddThree(chain);
    QCOMPARE(NamesOf(chain), Names("exposure blur sharpen"));
    QVERIFY(chain.moveRow({}, 0, {}, 3));
    QCOMPARE(NamesOf(chain), Names("blur sharpen exposure"));
    QVERIFY(chain.moveRow({}, 2, {}, 1));
    QCOMPARE(NamesOf(chain), Names("blur exposure sharpen"));
    chain.Duplicate(1);
    QCOMPARE(NamesOf(chain), Names("blur exposure exposure sharpen"));
    QVERIFY(chain.setData(chain.index(1), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(chain.removeRows(0, 1));
    const QVector<Settings::Effect>& effects = job.CurrentSettings().effects;
    QCOMPARE(effects.size(), 3);
    QCOMPARE(effects.at(0).name, QStringLiteral("exposure"));
    QVERIFY(!effects.at(0).isEnabled);
    QVERIFY(effects.at(1).isEnabled);
    QVERIFY(Settings::Of(job.Document()) == job.CurrentSettings());
}

void tst_EffectChain::stepsHaveNames()
{
    EditedJob job;
    EffectChain chain(job, nullptr);
    const auto step = [&job] { return job.History().undoText(); };
    chain.Add(QStringLiteral("white-balance"));
    QCOMPARE(step(), QStringLiteral("Add White balance"));
    chain.setData(chain.index(0), Qt::Unchecked, Qt::CheckStateRole);
    QCOMPARE(step(), QStringLiteral("Switch off White balance"));
    chain.setData(chain.index(0), Qt::Checked, Qt::CheckStateRole);
    QCOMPARE(step(), QStringLiteral("Switch on White balance"));
    chain.Add(QStringLiteral("blur"));
    chain.Move(0, 1);
    QCOMPARE(step(), QStringLiteral("Move White balance"));
    chain.Duplicate(0);
    QCOMPARE(step(), QStringLiteral("Duplicate Blur"));
    chain.removeRows(0, 1);
    QCOMPARE(step(), QStringLiteral("Remove Blur"));
    const QString parameter = BatchJob::FindEffect(QStringLiteral("blur"))->parameters.first().name;
    chain.SetParameter(0, parameter, 1.5);
    QVERIFY(step().startsWith(QStringLiteral("Blur: ")));
    QCOMPARE(job.History().count(), 8);
}

void tst_EffectChain::rowsKeepTheirSelection()
{
    EditedJob job;
    EffectChain chain(job, nullptr);
    AddThree(chain);
    const QPersistentModelIndex blur = chain.index(1);
    const QPersistentModelIndex sharpen = chain.index(2);
    chain.Move(0, 2);
    QCOMPARE(blur.row(), 0);
    QCOMPARE(sharpen.row(), 1);
    job.History().undo();
    QCOMPARE(blur.row(), 1);
    chain.SetParameter(1, QStringLiteral("radius"), 7);
    QCOMPARE(blur.row(), 1);
    chain.removeRows(0, 1);
    QCOMPARE(blur.row(), 0);
    job.History().undo();
    QCOMPARE(blur.row(), 1);
    QCOMPARE(sharpen.row(), 2);
    chain.removeRows(1, 1);
    QVERIFY(!blur.isValid());
    QCOMPARE(sharpen.row(), 1);
}

void tst_EffectChain::aParameterIsOneStepUntilItEnds()
{
    EditedJob job;
    EffectChain chain(job, nullptr);
    chain.Add(QStringLiteral("exposure"));
    const QString stops = BatchJob::FindEffect(QStringLiteral("exposure"))->parameters.first().name;
    for (const double value : {0.1, 0.2, 0.3}) {
        chain.SetParameter(0, stops, value);
    }
    QCOMPARE(job.History().count(), 2);
    job.EndStep();
    chain.SetParameter(0, stops, 0.4);
    QCOMPARE(job.History().count(), 3);
    job.History().undo();
    job.History().undo();
    QCOMPARE(chain.At(0).parameters, QByteArray());
}

void tst_EffectChain::aDefaultIsLeftOut()
{
    EditedJob job;
    EffectChain chain(job, nullptr);
    chain.Add(QStringLiteral("exposure"));
    const BatchJob::ParameterSchema stops = BatchJob::FindEffect(QStringLiteral("exposure"))->parameters.first();
    chain.SetParameter(0, stops.name, 0.5);
    QVERIFY(chain.At(0).parameters.contains("0.5"));
    chain.SetParameter(0, stops.name, stops.defaultValue);
    QCOMPARE(chain.At(0).parameters, QByteArray());
    QCOMPARE(job.History().count(), 1);
}

void tst_EffectChain::movesOutsideAreRefused()
{
    EditedJob job;
    EffectChain chain(job, nullptr);
    AddThree(chain);
    QVERIFY(!chain.moveRow({}, 1, {}, 1));
    QVERIFY(!chain.moveRow({}, 1, {}, 2));
    QVERIFY(!chain.moveRow({}, 3, {}, 0));
    QVERIFY(!chain.moveRow({}, 0, {}, 4));
    QVERIFY(!chain.moveRow({}, -1, {}, 2));
    QVERIFY(!chain.removeRows(2, 2));
    QVERIFY(!chain.removeRows(-1, 1));
    QCOMPARE(job.History().count(), 3);
}

void tst_EffectChain::randomChangesCanBeUndone()
{
    QRandomGenerator random(20223);
    for (int round = 0; round < 30; ++round) {
        EditedJob job;
        EffectChain chain(job, nullptr);
        const QAbstractItemModelTester tester(&chain, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVector<QVector<Settings::Effect>> past{job.CurrentSettings().effects};
        for (int i = 0; i < 40; ++i) {
            ChangeAtRandom(chain, random);
            job.EndStep();
            QCOMPARE(chain.rowCount(), job.CurrentSettings().effects.size());
            for (int row = 0; row < chain.rowCount(); ++row) {
                QVERIFY(chain.At(row) == job.CurrentSettings().effects.at(row));
            }
            if (past.last() != job.CurrentSettings().effects) {
                past.append(job.CurrentSettings().effects);
            }
        }
        for (int i = past.size() - 2; i >= 0; --i) {
            job.History().undo();
            QVERIFY(job.CurrentSettings().effects == past.at(i));
            QCOMPARE(chain.rowCount(), past.at(i).size());
            for (int row = 0; row < chain.rowCount(); ++row) {
                QVERIFY(chain.At(row) == past.at(i).at(row));
            }
        }
        QVERIFY(!job.History().canUndo());
    }
}

QTEST_MAIN(tst_EffectChain)
#include "tst_effectchain.moc"
