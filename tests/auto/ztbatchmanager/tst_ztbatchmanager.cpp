#include "DeathCase.h"
#include "DebugLines.h"
#include "MetaMethods.h"
#include "PrivateTempDir.h"
#include "ZTBatchManager.h"
#include "ZTBatchManagerTimings_p.h"
#include "ZTBatchSession.h"
#include "ZTInputDnDHandler.h"
#include "ZTInputUpdateHandler.h"

#include <QAction>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMimeData>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

// What the manager does without a server: its life, its policies, its registries.

namespace {

const QString managerSource = QStringLiteral("src\\ZTBatchManager");
const QString privateSource = QStringLiteral("src\\private\\ZTBatchManager_p");

/// The manager for the length of a test.
class ManagerLife
{
public:
    explicit ManagerLife(const QString& settingsDir) { ZTBatchManager::InitInstance(settingsDir); }
    ~ManagerLife() { ZTBatchManager::ReleaseInstance(); }

    ZTBatchManager* operator->() const { return ZTBatchManager::Instance(); }
    ZTBatchManager* Get() const { return ZTBatchManager::Instance(); }

private:
    Q_DISABLE_COPY(ManagerLife)
};

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

/// A model's address for those who only pass it on.
ZTBatchInputModel* SomeModel()
{
    static char place = 0;
    return reinterpret_cast<ZTBatchInputModel*>(&place);
}

using Policies = QList<int>;
const Policies defaults{2, 2, 2, 3, 2};

Policies CurrentPolicies()
{
    const ZTBatchManager* manager = ZTBatchManager::Instance();
    return {manager->GetInputPolicy(), manager->GetOutputPolicy(), manager->GetProcessingPolicy(),
            manager->GetNamingPolicy(), manager->GetWriteToFormatPolicy()};
}

void SetPolicies(const Policies& values)
{
    ZTBatchManager* manager = ZTBatchManager::Instance();
    manager->SetInputPolicy(static_cast<ZTBatchManager::InputPolicy>(values[0]));
    manager->SetOutputPolicy(static_cast<ZTBatchManager::OutputPolicy>(values[1]));
    manager->SetProcessingPolicy(static_cast<ZTBatchManager::ProcessingPolicy>(values[2]));
    manager->SetNamingPolicy(static_cast<ZTBatchManager::NamingPolicy>(values[3]));
    manager->SetWriteToFormatPolicy(static_cast<ZTBatchManager::WriteToFormatPolicy>(values[4]));
}

bool WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QByteArray> ParameterNames(const QMetaObject& object, const char* signature)
{
    return object.method(object.indexOfMethod(signature)).parameterNames();
}

} // namespace

class tst_ZTBatchManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

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

    void policyDefaults();
    void policySetter_data();
    void policySetter();
    void policySetterTakesAnyValue();
    void policySignalsTravelQueued();
    void policiesAreSavedAtRelease();
    void policiesAreNotSavedBefore();
    void policyFileBytes();
    void policyFileKeepsOtherEntries();
    void policiesOfTwoLives();
    void policyFileValue_data();
    void policyFileValue();
    void policyFileWithoutSomeKeys();
    void policyFileJunk_data();
    void policyFileJunk();
    void policyFileInMissingFolder();
    void policyFileInUnusableFolder_data();
    void policyFileInUnusableFolder();

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

    void deaths_data();
    void deaths();

private:
    std::unique_ptr<PrivateTempDir> folder;
};

void tst_ZTBatchManager::init()
{
    folder = std::make_unique<PrivateTempDir>();
}

void tst_ZTBatchManager::cleanup()
{
    ZTBatchManager::ReleaseInstance();
    folder.reset();
}

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

    ZTBatchManager::InitInstance(folder->FilePath(QString()));
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
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(lines.All(), QStringList());
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(lines.TextsFrom(managerSource), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
    QCOMPARE(lines.All().size(), 2);
}

