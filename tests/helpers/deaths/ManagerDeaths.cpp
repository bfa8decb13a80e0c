#include "DeathCase.h"
#include "ZTBatchManager.h"

#include <QAction>
#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTimerEvent>

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

// Who listens to an action's end before the manager does still finds it in the list.
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

} // namespace
