// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/job/EditedJob.h"

#include "ZTBatchInputModel.h"

#include <ZTStyle.h>

#include <QRandomGenerator>
#include <QtTest>

using namespace BatchDesktop;

using Output = ZTBatchOutputSettings;

class tst_EditedJob : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesReachTheDocument();
    void changesAreSteps();
    void oneControlMakesOneStep();
    void stepsOfAControlEnd();
    void aChangeBackIsNoStep();
    void unchangedSettingsAreNoStep();
    void replacingBeginsAnew();
    void randomChangesCanBeUndone();
};

namespace {

Settings WithLength(const EditedJob& job, double length)
{
    Settings settings = job.CurrentSettings();
    settings.imageSize.size = length;
    return settings;
}

double LengthOf(const EditedJob& job)
{
    return job.Document().GetOutputSettings()->GetImageSizeSettings().size;
}

/// `settings` with one value changed at random.
Settings Changed(Settings settings, QRandomGenerator& random)
{
    const int number = random.bounded(1, 1000);
    const QString text = QString::number(number);
    switch (random.bounded(11)) {
    case 0:
        settings.outputFolder = QStringLiteral("/results/") + text;
        break;
    case 1:
        settings.structure = Output::FolderStructure(number % 3);
        break;
    case 2:
        settings.nameParts[std::size_t(number % 3)] = {Output::NamingTemplate(number % 6), text, number,
                                                       1 + number % 6};
        break;
    case 3:
        settings.prefixSeparator = text;
        break;
    case 4:
        settings.suffixSeparator = text;
        break;
    case 5:
        settings.format = number % 2 ? QStringLiteral("PNG") : QStringLiteral("JPEG");
        settings.formatOptions = "{\"quality\":" + QByteArray::number(number % 100) + '}';
        break;
    case 6:
        settings.profile = text.toLatin1();
        break;
    case 7:
        settings.imageSize.size = number;
        break;
    case 8:
        settings.crop = {Qt::AlignLeft, QSize(number, 1), number % 8};
        break;
    case 9:
        settings.framing.angle = number;
        settings.framing.state = number % 2 != 0;
        break;
    default:
        if (settings.effects.size() > 3) {
            settings.effects.remove(number % settings.effects.size());
        } else {
            settings.effects.append({QStringLiteral("blur"), text.toLatin1(), number % 2 != 0});
        }
    }
    return settings;
}

} // namespace

void tst_EditedJob::changesReachTheDocument()
{
    EditedJob job;
    QSignalSpy changed(&job, &EditedJob::SettingsChanged);
    QSignalSpy styleChanged(&job.Document(), &ZTBatchDocument::StyleChanged);
    Settings settings = job.CurrentSettings();
    settings.effects.append({QStringLiteral("invert"), "{}", false});
    settings.outputFolder = QStringLiteral("/results");
    job.Change(settings, QStringLiteral("Effects"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(styleChanged.size(), 1);
    const ZTStyle& style = *job.Document().GetStyle();
    QCOMPARE(style.GetEffectCount(), 1);
    QCOMPARE(style.EffectAt(0), QStringLiteral("invert"));
    QVERIFY(!style.IsEnabled(0));
    QVERIFY(Settings::Of(job.Document()) == settings);
    job.History().undo();
    QCOMPARE(changed.size(), 2);
    QCOMPARE(styleChanged.size(), 2);
    QCOMPARE(style.GetEffectCount(), 0);
    QVERIFY(Settings::Of(job.Document()) == job.CurrentSettings());
}

void tst_EditedJob::changesAreSteps()
{
    EditedJob job;
    job.Change(WithLength(job, 100), QStringLiteral("Size"));
    job.Change(WithLength(job, 200), QStringLiteral("Size"));
    QCOMPARE(job.History().count(), 2);
    QCOMPARE(job.History().undoText(), QStringLiteral("Size"));
    job.History().undo();
    QCOMPARE(LengthOf(job), 100.0);
    job.History().redo();
    QCOMPARE(LengthOf(job), 200.0);
}

void tst_EditedJob::oneControlMakesOneStep()
{
    EditedJob job;
    const double before = LengthOf(job);
    for (const int length : {100, 150, 175}) {
        job.Change(WithLength(job, length), QStringLiteral("Size"), QStringLiteral("length"));
    }
    QCOMPARE(job.History().count(), 1);
    QCOMPARE(LengthOf(job), 175.0);
    job.History().undo();
    QCOMPARE(LengthOf(job), before);
}

void tst_EditedJob::stepsOfAControlEnd()
{
    EditedJob job;
    job.Change(WithLength(job, 100), QStringLiteral("Size"), QStringLiteral("length"));
    job.EndStep();
    job.Change(WithLength(job, 150), QStringLiteral("Size"), QStringLiteral("length"));
    QCOMPARE(job.History().count(), 2);
    job.History().undo();
    job.Change(WithLength(job, 300), QStringLiteral("Size"), QStringLiteral("length"));
    QCOMPARE(job.History().count(), 2);
    job.History().undo();
    QCOMPARE(LengthOf(job), 100.0);
}

void tst_EditedJob::aChangeBackIsNoStep()
{
    EditedJob job;
    const double before = LengthOf(job);
    job.Change(WithLength(job, 100), QStringLiteral("Size"), QStringLiteral("length"));
    job.Change(WithLength(job, before), QStringLiteral("Size"), QStringLiteral("length"));
    QCOMPARE(job.History().count(), 0);
    QCOMPARE(LengthOf(job), before);
}

void tst_EditedJob::unchangedSettingsAreNoStep()
{
    EditedJob job;
    QSignalSpy changed(&job, &EditedJob::SettingsChanged);
    job.Change(job.CurrentSettings(), QStringLiteral("Size"));
    QCOMPARE(job.History().count(), 0);
    QCOMPARE(changed.size(), 0);
}

void tst_EditedJob::replacingBeginsAnew()
{
    EditedJob job;
    job.Change(WithLength(job, 100), QStringLiteral("Size"));
    QSignalSpy replaced(&job, &EditedJob::Replaced);
    job.Replace([](ZTBatchDocument& document) { document.GetOutputSettings()->SetPath(QStringLiteral("/elsewhere")); });
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(job.History().count(), 0);
    QCOMPARE(job.CurrentSettings().outputFolder, QStringLiteral("/elsewhere"));
    QCOMPARE(job.CurrentSettings().imageSize.size, 100.0);
}

void tst_EditedJob::randomChangesCanBeUndone()
{
    QRandomGenerator random(20221);
    for (int round = 0; round < 50; ++round) {
        EditedJob job;
        QVector<Settings> past{job.CurrentSettings()};
        for (int i = 0; i < 40; ++i) {
            job.Change(Changed(job.CurrentSettings(), random), QStringLiteral("Change"));
            QVERIFY(Settings::Of(job.Document()) == job.CurrentSettings());
            if (past.last() != job.CurrentSettings()) {
                past.append(job.CurrentSettings());
            }
        }
        for (int i = past.size() - 2; i >= 0; --i) {
            job.History().undo();
            QVERIFY(Settings::Of(job.Document()) == past.at(i));
        }
        QVERIFY(!job.History().canUndo());
        for (int i = 1; i < past.size(); ++i) {
            job.History().redo();
            QVERIFY(Settings::Of(job.Document()) == past.at(i));
        }
    }
}

QTEST_MAIN(tst_EditedJob)
#include "tst_editedjob.moc"
