// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerTest.h"

#include "DeathCase.h"
#include "DebugLines.h"
#include "MetaMethods.h"
#include "ZTBatchManagerTimings_p.h"
#include "ZTBatchSession.h"
#include "ZTInputDnDHandler.h"
#include "ZTInputUpdateHandler.h"

#include <QMetaEnum>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QString managerSource = QStringLiteral("src\\ZTBatchManager");
const QString privateSource = QStringLiteral("src\\private\\ZTBatchManager_p");

QList<QByteArray> ParameterNames(const QMetaObject& object, const char* signature)
{
    return object.method(object.indexOfMethod(signature)).parameterNames();
}

} // namespace

/// The manager without a server: its interface, its life, and its answers to events that concern no server or session.
class tst_ZTBatchManager : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void managerMetaMethods();
    void managerParameterNames();
    void sessionMetaMethods();
    void sessionParameterNames_data();
    void sessionParameterNames();
    void handlerMetaMethods();
    void enumerations_data();
    void enumerations();
    void timings();

    void instanceLivesFromInitToRelease();
    void secondInitDoesNothing();
    void lifeIsLogged();
    void releaseIsNotSeenHalfDone();
    void idleManagerAnswers();
    void stopWithoutServer();
    void serverErrorWithoutServer_data();
    void serverErrorWithoutServer();
    void serverEndWithoutServer();
    void messageWithoutSession_data();
    void messageWithoutSession();
    void foreignObjectDestroyed();

    void failedAssertions_data();
    void failedAssertions();
};

