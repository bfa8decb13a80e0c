// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerTest.h"

#include "DeathCase.h"
#include "ZTInputDnDHandler.h"
#include "ZTInputUpdateHandler.h"

#include <QAction>
#include <QMimeData>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>
#include <tuple>

namespace {

const QString privateSource = QStringLiteral("src\\private\\ZTBatchManager_p");

class DnDHandler : public ZTBatchManager::ZTInputDnDHandler
{
public:
    using ZTInputDnDHandler::ZTInputDnDHandler;

    bool accepts = false;
    mutable QList<const QMimeData*> asked;
    QList<QPair<ZTBatchInputModel*, const QMimeData*>> dropped;

protected:
    bool DoIsAccept(const QMimeData& data) const override
    {
        asked.append(&data);
        return accepts;
    }

    void DoDropData(ZTBatchInputModel* model, const QMimeData& data) override { dropped.append({model, &data}); }
};

class UpdateHandler : public ZTBatchManager::ZTInputUpdateHandler
{
public:
    using ZTInputUpdateHandler::ZTInputUpdateHandler;

    QList<std::tuple<ZTBatchInputModel*, const QModelIndex*, bool>> updates;

protected:
    void DoUpdate(ZTBatchInputModel* model, const QModelIndex& id, bool ignoreModificationTime) override
    {
        updates.append({model, &id, ignoreModificationTime});
    }
};

/// A model's address for handlers that only pass it on.
ZTBatchInputModel* SomeModel()
{
    static char place = 0;
    return reinterpret_cast<ZTBatchInputModel*>(&place);
}

} // namespace

/// What hosts register with the manager: input actions, the drag-and-drop handler and the update handler.
class tst_ManagerRegistries : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void actionsByOrder_data();
    void actionsByOrder();
    void actionTwice();
    void actionSignals();
    void actionUnregistered();
    void unknownActionUnregistered();
    void deletedActionLeaves();
    void unregisteredActionIsForgotten();
    void actionUnregisteredInItsSignal();
    void actionDeletedInItsSignal();
    void manyActions();
    void actionsDoNotSurviveTheManager();
    void actionOutlivesTheManager();

    void dndHandler();
    void dndHandlerForwards();
    void updateHandler();
    void updateHandlerForwards();
    void updateHandlerSlotBySignature();
    void handlersAreIndependent();
    void handlerRegisteredTwice();
    void handlerReplacedByItself();
    void handlersHaveParents();

    void failedAssertions_data();
    void failedAssertions();
};

void tst_ManagerRegistries::actionsByOrder_data()
{
    QTest::addColumn<QList<int>>("orders");
    QTest::addColumn<QList<int>>("expected"); // positions in `orders`

    const int least = std::numeric_limits<int>::min();
    const int greatest = std::numeric_limits<int>::max();
    QTest::newRow("none") << QList<int>{} << QList<int>{};
    QTest::newRow("one") << QList<int>{7} << QList<int>{0};
    QTest::newRow("5 1 5 3") << QList<int>{5, 1, 5, 3} << QList<int>{1, 3, 0, 2};
    QTest::newRow("ascending") << QList<int>{1, 2, 3} << QList<int>{0, 1, 2};
    QTest::newRow("descending") << QList<int>{3, 2, 1} << QList<int>{2, 1, 0};
    QTest::newRow("equal") << QList<int>{4, 4, 4, 4} << QList<int>{0, 1, 2, 3};
    QTest::newRow("equal between others") << QList<int>{1, 9, 4, 4, 4} << QList<int>{0, 2, 3, 4, 1};
    QTest::newRow("negative") << QList<int>{0, -1, 1, -1} << QList<int>{1, 3, 0, 2};
    QTest::newRow("extremes") << QList<int>{greatest, least, 0, greatest, least} << QList<int>{1, 4, 2, 0, 3};
}

void tst_ManagerRegistries::actionsByOrder()
{
    QFETCH(QList<int>, orders);
    QFETCH(QList<int>, expected);

    const ManagerLife manager(SettingsDir());
    QObject owner;
    QList<QAction*> actions;
    for (const int order : orders) {
        actions.append(new QAction(&owner));
        manager->RegisterInputAction(actions.last(), order);
    }
    QList<int> positions;
    for (QAction* action : manager->GetInputActions()) {
        positions.append(actions.indexOf(action));
    }
    QCOMPARE(positions, expected);
}

