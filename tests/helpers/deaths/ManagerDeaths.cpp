// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "ZTBatchManager.h"
#include "ZTBatchManagerTimings_p.h"
#include "ZTBatchSession.h"

#include <QAction>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTemporaryDir>
#include <QTimerEvent>

#include <functional>
#include <memory>

namespace {

/// An application with a manager.
class Host
{
public:
    Host()
        : application(argc, argv)
    {
        ZTBatchManager::InitInstance(settings.path());
    }

    ~Host() { ZTBatchManager::ReleaseInstance(); }

private:
    int argc = 1;
    char name[7] = "deaths";
    char* argv[2] = {name, nullptr};
    QCoreApplication application;
    QTemporaryDir settings;
};

const DeathCase timerWithoutServer("manager-timer-without-server", [] {
    const Host host;
    QTimerEvent event(1);
    QCoreApplication::sendEvent(ZTBatchManager::Instance(), &event);
});

const DeathCase unknownAction("manager-unknown-action", [] {
    const Host host;
    QObject object;
    QMetaObject::invokeMethod(ZTBatchManager::Instance(), "OnInputActionDestroyed", Q_ARG(QObject*, &object));
});

// A slot that is connected to destroyed() before the manager's own slot still finds the action in the list.
const DeathCase dyingAction("manager-dying-action", [] {
    const Host host;
    auto* action = new QAction(nullptr);
    QObject::connect(action, &QObject::destroyed, [] { ZTBatchManager::Instance()->GetInputActions(); });
    ZTBatchManager::Instance()->RegisterInputAction(action, 1);
    delete action;
});

const DeathCase nullAction("manager-null-action", [] {
    const Host host;
    ZTBatchManager::Instance()->RegisterInputAction(nullptr, 1);
    ZTBatchManager::Instance()->GetInputActions();
});

/// Gives a command to a session that has outlived its manager. The test has placed a server beside this executable.
void CommandAfterRelease(const std::function<void(ZTBatchManager::ZTBatchSession&)>& command)
{
    const Host host;
    ZTBatchManagerTimings::InUse().reconnectInterval = 50;
    ZTBatchManager::Instance()->Start();
    const QDeadlineTimer deadline(20000);
    std::unique_ptr<ZTBatchManager::ZTBatchSession> session;
    while (!session && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        session.reset(ZTBatchManager::Instance()->CreateBatchSession());
    }
    if (session) {
        session->setParent(nullptr);
        ZTBatchManager::ReleaseInstance();
        command(*session);
    }
}

using Session = ZTBatchManager::ZTBatchSession;

const DeathCase processAfterRelease("session-after-release-process",
                                    [] { CommandAfterRelease([](Session& session) { session.Process(QString()); }); });
const DeathCase pauseAfterRelease("session-after-release-pause",
                                  [] { CommandAfterRelease([](Session& session) { session.Pause(); }); });
const DeathCase resumeAfterRelease("session-after-release-resume",
                                   [] { CommandAfterRelease([](Session& session) { session.Resume(); }); });
const DeathCase cancelAfterRelease("session-after-release-cancel",
                                   [] { CommandAfterRelease([](Session& session) { session.Cancel(); }); });
const DeathCase inputAfterRelease("session-after-release-input", [] {
    CommandAfterRelease([](Session& session) { session.InputRespond(ZTBatchManager::InputSkip, true); });
});
const DeathCase outputAfterRelease("session-after-release-output", [] {
    CommandAfterRelease([](Session& session) { session.OutputRespond(ZTBatchManager::OutputSkip, true); });
});
const DeathCase processingAfterRelease("session-after-release-processing", [] {
    CommandAfterRelease([](Session& session) { session.ProcessingRespond(ZTBatchManager::ProcessingSkip, true); });
});
const DeathCase namingAfterRelease("session-after-release-naming", [] {
    CommandAfterRelease([](Session& session) { session.NamingRespond(ZTBatchManager::NamingSkip, true); });
});
const DeathCase writeAfterRelease("session-after-release-write", [] {
    CommandAfterRelease(
        [](Session& session) { session.WriteToFormatRespond(ZTBatchManager::WriteToFormatSkip, true); });
});

} // namespace