void tst_ZTBatchManager::managerMetaMethods()
{
    const QStringList expected{
        QStringLiteral("public signal ConnectionEstablished()"),
        QStringLiteral("public signal ConnectionFailed()"),
        QStringLiteral("public signal InputActionRegistered(QAction*,int)"),
        QStringLiteral("public signal InputActionUnregistered(QAction*)"),
        QStringLiteral("public signal InputPolicyChanged(InputPolicy)"),
        QStringLiteral("public signal OutputPolicyChanged(OutputPolicy)"),
        QStringLiteral("public signal ProcessingPolicyChanged(ProcessingPolicy)"),
        QStringLiteral("public signal NamingPolicyChanged(NamingPolicy)"),
        QStringLiteral("public signal WriteToFormatChanged(WriteToFormatPolicy)"),
        QStringLiteral("private slot OnInputActionDestroyed(QObject*)"),
        QStringLiteral("private slot OnBatchSessionDestroyed(QObject*)"),
        QStringLiteral("private slot OnIncomingMessage(QString,QByteArray)"),
        QStringLiteral("private slot OnServerError(QProcess::ProcessError)"),
        QStringLiteral("private slot OnServerFinished(int)"),
        QStringLiteral("private slot OnPipeDown()"),
        QStringLiteral("private slot OnInputUpdateHandlerDestroyed(QObject*)"),
        QStringLiteral("private slot OnDnDHandlerDestroyed(QObject*)"),
    };
    QCOMPARE(OwnMetaMethods(ZTBatchManager::staticMetaObject), expected);
    QCOMPARE(ZTBatchManager::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_ZTBatchManager::managerParameterNames()
{
    const QMetaObject& object = ZTBatchManager::staticMetaObject;
    QCOMPARE(ParameterNames(object, "InputActionRegistered(QAction*,int)"), (QList<QByteArray>{"", "index"}));
    QCOMPARE(ParameterNames(object, "InputActionUnregistered(QAction*)"), QList<QByteArray>{""});
    QCOMPARE(ParameterNames(object, "InputPolicyChanged(InputPolicy)"), QList<QByteArray>{""});
    QCOMPARE(ParameterNames(object, "OnIncomingMessage(QString,QByteArray)"), (QList<QByteArray>{"msgName", "data"}));
}

void tst_ZTBatchManager::sessionMetaMethods()
{
    const QStringList expected{
        QStringLiteral("public signal Paused()"),
        QStringLiteral("public signal Resumed()"),
        QStringLiteral("public signal Cancelled()"),
        QStringLiteral("public signal Aborted()"),
        QStringLiteral("public signal Finished()"),
        QStringLiteral("public signal Progress(int)"),
        QStringLiteral("public signal FileInProgress(QString)"),
        QStringLiteral("public signal FileProcessed(QString,QString)"),
        QStringLiteral("public signal ProcessError(QString,QString,int,int)"),
        QStringLiteral("public signal LogMessage(QString)"),
        QStringLiteral("public signal ProgressRange(int,int)"),
        QStringLiteral("public signal InputQuestion()"),
        QStringLiteral("public signal OutputQuestion()"),
        QStringLiteral("public signal ProcessingQuestion()"),
        QStringLiteral("public signal NamingQuestion()"),
        QStringLiteral("public signal WriteToFormatQuestion()"),
    };
    const QMetaObject& object = ZTBatchManager::ZTBatchSession::staticMetaObject;
    QCOMPARE(OwnMetaMethods(object), expected);
    QCOMPARE(object.superClass(), &QObject::staticMetaObject);
    QCOMPARE(object.className(), "ZTBatchManager::ZTBatchSession");
}

void tst_ZTBatchManager::sessionParameterNames_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QList<QByteArray>>("names");

    const auto row = [](const char* signature, const QList<QByteArray>& names) {
        QTest::newRow(signature) << QByteArray(signature) << names;
    };
    row("Progress(int)", {""});
    row("FileInProgress(QString)", {"inputFileName"});
    row("FileProcessed(QString,QString)", {"inputFileName", "outputFileName"});
    row("ProcessError(QString,QString,int,int)", {"inputFileName", "outputFileName", "action", "errorCode"});
    row("LogMessage(QString)", {"log"});
    row("ProgressRange(int,int)", {"", ""});
}

void tst_ZTBatchManager::sessionParameterNames()
{
    QFETCH(QByteArray, signature);
    QFETCH(QList<QByteArray>, names);

    QCOMPARE(ParameterNames(ZTBatchManager::ZTBatchSession::staticMetaObject, signature.constData()), names);
}

void tst_ZTBatchManager::handlerMetaMethods()
{
    const QMetaObject& dnd = ZTBatchManager::ZTInputDnDHandler::staticMetaObject;
    QCOMPARE(OwnMetaMethods(dnd), QStringList());
    QCOMPARE(dnd.superClass(), &QObject::staticMetaObject);

    const QMetaObject& update = ZTBatchManager::ZTInputUpdateHandler::staticMetaObject;
    QCOMPARE(OwnMetaMethods(update),
             QStringList{QStringLiteral("public slot Update(ZTBatchInputModel*,QModelIndex,bool)")});
    QCOMPARE(ParameterNames(update, "Update(ZTBatchInputModel*,QModelIndex,bool)"),
             (QList<QByteArray>{"pModel", "id", "ignoreModificationTime"}));
    QCOMPARE(update.superClass(), &QObject::staticMetaObject);
}

void tst_ZTBatchManager::enumerations_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QList<int>>("values");

    QTest::newRow("input") << QStringLiteral("InputPolicy") << QList<int>{0, 1, 2};
    QTest::newRow("output") << QStringLiteral("OutputPolicy") << QList<int>{0, 1, 2};
    QTest::newRow("processing") << QStringLiteral("ProcessingPolicy") << QList<int>{0, 1, 2};
    QTest::newRow("naming") << QStringLiteral("NamingPolicy") << QList<int>{0, 1, 2, 3};
    QTest::newRow("write to format") << QStringLiteral("WriteToFormatPolicy") << QList<int>{0, 1, 2, 3};
}

void tst_ZTBatchManager::enumerations()
{
    QFETCH(QString, name);
    QFETCH(QList<int>, values);

    const QMetaObject& object = ZTBatchManager::staticMetaObject;
    const QMetaEnum enumeration = object.enumerator(object.indexOfEnumerator(qPrintable(name)));
    QList<int> found;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        found.append(enumeration.value(i));
    }
    QCOMPARE(found, values);
    QVERIFY(!enumeration.isScoped());
    static_assert(sizeof(ZTBatchManager::InputPolicy) == sizeof(int));
    static_assert(sizeof(ZTBatchManager::WriteToFormatPolicy) == sizeof(int));
}

