// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DesktopServices.h"
#include "PictureFiles.h"

#include "hosts/desktop/window/MainWindow.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#include "ZTBatchInputModel.h"

#include <algorithm>
#include <memory>

using namespace BatchDesktop;

using BatchJob::PolicyKind;

/// What the desktop hears of the window's runs: the real window and server, and services on a bus of the test's own.
class tst_SystemLink : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void OpenUrl(const QUrl& url) { opened.append(url); }

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void progressIsInTitleAndTaskbar();
    void endsAreNotifiedWhileAnotherWindowIsActive();
    void activeWindowsSayItThemselves();
    void failuresAreShownFromTheNotification();
    void questionsAreNotified();
    void windowsThatBecomeActiveTakeItBack();
    void computerStaysAwakeWhilePicturesAreMade();
    void runsNeedNoServices();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void LookElsewhere();
    bool Start(const BatchJob::PolicyValues& policies = {});
    bool WaitForEnd() const;
    void UseServices();

    std::unique_ptr<PrivateBus> bus;
    std::unique_ptr<NotificationService> notifications;
    std::unique_ptr<LoginService> login;
    std::unique_ptr<Dock> dock;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QWidget> elsewhere;
    std::unique_ptr<MainWindow> window;
    QList<QUrl> opened;
};

namespace {

constexpr int patience = 60'000; // ms
constexpr int pictures = 3;

} // namespace

void tst_SystemLink::initTestCase()
{
    bus = std::make_unique<PrivateBus>();
    QVERIFY2(bus->Error().isEmpty(), qPrintable(bus->Error()));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "OpenUrl");
}

void tst_SystemLink::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    bus.reset();
}