void tst_ZTBatchManager::releaseIsNotSeenHalfDone()
{
    const ManagerLife manager(folder->FilePath(QString()));
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
    const ManagerLife manager(folder->FilePath(QString()));
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
    const ManagerLife manager(folder->FilePath(QString()));
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

    const ManagerLife manager(folder->FilePath(QString()));
    const QSignalSpy failed(manager.Get(), &ZTBatchManager::ConnectionFailed);
    const DebugLines lines;
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnServerError", Q_ARG(QProcess::ProcessError, error)));
    QCOMPARE(lines.TextsFrom(privateSource), texts);
    QCOMPARE(lines.All().size(), texts.size());
    QCOMPARE(failed.count(), failures);
}

void tst_ZTBatchManager::serverEndWithoutServer()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

    const ManagerLife manager(folder->FilePath(QString()));
    const DebugLines lines;
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnIncomingMessage", Q_ARG(QString, name),
                                      Q_ARG(QByteArray, payload)));
    QCOMPARE(lines.All(), QStringList());
    QVERIFY(manager->IsAllowToCreateSession());
}

void tst_ZTBatchManager::foreignObjectDestroyed()
{
    const ManagerLife manager(folder->FilePath(QString()));
    QObject object;
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnBatchSessionDestroyed", Q_ARG(QObject*, &object)));
    QVERIFY(QMetaObject::invokeMethod(manager.Get(), "OnBatchSessionDestroyed", Q_ARG(QObject*, nullptr)));
    QVERIFY(manager->IsAllowToCreateSession());
}

void tst_ZTBatchManager::policyDefaults()
{
    const ManagerLife manager(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), defaults);
    QCOMPARE(folder->Entries(), QStringList());
}

void tst_ZTBatchManager::policySetter_data()
{
    QTest::addColumn<int>("position");

    QTest::newRow("input") << 0;
    QTest::newRow("output") << 1;
    QTest::newRow("processing") << 2;
    QTest::newRow("naming") << 3;
    QTest::newRow("write to format") << 4;
}

void tst_ZTBatchManager::policySetter()
{
    QFETCH(int, position);

    const ManagerLife manager(folder->FilePath(QString()));
    QSignalSpy spies[] = {
        QSignalSpy(manager.Get(), &ZTBatchManager::InputPolicyChanged),
        QSignalSpy(manager.Get(), &ZTBatchManager::OutputPolicyChanged),
        QSignalSpy(manager.Get(), &ZTBatchManager::ProcessingPolicyChanged),
        QSignalSpy(manager.Get(), &ZTBatchManager::NamingPolicyChanged),
        QSignalSpy(manager.Get(), &ZTBatchManager::WriteToFormatChanged),
    };
    const auto emissions = [&spies] {
        QList<int> counts;
        for (const QSignalSpy& spy : spies) {
            counts.append(spy.count());
        }
        return counts;
    };

    SetPolicies(defaults);
    QCOMPARE(emissions(), (QList<int>{0, 0, 0, 0, 0}));

    Policies values = defaults;
    values[position] = 1;
    SetPolicies(values);
    QCOMPARE(CurrentPolicies(), values);
    QList<int> once{0, 0, 0, 0, 0};
    once[position] = 1;
    QCOMPARE(emissions(), once);
    QCOMPARE(spies[position][0][0].toInt(), 1);

    SetPolicies(values);
    QCOMPARE(emissions(), once);

    values[position] = 0;
    SetPolicies(values);
    once[position] = 2;
    QCOMPARE(emissions(), once);
    QCOMPARE(spies[position][1][0].toInt(), 0);
}

void tst_ZTBatchManager::policySetterTakesAnyValue()
{
    const ManagerLife manager(folder->FilePath(QString()));
    const Policies values{-1, 77, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1000000};
    SetPolicies(values);
    QCOMPARE(CurrentPolicies(), values);
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), values);
}

void tst_ZTBatchManager::policySignalsTravelQueued()
{
    const ManagerLife manager(folder->FilePath(QString()));
    QTimer bySignature;
    connect(manager.Get(), SIGNAL(NamingPolicyChanged(NamingPolicy)), &bySignature, SLOT(start()),
            Qt::QueuedConnection);
    int seen = -1;
    connect(
        manager.Get(), &ZTBatchManager::NamingPolicyChanged, this,
        [&seen](ZTBatchManager::NamingPolicy policy) { seen = policy; }, Qt::QueuedConnection);
    manager->SetNamingPolicy(ZTBatchManager::NamingRename);
    QVERIFY(!bySignature.isActive());
    QCOMPARE(seen, -1);
    QCoreApplication::processEvents();
    QVERIFY(bySignature.isActive());
    QCOMPARE(seen, 2);
}