void tst_ManagerRegistries::actionTwice()
{
    const ManagerLife manager(SettingsDir());
    const QSignalSpy registered(manager.Get(), &ZTBatchManager::InputActionRegistered);
    QAction first(nullptr);
    QAction second(nullptr);
    manager->RegisterInputAction(&first, 1);
    manager->RegisterInputAction(&second, 2);
    manager->RegisterInputAction(&first, 3);
    manager->RegisterInputAction(&first, 1);
    QCOMPARE(registered.count(), 2);
    QCOMPARE(manager->GetInputActions(), (QList<QAction*>{&first, &second}));
}

void tst_ManagerRegistries::actionSignals()
{
    const ManagerLife manager(SettingsDir());
    QAction action(nullptr);
    QStringList events;
    connect(manager.Get(), &ZTBatchManager::InputActionRegistered, this, [&](QAction* registered, int index) {
        QCOMPARE(registered, &action);
        QCOMPARE(manager->GetInputActions(), QList<QAction*>{&action});
        events.append(QStringLiteral("registered at %1").arg(index));
    });
    connect(manager.Get(), &ZTBatchManager::InputActionUnregistered, this, [&](QAction* unregistered) {
        QCOMPARE(unregistered, &action);
        QCOMPARE(manager->GetInputActions(), QList<QAction*>());
        events.append(QStringLiteral("unregistered"));
    });
    manager->RegisterInputAction(&action, -3);
    manager->UnregisterInputAction(&action);
    manager->RegisterInputAction(&action, 8);
    QCOMPARE(events, (QStringList{QStringLiteral("registered at -3"), QStringLiteral("unregistered"),
                                  QStringLiteral("registered at 8")}));
}

void tst_ManagerRegistries::actionUnregistered()
{
    const ManagerLife manager(SettingsDir());
    QAction actions[3] = {QAction(nullptr), QAction(nullptr), QAction(nullptr)};
    for (QAction& action : actions) {
        manager->RegisterInputAction(&action, 1);
    }
    manager->UnregisterInputAction(&actions[1]);
    QCOMPARE(manager->GetInputActions(), (QList<QAction*>{&actions[0], &actions[2]}));
    manager->RegisterInputAction(&actions[1], 1);
    QCOMPARE(manager->GetInputActions(), (QList<QAction*>{&actions[0], &actions[2], &actions[1]}));
}

void tst_ManagerRegistries::unknownActionUnregistered()
{
    const ManagerLife manager(SettingsDir());
    const QSignalSpy unregistered(manager.Get(), &ZTBatchManager::InputActionUnregistered);
    QAction known(nullptr);
    QAction unknown(nullptr);
    manager->RegisterInputAction(&known, 1);
    manager->UnregisterInputAction(&unknown);
    manager->UnregisterInputAction(nullptr);
    QCOMPARE(unregistered.count(), 0);
    manager->UnregisterInputAction(&known);
    manager->UnregisterInputAction(&known);
    QCOMPARE(unregistered.count(), 1);
}

void tst_ManagerRegistries::deletedActionLeaves()
{
    const ManagerLife manager(SettingsDir());
    const QSignalSpy unregistered(manager.Get(), &ZTBatchManager::InputActionUnregistered);
    QAction stays(nullptr);
    auto leaves = std::make_unique<QAction>(nullptr);
    manager->RegisterInputAction(leaves.get(), 1);
    manager->RegisterInputAction(&stays, 2);
    leaves.reset();
    QCOMPARE(manager->GetInputActions(), QList<QAction*>{&stays});
    QCOMPARE(unregistered.count(), 0);
}

void tst_ManagerRegistries::unregisteredActionIsForgotten()
{
    const ManagerLife manager(SettingsDir());
    auto action = std::make_unique<QAction>(nullptr);
    manager->RegisterInputAction(action.get(), 1);
    manager->UnregisterInputAction(action.get());
    action.reset(); // Would end the process if the manager were still connected.
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
}

void tst_ManagerRegistries::actionUnregisteredInItsSignal()
{
    const ManagerLife manager(SettingsDir());
    QAction action(nullptr);
    connect(manager.Get(), &ZTBatchManager::InputActionRegistered, this,
            [&manager](QAction* registered) { manager->UnregisterInputAction(registered); });
    const QSignalSpy unregistered(manager.Get(), &ZTBatchManager::InputActionUnregistered);
    manager->RegisterInputAction(&action, 1);
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
    QCOMPARE(unregistered.count(), 1);
}