void tst_SystemLink::init()
{
    folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CACHE_HOME", QFile::encodeName(Path(QStringLiteral("cache"))));
    for (int i = 1; i <= pictures; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
    window = std::make_unique<MainWindow>(Path(QStringLiteral("settings")), Path(QStringLiteral("data")));
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    Settings settings = window->Job().CurrentSettings();
    settings.outputFolder = Path(QStringLiteral("out"));
    window->Job().Change(settings, QStringLiteral("Folder"));
    window->AddPaths({Path(QStringLiteral("photos"))});
    QTRY_COMPARE_WITH_TIMEOUT(window->Job().Document().GetInputModel()->GetFileNodesCount(), pictures, patience);
    opened.clear();
}

void tst_SystemLink::cleanup()
{
    window.reset();
    elsewhere.reset();
    dock.reset();
    login.reset();
    notifications.reset();
}

void tst_SystemLink::UseServices()
{
    notifications = std::make_unique<NotificationService>(*bus);
    login = std::make_unique<LoginService>(*bus);
    dock = std::make_unique<Dock>(*bus);
}

void tst_SystemLink::LookElsewhere()
{
    elsewhere = std::make_unique<QWidget>();
    elsewhere->show();
    elsewhere->activateWindow();
    QTRY_VERIFY_WITH_TIMEOUT(!window->isActiveWindow(), patience);
}

bool tst_SystemLink::Start(const BatchJob::PolicyValues& policies)
{
    Settings settings = window->Job().CurrentSettings();
    settings.policies = policies;
    window->Job().Change(settings, QStringLiteral("Policies"));
    window->StartRun();
    return window->Runner().CurrentState() == JobRunner::State::Running;
}

bool tst_SystemLink::WaitForEnd() const
{
    return QTest::qWaitFor([this] { return window->Runner().LastEnd().has_value(); }, patience);
}

void tst_SystemLink::progressIsInTitleAndTaskbar()
{
    UseServices();
    QStringList titles;
    connect(window.get(), &QWidget::windowTitleChanged, this, [&titles](const QString& title) { titles += title; });
    QVERIFY(Start());
    QCOMPARE(window->windowTitle(), QStringLiteral("0 % - New job[*] - Velkora Batch"));
    QVERIFY(WaitForEnd());
    QCOMPARE(window->windowTitle(), QStringLiteral("New job[*] - Velkora Batch"));
    QVERIFY2(titles.contains(QStringLiteral("100 % - New job[*] - Velkora Batch")), qPrintable(titles.join(u'\n')));
    QCOMPARE(titles.removeDuplicates(), 0);
    const auto isHidden = [this] {
        return !dock->updates.isEmpty() &&
               dock->updates.last().value(QStringLiteral("progress-visible")) == QVariant(false);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isHidden(), patience);
    QCOMPARE(dock->updates.size(), titles.size());
    QCOMPARE(dock->updates[dock->updates.size() - 2].value(QStringLiteral("progress")).toDouble(), 1.0);
}

void tst_SystemLink::endsAreNotifiedWhileAnotherWindowIsActive()
{
    UseServices();
    LookElsewhere();
    QVERIFY(Start());
    QVERIFY(WaitForEnd());
    QTRY_COMPARE_WITH_TIMEOUT(notifications->shown.size(), 1, patience);
    const NotificationService::Notification end = notifications->shown.first();
    QCOMPARE(end.summary, QStringLiteral("All pictures are written"));
    QVERIFY2(end.body.contains(QStringLiteral("all 3 pictures were written")), qPrintable(end.body));
    QVERIFY(end.actions.contains(QStringLiteral("Open folder")));
    QVERIFY(!end.actions.contains(QStringLiteral("Show failures")));
    Q_EMIT notifications->ActionInvoked(1, QStringLiteral("folder"));
    QTRY_COMPARE_WITH_TIMEOUT(opened, QList<QUrl>{QUrl::fromLocalFile(Path(QStringLiteral("out")))}, patience);
}

void tst_SystemLink::activeWindowsSayItThemselves()
{
    UseServices();
    QVERIFY(window->isActiveWindow());
    QVERIFY(Start());
    QVERIFY(WaitForEnd());
    QVERIFY(Start(Settings::AskingPolicies()));
    QTRY_VERIFY_WITH_TIMEOUT(window->Runner().OpenQuestion(), patience);
    window->Runner().Answer(ZTBatchManager::NamingSkip, true);
    QVERIFY(WaitForEnd());
    LookElsewhere();
    QVERIFY(Start()); // Its notification is the first.
    QVERIFY(WaitForEnd());
    QTRY_VERIFY_WITH_TIMEOUT(!notifications->shown.isEmpty(), patience);
    QCOMPARE(notifications->shown.size(), 1);
}

void tst_SystemLink::failuresAreShownFromTheNotification()
{
    UseServices();
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/2.jpg")));
    LookElsewhere();
    QVERIFY(Start());
    QVERIFY(WaitForEnd());
    QTRY_COMPARE_WITH_TIMEOUT(notifications->shown.size(), 1, patience);
    QVERIFY(notifications->shown.first().actions.contains(QStringLiteral("Show failures")));
    window->showMinimized();
    Q_EMIT notifications->ActionInvoked(1, QStringLiteral("failures"));
    QTRY_VERIFY_WITH_TIMEOUT(window->isActiveWindow(), patience);
    QVERIFY(!window->isMinimized());
    const auto* const filter = window->findChild<QComboBox*>(QStringLiteral("pictureStateFilter"));
    QCOMPARE(filter->currentData().toInt(), int(ShownState::Failed));
    QVERIFY(opened.isEmpty());
}

void tst_SystemLink::questionsAreNotified()
{
    UseServices();
    QVERIFY(Start());
    QVERIFY(WaitForEnd());
    LookElsewhere();
    QVERIFY(Start(Settings::AskingPolicies()));
    QTRY_COMPARE_WITH_TIMEOUT(notifications->shown.size(), 1, patience);
    const NotificationService::Notification question = notifications->shown.first();
    QVERIFY2(question.body.contains(QStringLiteral("1.jpg")), qPrintable(question.body));
    const auto isUrgent = [this] {
        return std::any_of(dock->updates.cbegin(), dock->updates.cend(), [](const QVariantMap& update) {
            return update.value(QStringLiteral("urgent")) == QVariant(true);
        });
    };
    QTRY_VERIFY_WITH_TIMEOUT(isUrgent(), patience);
    window->Runner().Answer(ZTBatchManager::NamingSkip, true);
    QVERIFY(WaitForEnd());
    QTRY_VERIFY_WITH_TIMEOUT(notifications->shown.last().summary.contains(QStringLiteral("finished")), patience);
    QVERIFY(std::any_of(dock->updates.cbegin(), dock->updates.cend(), [](const QVariantMap& update) {
        return update.value(QStringLiteral("urgent")) == QVariant(false);
    }));
}

void tst_SystemLink::windowsThatBecomeActiveTakeItBack()
{
    UseServices();
    LookElsewhere();
    QVERIFY(Start());
    QVERIFY(WaitForEnd());
    QTRY_COMPARE_WITH_TIMEOUT(notifications->shown.size(), 1, patience);
    window->activateWindow();
    QTRY_COMPARE_WITH_TIMEOUT(notifications->closed, QList<uint>{1}, patience);
}

void tst_SystemLink::computerStaysAwakeWhilePicturesAreMade()
{
    UseServices();
    QVERIFY(Start());
    window->Runner().Pause();
    QTRY_COMPARE_WITH_TIMEOUT(window->Runner().CurrentState(), JobRunner::State::Paused, patience);
    QTRY_VERIFY_WITH_TIMEOUT(login->asked.size() == 1 && !login->IsBlocked(), patience);
    window->Runner().GoOn();
    QTRY_COMPARE_WITH_TIMEOUT(login->asked.size(), 2, patience);
    QVERIFY(WaitForEnd());
    QTRY_VERIFY_WITH_TIMEOUT(!login->IsBlocked(), patience);
}

void tst_SystemLink::runsNeedNoServices()
{
    LookElsewhere();
    QVERIFY(Start());
    QVERIFY(WaitForEnd());
    QCOMPARE(window->Runner().LastEnd()->written, pictures);
    QCOMPARE(window->windowTitle(), QStringLiteral("New job[*] - Velkora Batch"));
}

QTEST_MAIN(tst_SystemLink)
#include "tst_systemlink.moc"