void tst_ZTBatchManager::policiesAreSavedAtRelease()
{
    const Policies values{0, 1, 2, 3, 4};
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    SetPolicies({1, 1, 1, 1, 1});
    SetPolicies(values);
    ZTBatchManager::ReleaseInstance();

    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), values);
}

void tst_ZTBatchManager::policiesAreNotSavedBefore()
{
    const ManagerLife manager(folder->FilePath(QString()));
    SetPolicies({1, 1, 1, 1, 1});
    QCoreApplication::processEvents();
    QCOMPARE(folder->Entries(), QStringList());
}

void tst_ZTBatchManager::policyFileBytes()
{
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    SetPolicies({0, 1, -2, 30, 4});
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(folder->Entries(), QStringList{QStringLiteral("BatchExceptionPolicy.ini")});
    // The five stand at the top level, which the format calls "General". Qt writes them in the order in which they were
    // set on Windows, and by name elsewhere.
#ifdef Q_OS_WIN
    const QByteArray content = "[General]\nInputPolicy=0\nOutputPolicy=1\nProcessingPolicy=-2\nNamingPolicy=30\n"
                               "WriteToFormatPolicy=4\n";
#else
    const QByteArray content = "[General]\nInputPolicy=0\nNamingPolicy=30\nOutputPolicy=1\nProcessingPolicy=-2\n"
                               "WriteToFormatPolicy=4\n";
#endif
    QCOMPARE(ReadFile(folder->FilePath(QStringLiteral("BatchExceptionPolicy.ini"))).replace("\r\n", "\n"), content);
}

void tst_ZTBatchManager::policyFileKeepsOtherEntries()
{
    const QString path = folder->FilePath(QStringLiteral("BatchExceptionPolicy.ini"));
    QVERIFY(WriteFile(path, "[General]\nOther=x\n\n[Group]\nInputPolicy=0\n"));
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), defaults);
    ZTBatchManager::ReleaseInstance();
    const QByteArray bytes = ReadFile(path);
    QVERIFY2(bytes.contains("Other=x"), bytes.constData());
    QVERIFY2(bytes.contains("[Group]"), bytes.constData());
    QVERIFY2(bytes.contains("NamingPolicy=3"), bytes.constData());
}

void tst_ZTBatchManager::policiesOfTwoLives()
{
    const QString one = folder->FilePath(QStringLiteral("one"));
    const QString two = folder->FilePath(QStringLiteral("two"));
    ZTBatchManager::InitInstance(one);
    SetPolicies({0, 0, 0, 0, 0});
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(two);
    QCOMPARE(CurrentPolicies(), defaults);
    SetPolicies({1, 1, 1, 1, 1});
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(one);
    QCOMPARE(CurrentPolicies(), (Policies{0, 0, 0, 0, 0}));
    ZTBatchManager::ReleaseInstance();

    // What somebody else writes between two lives counts.
    QVERIFY(WriteFile(two + QStringLiteral("/BatchExceptionPolicy.ini"), "[General]\nOutputPolicy=12\n"));
    ZTBatchManager::InitInstance(two);
    QCOMPARE(CurrentPolicies(), (Policies{2, 12, 2, 3, 2}));
}