void tst_ManagerRegistries::actionDeletedInItsSignal()
{
    const ManagerLife manager(SettingsDir());
    connect(manager.Get(), &ZTBatchManager::InputActionRegistered, this,
            [](QAction* registered) { delete registered; });
    const QPointer<QAction> action = new QAction(nullptr);
    manager->RegisterInputAction(action, 1);
    QVERIFY(!action);
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
}

void tst_ManagerRegistries::manyActions()
{
    const ManagerLife manager(SettingsDir());
    QObject owner;
    for (int i = 0; i < 1000; ++i) {
        auto* action = new QAction(&owner);
        action->setData(i * 7919 % 100);
        manager->RegisterInputAction(action, action->data().toInt());
    }
    const QList<QAction*> actions = manager->GetInputActions();
    QCOMPARE(actions.size(), 1000);
    QVERIFY(std::is_sorted(actions.begin(), actions.end(), [](const QAction* left, const QAction* right) {
        return left->data().toInt() < right->data().toInt();
    }));
}

void tst_ManagerRegistries::actionsDoNotSurviveTheManager()
{
    QAction action(nullptr);
    DnDHandler dnd;
    ZTBatchManager::InitInstance(SettingsDir());
    ZTBatchManager::Instance()->RegisterInputAction(&action, 1);
    ZTBatchManager::Instance()->RegisterDragAndDropHandler(&dnd);
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(ZTBatchManager::Instance()->GetInputActions(), QList<QAction*>());
    QCOMPARE(ZTBatchManager::Instance()->InputDragAndDropHandler(), nullptr);
}

void tst_ManagerRegistries::actionOutlivesTheManager()
{
    auto action = std::make_unique<QAction>(nullptr);
    auto update = std::make_unique<UpdateHandler>();
    ZTBatchManager::InitInstance(SettingsDir());
    ZTBatchManager::Instance()->RegisterInputAction(action.get(), 1);
    ZTBatchManager::Instance()->RegisterInputUpdateHandler(update.get());
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(SettingsDir());
    action.reset();
    update.reset();
    QCOMPARE(ZTBatchManager::Instance()->GetInputActions(), QList<QAction*>());
}

void tst_ManagerRegistries::dndHandler()
{
    const ManagerLife manager(SettingsDir());
    auto first = std::make_unique<DnDHandler>();
    auto second = std::make_unique<DnDHandler>();

    manager->UnregisterDragAndDropHandler();
    manager->RegisterDragAndDropHandler(first.get());
    QCOMPARE(manager->InputDragAndDropHandler(), first.get());
    manager->RegisterDragAndDropHandler(second.get());
    QCOMPARE(manager->InputDragAndDropHandler(), second.get());
    first.reset();
    QCOMPARE(manager->InputDragAndDropHandler(), second.get());
    manager->RegisterDragAndDropHandler(nullptr);
    QCOMPARE(manager->InputDragAndDropHandler(), nullptr);

    manager->RegisterDragAndDropHandler(second.get());
    manager->UnregisterDragAndDropHandler();
    QCOMPARE(manager->InputDragAndDropHandler(), nullptr);

    manager->RegisterDragAndDropHandler(second.get());
    second.reset();
    QCOMPARE(manager->InputDragAndDropHandler(), nullptr);
}

void tst_ManagerRegistries::dndHandlerForwards()
{
    DnDHandler handler;
    const QMimeData data;
    QVERIFY(!handler.IsAccept(data));
    handler.accepts = true;
    QVERIFY(handler.IsAccept(data));
    QCOMPARE(handler.asked, (QList<const QMimeData*>{&data, &data}));

    handler.DropData(SomeModel(), data);
    QCOMPARE(handler.dropped, (QList<QPair<ZTBatchInputModel*, const QMimeData*>>{{SomeModel(), &data}}));
}

