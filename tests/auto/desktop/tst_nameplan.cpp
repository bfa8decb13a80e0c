// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "PictureFiles.h"

#include "hosts/desktop/pictures/NamePlan.h"

#include "ZTBatchManager.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;

/// The planned names of the edited job, which follow its changes.
class tst_NamePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void namesFollowTheSettings();
    void clashesAreNamed();
    void policiesResolveClashes();
    void namesNeedNoOutputFolder();
    void unusableSettingsHaveNoNames();
    void onlyTheLastChangeIsPlanned();
    void namesWithCaptureTimesAreUnknown();

private:
    QString Add(const QString& name);
    void Change(const std::function<void(Settings&)>& change);
    NamePlan::Entry Entry(const QString& input) const { return plan->Of(input); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<EditedJob> job;
    std::unique_ptr<NamePlan> plan;
};

void tst_NamePlan::init()
{
    plan.reset();
    job.reset();
    folder = std::make_unique<QTemporaryDir>();
    job = std::make_unique<EditedJob>();
    plan = std::make_unique<NamePlan>(*job);
    Change([this](Settings& settings) {
        settings.outputFolder = folder->filePath(QStringLiteral("out"));
        settings.format = QStringLiteral("PNG");
    });
}

QString tst_NamePlan::Add(const QString& name)
{
    const QString path = folder->filePath(name);
    PictureFiles::WriteJpeg(path);
    InputNode* const file = NewFile(name);
    file->data.fileName = path;
    job->Document().GetInputModel()->InsertBranch(file, QModelIndex());
    return path;
}

void tst_NamePlan::Change(const std::function<void(Settings&)>& change)
{
    Settings settings = job->CurrentSettings();
    change(settings);
    job->Change(settings, QStringLiteral("Change"));
}

void tst_NamePlan::namesFollowTheSettings()
{
    const QString input = Add(QStringLiteral("a.jpg"));
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(Entry(input).name, QStringLiteral("a.png"));
    Change([](Settings& settings) { settings.format = QStringLiteral("JPEG"); });
    QVERIFY(!plan->IsCurrent());
    QCOMPARE(Entry(input).name, QStringLiteral("a.png")); // The last plan counts until the next one is there.
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(Entry(input).name, QStringLiteral("a.jpg"));
    job->History().undo();
    QTRY_COMPARE(Entry(input).name, QStringLiteral("a.png"));
}

void tst_NamePlan::clashesAreNamed()
{
    const QString first = Add(QStringLiteral("one/a.jpg"));
    const QString second = Add(QStringLiteral("two/a.jpg"));
    const QString third = Add(QStringLiteral("b.jpg"));
    PictureFiles::WriteJpeg(folder->filePath(QStringLiteral("out/b.png.jpg")));
    QVERIFY(QFile::rename(folder->filePath(QStringLiteral("out/b.png.jpg")),
                          folder->filePath(QStringLiteral("out/b.png"))));
    QTRY_VERIFY(plan->IsCurrent());
    QVERIFY(!Entry(first).isNameTaken);
    QVERIFY(Entry(second).isNameTaken);
    QVERIFY(!Entry(second).trouble.isEmpty());
    QVERIFY(Entry(third).isNameTaken);
    QCOMPARE(plan->TroubleCount(), 2);
}

void tst_NamePlan::policiesResolveClashes()
{
    const QString first = Add(QStringLiteral("one/a.jpg"));
    const QString second = Add(QStringLiteral("two/a.jpg"));
    Change([](Settings& settings) {
        settings.policies[std::size_t(BatchJob::PolicyKind::Naming)] = ZTBatchManager::NamingRename;
    });
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(Entry(first).name, QStringLiteral("a.png"));
    QCOMPARE(Entry(second).name, QStringLiteral("a (2).png"));
    QCOMPARE(plan->TroubleCount(), 0);
}

void tst_NamePlan::namesNeedNoOutputFolder()
{
    const QString input = Add(QStringLiteral("a.jpg"));
    Change([](Settings& settings) { settings.outputFolder.clear(); });
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(Entry(input).name, QStringLiteral("a.png"));
    QVERIFY(!Entry(input).isNameTaken);
}

void tst_NamePlan::unusableSettingsHaveNoNames()
{
    const QString input = Add(QStringLiteral("a.jpg"));
    QTRY_VERIFY(plan->IsCurrent());
    Change([](Settings& settings) { settings.format = QStringLiteral("none"); });
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(Entry(input).name, QString());
    job->History().undo();
    QTRY_COMPARE(Entry(input).name, QStringLiteral("a.png"));
}

void tst_NamePlan::onlyTheLastChangeIsPlanned()
{
    const QString input = Add(QStringLiteral("a.jpg"));
    QTRY_VERIFY(plan->IsCurrent());
    QSignalSpy planned(plan.get(), &NamePlan::Planned);
    for (int i = 0; i < 20; ++i) {
        Change([i](Settings& settings) {
            settings.nameParts[ZTBatchOutputSettings::PartSuffix] = {ZTBatchOutputSettings::TemplateCustomText,
                                                                     QString::number(i), 0, 1};
        });
    }
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(planned.size(), 1);
    QVERIFY2(Entry(input).name.endsWith(QStringLiteral("19.png")), qPrintable(Entry(input).name));
}

void tst_NamePlan::namesWithCaptureTimesAreUnknown()
{
    const QString input = Add(QStringLiteral("a.jpg"));
    Change([](Settings& settings) {
        settings.nameParts[ZTBatchOutputSettings::PartMiddle] = {ZTBatchOutputSettings::TemplateCaptureDate, QString(),
                                                                 0, 1};
    });
    QTRY_VERIFY(plan->IsCurrent());
    QCOMPARE(Entry(input).name, QString());
    QVERIFY(!Entry(input).isNameTaken);
}

QTEST_MAIN(tst_NamePlan)
#include "tst_nameplan.moc"