void tst_ZTBatchManager::policyFileValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("number") << QByteArray("1") << 1;
    QTest::newRow("negative") << QByteArray("-5") << -5;
    QTest::newRow("with sign") << QByteArray("+4") << 4;
    QTest::newRow("quoted") << QByteArray("\"4\"") << 4;
    QTest::newRow("spaces around") << QByteArray("  4  ") << 4;
    QTest::newRow("leading zeros") << QByteArray("007") << 7;
    QTest::newRow("greatest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("word") << QByteArray("ask") << 0;
    QTest::newRow("empty") << QByteArray("") << 0;
    QTest::newRow("number and word") << QByteArray("2x") << 0;
    QTest::newRow("fraction") << QByteArray("2.5") << 0;
    QTest::newRow("hexadecimal") << QByteArray("0x2") << 0;
    QTest::newRow("list") << QByteArray("2, 2") << 0;
    QTest::newRow("too great, cut to 32 bits") << QByteArray("4294967297") << 1;
    QTest::newRow("far too great") << QByteArray("99999999999999999999") << 0;
    QTest::newRow("truth") << QByteArray("true") << 0;
    QTest::newRow("invalid variant") << QByteArray("@Invalid()") << 0;
    QTest::newRow("other digits") << QByteArray("\xd9\xa2") << 0;
}

void tst_ZTBatchManager::policyFileValue()
{
    QFETCH(QByteArray, text);
    QFETCH(int, value);

    QVERIFY(WriteFile(folder->FilePath(QStringLiteral("BatchExceptionPolicy.ini")),
                      "[General]\nNamingPolicy=" + text + "\n"));
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), (Policies{2, 2, 2, value, 2}));
}

void tst_ZTBatchManager::policyFileWithoutSomeKeys()
{
    QVERIFY(WriteFile(folder->FilePath(QStringLiteral("BatchExceptionPolicy.ini")),
                      "WriteToFormatPolicy=3\nInputPolicy=1\n"));
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), (Policies{1, 2, 2, 3, 3}));
}

void tst_ZTBatchManager::policyFileJunk_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QByteArray allBytes;
    for (int byte = 0; byte < 256; ++byte) {
        allBytes.append(static_cast<char>(byte));
    }
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("every byte") << allBytes;
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("no assignment") << QByteArray("InputPolicy\nOutputPolicy\n");
    QTest::newRow("unclosed group") << QByteArray("[General\n=\n=0\n");
    QTest::newRow("other group") << QByteArray("[Policies]\nInputPolicy=0\nNamingPolicy=0\n");
    QTest::newRow("comment") << QByteArray("; InputPolicy=0\n");
}

void tst_ZTBatchManager::policyFileJunk()
{
    QFETCH(QByteArray, bytes);

    QVERIFY(WriteFile(folder->FilePath(QStringLiteral("BatchExceptionPolicy.ini")), bytes));
    const DebugLines lines;
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(CurrentPolicies(), defaults);
    SetPolicies({1, 0, 1, 0, 1});
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(lines.TextsFrom(privateSource), QStringList());
}

void tst_ZTBatchManager::policyFileInMissingFolder()
{
    const QString missing = folder->FilePath(QStringLiteral("not/there/yet"));
    ZTBatchManager::InitInstance(missing);
    QCOMPARE(CurrentPolicies(), defaults);
    SetPolicies({1, 1, 1, 1, 1});
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(missing);
    QCOMPARE(CurrentPolicies(), (Policies{1, 1, 1, 1, 1}));
}

void tst_ZTBatchManager::policyFileInUnusableFolder_data()
{
    QTest::addColumn<QString>("kind");

    QTest::newRow("a file") << QStringLiteral("file");
    QTest::newRow("the policy file is a folder") << QStringLiteral("folder");
    QTest::newRow("read only") << QStringLiteral("read only");
#ifdef Q_OS_LINUX
    QTest::newRow("no folders there") << QStringLiteral("/proc/self");
#endif
}

void tst_ZTBatchManager::policyFileInUnusableFolder()
{
    QFETCH(QString, kind);

    QString settingsDir = folder->FilePath(QStringLiteral("settings"));
    QFile::Permissions permissions;
    if (kind == QLatin1String("file")) {
        QVERIFY(WriteFile(settingsDir, "x"));
    } else if (kind == QLatin1String("folder")) {
        QVERIFY(QDir().mkpath(settingsDir + QStringLiteral("/BatchExceptionPolicy.ini")));
    } else if (kind == QLatin1String("read only")) {
        QVERIFY(QDir().mkpath(settingsDir));
        permissions = QFile::permissions(settingsDir);
        QVERIFY(QFile::setPermissions(settingsDir, QFile::ReadOwner | QFile::ExeOwner));
    } else {
        settingsDir = kind;
    }

    ZTBatchManager::InitInstance(settingsDir);
    QCOMPARE(CurrentPolicies(), defaults);
    SetPolicies({1, 1, 1, 1, 1});
    const DebugLines lines;
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(ZTBatchManager::Instance(), nullptr);
    QCOMPARE(lines.TextsFrom(privateSource), QStringList());
    if (permissions) {
        QVERIFY(QFile::setPermissions(settingsDir, permissions));
    }
}