void tst_ManagerRegistries::updateHandler()
{
    const ManagerLife manager(SettingsDir());
    auto first = std::make_unique<UpdateHandler>();
    auto second = std::make_unique<UpdateHandler>();

    manager->UnregisterInputHandler();
    manager->RegisterInputUpdateHandler(first.get());
    QCOMPARE(manager->InputUpdateHandler(), first.get());
    manager->RegisterInputUpdateHandler(second.get());
    QCOMPARE(manager->InputUpdateHandler(), second.get());
    first.reset();
    QCOMPARE(manager->InputUpdateHandler(), second.get());
    manager->RegisterInputUpdateHandler(nullptr);
    QCOMPARE(manager->InputUpdateHandler(), nullptr);

    manager->RegisterInputUpdateHandler(second.get());
    manager->UnregisterInputHandler();
    QCOMPARE(manager->InputUpdateHandler(), nullptr);

    manager->RegisterInputUpdateHandler(second.get());
    second.reset();
    QCOMPARE(manager->InputUpdateHandler(), nullptr);
}

void tst_ManagerRegistries::updateHandlerForwards()
{
    UpdateHandler handler;
    const QModelIndex index;
    handler.Update(SomeModel(), index, true);
    handler.Update(nullptr, index, false);
    QCOMPARE(handler.updates.size(), 2);
    QVERIFY(handler.updates[0] == std::make_tuple(SomeModel(), &index, true));
    QVERIFY(handler.updates[1] == std::make_tuple(static_cast<ZTBatchInputModel*>(nullptr), &index, false));
}

void tst_ManagerRegistries::updateHandlerSlotBySignature()
{
    UpdateHandler handler;
    const QModelIndex index;
    QVERIFY(QMetaObject::invokeMethod(&handler, "Update", Q_ARG(ZTBatchInputModel*, SomeModel()),
                                      Q_ARG(QModelIndex, index), Q_ARG(bool, true)));
    QCOMPARE(handler.updates.size(), 1);
}

void tst_ManagerRegistries::handlersAreIndependent()
{
    const ManagerLife manager(SettingsDir());
    auto dnd = std::make_unique<DnDHandler>();
    auto update = std::make_unique<UpdateHandler>();
    manager->RegisterDragAndDropHandler(dnd.get());
    manager->RegisterInputUpdateHandler(update.get());
    dnd.reset();
    QCOMPARE(manager->InputDragAndDropHandler(), nullptr);
    QCOMPARE(manager->InputUpdateHandler(), update.get());
    manager->UnregisterDragAndDropHandler();
    QCOMPARE(manager->InputUpdateHandler(), update.get());
}

void tst_ManagerRegistries::handlerRegisteredTwice()
{
    const ManagerLife manager(SettingsDir());
    auto handler = std::make_unique<DnDHandler>();
    DnDHandler other;
    manager->RegisterDragAndDropHandler(handler.get());
    manager->RegisterDragAndDropHandler(handler.get());
    manager->RegisterDragAndDropHandler(&other);
    handler.reset();
    QCOMPARE(manager->InputDragAndDropHandler(), &other);
}

void tst_ManagerRegistries::handlerReplacedByItself()
{
    const ManagerLife manager(SettingsDir());
    auto handler = std::make_unique<UpdateHandler>();
    manager->RegisterInputUpdateHandler(handler.get());
    manager->RegisterInputUpdateHandler(handler.get());
    QCOMPARE(manager->InputUpdateHandler(), handler.get());
    handler.reset();
    QCOMPARE(manager->InputUpdateHandler(), nullptr);
}

void tst_ManagerRegistries::handlersHaveParents()
{
    QObject owner;
    QCOMPARE(DnDHandler().parent(), nullptr);
    QCOMPARE(UpdateHandler().parent(), nullptr);
    QCOMPARE((new DnDHandler(&owner))->parent(), &owner);
    QCOMPARE((new UpdateHandler(&owner))->parent(), &owner);
}

void tst_ManagerRegistries::failedAssertions_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("an unknown action is destroyed") << QStringLiteral("manager-unknown-action");
    QTest::newRow("an action that is none any more") << QStringLiteral("manager-dying-action");
    QTest::newRow("an action that is null") << QStringLiteral("manager-null-action");
}

void tst_ManagerRegistries::failedAssertions()
{
    QFETCH(QString, name);

    const DeathReport report = RunDeathCase(name);
    QVERIFY2(report.EndedByAssertOf(privateSource), qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ManagerRegistries)
#include "tst_managerregistries.moc"