void tst_ZTBatchManager::timings()
{
    const ZTBatchManagerTimings& timings = ZTBatchManagerTimings::InUse();
    QCOMPARE(timings.startupTimeout, 25000);
    QCOMPARE(timings.reconnectInterval, 1000);
    QCOMPARE(timings.shutdownConnectTimeout, 1000);
    QCOMPARE(timings.serverEndTimeout, 30000);
    QCOMPARE(timings.listenerConnectTimeout, 100);
}

void tst_ZTBatchManager::instanceLivesFromInitToRelease()
{
    QCOMPARE(ZTBatchManager::Instance(), nullptr);
    ZTBatchManager::ReleaseInstance();

    ZTBatchManager::InitInstance(SettingsDir());
    const QPointer<ZTBatchManager> manager = ZTBatchManager::Instance();
    QVERIFY(manager);
    QCOMPARE(manager->parent(), nullptr);
    QCOMPARE(manager->thread(), QThread::currentThread());

    ZTBatchManager::ReleaseInstance();
    QVERIFY(!manager);
    QCOMPARE(ZTBatchManager::Instance(), nullptr);
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(ZTBatchManager::Instance(), nullptr);
}

void tst_ZTBatchManager::secondInitDoesNothing()
{
    const ManagerLife manager(folder->FilePath(QStringLiteral("one")));
    ZTBatchManager* const first = manager.Get();
    manager->SetInputPolicy(ZTBatchManager::InputSkip);

    ZTBatchManager::InitInstance(folder->FilePath(QStringLiteral("two")));
    QCOMPARE(manager.Get(), first);
    QCOMPARE(CurrentPolicies(), (Policies{0, 2, 2, 3, 2}));

    ZTBatchManager::ReleaseInstance();
    QVERIFY(QFileInfo::exists(folder->FilePath(QStringLiteral("one/BatchExceptionPolicy.ini"))));
    QVERIFY(!QFileInfo::exists(folder->FilePath(QStringLiteral("two"))));
}