void tst_ZTBatchManager::actionsByOrder_data()
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

void tst_ZTBatchManager::actionsByOrder()
{
    QFETCH(QList<int>, orders);
    QFETCH(QList<int>, expected);

    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::actionTwice()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::actionSignals()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::actionUnregistered()
{
    const ManagerLife manager(folder->FilePath(QString()));
    QAction actions[3] = {QAction(nullptr), QAction(nullptr), QAction(nullptr)};
    for (QAction& action : actions) {
        manager->RegisterInputAction(&action, 1);
    }
    manager->UnregisterInputAction(&actions[1]);
    QCOMPARE(manager->GetInputActions(), (QList<QAction*>{&actions[0], &actions[2]}));
    manager->RegisterInputAction(&actions[1], 1);
    QCOMPARE(manager->GetInputActions(), (QList<QAction*>{&actions[0], &actions[2], &actions[1]}));
}

void tst_ZTBatchManager::unknownActionUnregistered()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::deletedActionLeaves()
{
    const ManagerLife manager(folder->FilePath(QString()));
    const QSignalSpy unregistered(manager.Get(), &ZTBatchManager::InputActionUnregistered);
    QAction stays(nullptr);
    auto leaves = std::make_unique<QAction>(nullptr);
    manager->RegisterInputAction(leaves.get(), 1);
    manager->RegisterInputAction(&stays, 2);
    leaves.reset();
    QCOMPARE(manager->GetInputActions(), QList<QAction*>{&stays});
    QCOMPARE(unregistered.count(), 0);
}

void tst_ZTBatchManager::unregisteredActionIsForgotten()
{
    const ManagerLife manager(folder->FilePath(QString()));
    auto action = std::make_unique<QAction>(nullptr);
    manager->RegisterInputAction(action.get(), 1);
    manager->UnregisterInputAction(action.get());
    action.reset(); // Would end the process if the manager were still told.
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
}

void tst_ZTBatchManager::actionUnregisteredInItsSignal()
{
    const ManagerLife manager(folder->FilePath(QString()));
    QAction action(nullptr);
    connect(manager.Get(), &ZTBatchManager::InputActionRegistered, this,
            [&manager](QAction* registered) { manager->UnregisterInputAction(registered); });
    const QSignalSpy unregistered(manager.Get(), &ZTBatchManager::InputActionUnregistered);
    manager->RegisterInputAction(&action, 1);
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
    QCOMPARE(unregistered.count(), 1);
}

void tst_ZTBatchManager::actionDeletedInItsSignal()
{
    const ManagerLife manager(folder->FilePath(QString()));
    connect(manager.Get(), &ZTBatchManager::InputActionRegistered, this,
            [](QAction* registered) { delete registered; });
    const QPointer<QAction> action = new QAction(nullptr);
    manager->RegisterInputAction(action, 1);
    QVERIFY(!action);
    QCOMPARE(manager->GetInputActions(), QList<QAction*>());
}

void tst_ZTBatchManager::manyActions()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::actionsDoNotSurviveTheManager()
{
    QAction action(nullptr);
    DnDHandler dnd;
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    ZTBatchManager::Instance()->RegisterInputAction(&action, 1);
    ZTBatchManager::Instance()->RegisterDragAndDropHandler(&dnd);
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    QCOMPARE(ZTBatchManager::Instance()->GetInputActions(), QList<QAction*>());
    QCOMPARE(ZTBatchManager::Instance()->InputDragAndDropHandler(), nullptr);
}

void tst_ZTBatchManager::actionOutlivesTheManager()
{
    auto action = std::make_unique<QAction>(nullptr);
    auto update = std::make_unique<UpdateHandler>();
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    ZTBatchManager::Instance()->RegisterInputAction(action.get(), 1);
    ZTBatchManager::Instance()->RegisterInputUpdateHandler(update.get());
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(folder->FilePath(QString()));
    action.reset();
    update.reset();
    QCOMPARE(ZTBatchManager::Instance()->GetInputActions(), QList<QAction*>());
}

void tst_ZTBatchManager::dndHandler()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::dndHandlerForwards()
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

void tst_ZTBatchManager::updateHandler()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::updateHandlerForwards()
{
    UpdateHandler handler;
    const QModelIndex index;
    handler.Update(SomeModel(), index, true);
    handler.Update(nullptr, index, false);
    QCOMPARE(handler.updates.size(), 2);
    QVERIFY(handler.updates[0] == std::make_tuple(SomeModel(), &index, true));
    QVERIFY(handler.updates[1] == std::make_tuple(static_cast<ZTBatchInputModel*>(nullptr), &index, false));
}

void tst_ZTBatchManager::updateHandlerSlotBySignature()
{
    UpdateHandler handler;
    const QModelIndex index;
    QVERIFY(QMetaObject::invokeMethod(&handler, "Update", Q_ARG(ZTBatchInputModel*, SomeModel()),
                                      Q_ARG(QModelIndex, index), Q_ARG(bool, true)));
    QCOMPARE(handler.updates.size(), 1);
}

void tst_ZTBatchManager::handlersAreIndependent()
{
    const ManagerLife manager(folder->FilePath(QString()));
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

void tst_ZTBatchManager::handlerRegisteredTwice()
{
    const ManagerLife manager(folder->FilePath(QString()));
    auto handler = std::make_unique<DnDHandler>();
    DnDHandler other;
    manager->RegisterDragAndDropHandler(handler.get());
    manager->RegisterDragAndDropHandler(handler.get());
    manager->RegisterDragAndDropHandler(&other);
    handler.reset();
    QCOMPARE(manager->InputDragAndDropHandler(), &other);
}

void tst_ZTBatchManager::handlerReplacedByItself()
{
    const ManagerLife manager(folder->FilePath(QString()));
    auto handler = std::make_unique<UpdateHandler>();
    manager->RegisterInputUpdateHandler(handler.get());
    manager->RegisterInputUpdateHandler(handler.get());
    QCOMPARE(manager->InputUpdateHandler(), handler.get());
    handler.reset();
    QCOMPARE(manager->InputUpdateHandler(), nullptr);
}

void tst_ZTBatchManager::handlersHaveParents()
{
    QObject owner;
    QCOMPARE(DnDHandler().parent(), nullptr);
    QCOMPARE(UpdateHandler().parent(), nullptr);
    QCOMPARE((new DnDHandler(&owner))->parent(), &owner);
    QCOMPARE((new UpdateHandler(&owner))->parent(), &owner);
}

void tst_ZTBatchManager::deaths_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("source");

    QTest::newRow("a timer event without a server") << QStringLiteral("manager-timer-without-server") << privateSource;
    QTest::newRow("an unknown action is destroyed") << QStringLiteral("manager-unknown-action") << privateSource;
    QTest::newRow("an action that is none any more") << QStringLiteral("manager-dying-action") << privateSource;
    QTest::newRow("an action that is null") << QStringLiteral("manager-null-action") << privateSource;
}

void tst_ZTBatchManager::deaths()
{
    QFETCH(QString, name);
    QFETCH(QString, source);

    const DeathReport report = RunDeathCase(name);
    const QRegularExpression line(QRegularExpression::anchoredPattern(
        QStringLiteral("\\[%1:[1-9][0-9]*\\] Assert failed").arg(QRegularExpression::escape(source))));
    QVERIFY2(line.match(report.lastLine).hasMatch(), qPrintable(report.output));
    QVERIFY2(report.aborted, qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ZTBatchManager)
#include "tst_ztbatchmanager.moc"