void tst_ZTBatchManager::lifeIsLogged()
{
    const DebugLines lines;
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(lines.All(), QStringList());
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(lines.TextsFrom(managerSource), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
    QCOMPARE(lines.All().size(), 2);
}

void tst_ZTBatchManager::releaseIsNotSeenHalfDone()
{
    const ManagerLife manager(SettingsDir());
    int calls = 0;
    connect(manager.Get(), &QObject::destroyed, this, [&calls] {
        ++calls;
        ZTBatchManager::ReleaseInstance();
        QCOMPARE(ZTBatchManager::Instance(), nullptr);
    });
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(calls, 1);
}

void tst_ZTBatchManager::idleManagerAnswers()
{
    const ManagerLife manager(SettingsDir());
    QVERIFY(!manager->IsStarted());
    QVERIFY(manager->IsAllowToCreateSession());
    QCOMPARE(manager->CreateBatchSession(), nullptr);
    QVERIFY(manager->IsAllowToCreateSession());
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
    QCOMPARE(manager->InputDragAndDropHandler(), nullptr);
    QCOMPARE(manager->InputUpdateHandler(), nullptr);
    QCOMPARE(manager->children(), QObjectList());
}

void tst_ZTBatchManager::stopWithoutServer()
{
    const ManagerLife manager(SettingsDir());
    const QSignalSpy failed(manager.Get(), &ZTBatchManager::ConnectionFailed);
    const DebugLines lines;
    manager->Stop();
    QCOMPARE(lines.TextsFrom(privateSource), QStringList{QStringLiteral("Batch process does not exist.")});
    QCOMPARE(lines.All().size(), 1);
    QCOMPARE(failed.count(), 0);
}

void tst_ZTBatchManager::serverErrorWithoutServer_data()
{
    QTest::addColumn<QProcess::ProcessError>("error");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("failures");

    const auto log = [](int number) { return QStringList{QStringLiteral("Batch server error: %1").arg(number)}; };
    QTest::newRow("failed to start") << QProcess::FailedToStart << QStringList() << 1;
    QTest::newRow("crashed") << QProcess::Crashed << QStringList() << 1;
    QTest::newRow("timed out") << QProcess::Timedout << log(2) << 0;
    QTest::newRow("read error") << QProcess::ReadError << log(3) << 0;
    QTest::newRow("write error") << QProcess::WriteError << log(4) << 0;
    QTest::newRow("unknown error") << QProcess::UnknownError << log(5) << 0;
}

void tst_ZTBatchManager::serverErrorWithoutServer()
{
    QFETCH(QProcess::ProcessError, error);
    QFETCH(QStringList, texts);
    QFETCH(int, failures);

    const ManagerLife manager(SettingsDir());
    const QSignalSpy failed(manager.Get(), &ZTBatchManager::ConnectionFailed);
    const DebugLines lines;
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnServerError", Q_ARG(QProcess::ProcessError, error)));
    QCOMPARE(lines.TextsFrom(privateSource), texts);
    QCOMPARE(lines.All().size(), texts.size());
    QCOMPARE(failed.count(), failures);
}

void tst_ZTBatchManager::serverEndWithoutServer()
{
    const ManagerLife manager(SettingsDir());
    const QSignalSpy failed(manager.Get(), &ZTBatchManager::ConnectionFailed);
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnServerFinished", Q_ARG(int, 0)));
    QCOMPARE(failed.count(), 1);
}

void tst_ZTBatchManager::messageWithoutSession_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("payload");

    const QByteArray unknownId = QByteArray::fromHex("000000020061");
    for (int number = -1; number <= 22; ++number) {
        const QString name = QString::number(number);
        QTest::addRow("%d", number) << name << unknownId;
        QTest::addRow("%d, empty", number) << name << QByteArray();
    }
    QTest::newRow("text") << QStringLiteral("MsgProgress") << unknownId;
    QTest::newRow("unknown marker") << QStringLiteral("1000") << unknownId;
    QTest::newRow("no name") << QString() << unknownId;
    QTest::newRow("null id") << QStringLiteral("7") << QByteArray::fromHex("FFFFFFFF00000001");
    QTest::newRow("empty id") << QStringLiteral("7") << QByteArray::fromHex("0000000000000001");
    QTest::newRow("cut id") << QStringLiteral("7") << QByteArray::fromHex("0000000400");
    QTest::newRow("odd id") << QStringLiteral("7") << QByteArray::fromHex("00000003616263");
    QTest::newRow("huge id") << QStringLiteral("7") << QByteArray::fromHex("FFFFFFFE0061");
}

void tst_ZTBatchManager::messageWithoutSession()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, payload);

    const ManagerLife manager(SettingsDir());
    const DebugLines lines;
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnIncomingMessage", Q_ARG(QString, name),
                                      Q_ARG(QByteArray, payload)));
    QCOMPARE(lines.All(), QStringList());
    QVERIFY(manager->IsAllowToCreateSession());
}

void tst_ZTBatchManager::foreignObjectDestroyed()
{
    const ManagerLife manager(SettingsDir());
    QObject object;
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnBatchSessionDestroyed", Q_ARG(QObject*, &object)));
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnBatchSessionDestroyed", Q_ARG(QObject*, nullptr)));
    QVERIFY(manager->IsAllowToCreateSession());
}

void tst_ZTBatchManager::failedAssertions_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a timer event without a server") << QStringLiteral("manager-timer-without-server");
}

void tst_ZTBatchManager::failedAssertions()
{
    QFETCH(QString, name);

    const DeathReport report = RunDeathCase(name);
    QVERIFY2(report.EndedByAssertOf(privateSource), qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ZTBatchManager)
#include "tst_ztbatchmanager.moc"
