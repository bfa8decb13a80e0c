// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerTest.h"

#include "DebugLines.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <limits>

namespace {

const QString privateSource = QStringLiteral("src\\private\\ZTBatchManager_p");

const Policies defaults{2, 2, 2, 3, 2};

QString PolicyFile(const QString& settingsDir)
{
    return settingsDir + QStringLiteral("/BatchExceptionPolicy.ini");
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

} // namespace

/// The manager's five policies: setters, signals, and the file that keeps them.
class tst_ManagerPolicies : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_ManagerPolicies::policyDefaults()
{
    const ManagerLife manager(SettingsDir());
    QCOMPARE(CurrentPolicies(), defaults);
    QCOMPARE(folder->Entries(), QStringList());
}

void tst_ManagerPolicies::policySetter_data()
{
    QTest::addColumn<int>("position");

    QTest::newRow("input") << 0;
    QTest::newRow("output") << 1;
    QTest::newRow("processing") << 2;
    QTest::newRow("naming") << 3;
    QTest::newRow("write to format") << 4;
}

void tst_ManagerPolicies::policySetter()
{
    QFETCH(int, position);

    const ManagerLife manager(SettingsDir());
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

void tst_ManagerPolicies::policySetterTakesAnyValue()
{
    const ManagerLife manager(SettingsDir());
    const Policies values{-1, 77, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1000000};
    SetPolicies(values);
    QCOMPARE(CurrentPolicies(), values);
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(CurrentPolicies(), values);
}

void tst_ManagerPolicies::policySignalsTravelQueued()
{
    const ManagerLife manager(SettingsDir());
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

void tst_ManagerPolicies::policiesAreSavedAtRelease()
{
    const Policies values{0, 1, 2, 3, 4};
    ZTBatchManager::InitInstance(SettingsDir());
    SetPolicies({1, 1, 1, 1, 1});
    SetPolicies(values);
    ZTBatchManager::ReleaseInstance();

    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(CurrentPolicies(), values);
}

void tst_ManagerPolicies::policiesAreNotSavedBefore()
{
    const ManagerLife manager(SettingsDir());
    SetPolicies({1, 1, 1, 1, 1});
    QCoreApplication::processEvents();
    QCOMPARE(folder->Entries(), QStringList());
}

void tst_ManagerPolicies::policyFileBytes()
{
    ZTBatchManager::InitInstance(SettingsDir());
    SetPolicies({0, 1, -2, 30, 4});
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(folder->Entries(), QStringList{QStringLiteral("BatchExceptionPolicy.ini")});
    // The five keys are at the top level, which the format calls "General". On Windows Qt writes them in the order in
    // which they were set, elsewhere sorted by name.
#ifdef Q_OS_WIN
    const QByteArray content = "[General]\nInputPolicy=0\nOutputPolicy=1\nProcessingPolicy=-2\nNamingPolicy=30\n"
                               "WriteToFormatPolicy=4\n";
#else
    const QByteArray content = "[General]\nInputPolicy=0\nNamingPolicy=30\nOutputPolicy=1\nProcessingPolicy=-2\n"
                               "WriteToFormatPolicy=4\n";
#endif
    QCOMPARE(ReadFile(PolicyFile(SettingsDir())).replace("\r\n", "\n"), content);
}

void tst_ManagerPolicies::policyFileKeepsOtherEntries()
{
    const QString path = PolicyFile(SettingsDir());
    QVERIFY(WriteFile(path, "[General]\nOther=x\n\n[Group]\nInputPolicy=0\n"));
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(CurrentPolicies(), defaults);
    ZTBatchManager::ReleaseInstance();
    const QByteArray bytes = ReadFile(path);
    QVERIFY2(bytes.contains("Other=x"), bytes.constData());
    QVERIFY2(bytes.contains("[Group]"), bytes.constData());
    QVERIFY2(bytes.contains("NamingPolicy=3"), bytes.constData());
}

void tst_ManagerPolicies::policiesOfTwoLives()
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

    // A file that another program has changed between two lives is read.
    QVERIFY(WriteFile(two + QStringLiteral("/BatchExceptionPolicy.ini"), "[General]\nOutputPolicy=12\n"));
    ZTBatchManager::InitInstance(two);
    QCOMPARE(CurrentPolicies(), (Policies{2, 12, 2, 3, 2}));
}

void tst_ManagerPolicies::policyFileValue_data()
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

void tst_ManagerPolicies::policyFileValue()
{
    QFETCH(QByteArray, text);
    QFETCH(int, value);

    QVERIFY(WriteFile(PolicyFile(SettingsDir()), "[General]\nNamingPolicy=" + text + "\n"));
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(CurrentPolicies(), (Policies{2, 2, 2, value, 2}));
}

void tst_ManagerPolicies::policyFileWithoutSomeKeys()
{
    QVERIFY(WriteFile(PolicyFile(SettingsDir()), "WriteToFormatPolicy=3\nInputPolicy=1\n"));
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(CurrentPolicies(), (Policies{1, 2, 2, 3, 3}));
}

void tst_ManagerPolicies::policyFileJunk_data()
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

void tst_ManagerPolicies::policyFileJunk()
{
    QFETCH(QByteArray, bytes);

    QVERIFY(WriteFile(PolicyFile(SettingsDir()), bytes));
    const DebugLines lines;
    ZTBatchManager::InitInstance(SettingsDir());
    QCOMPARE(CurrentPolicies(), defaults);
    SetPolicies({1, 0, 1, 0, 1});
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(lines.TextsFrom(privateSource), QStringList());
}

void tst_ManagerPolicies::policyFileInMissingFolder()
{
    const QString missing = folder->FilePath(QStringLiteral("not/there/yet"));
    ZTBatchManager::InitInstance(missing);
    QCOMPARE(CurrentPolicies(), defaults);
    SetPolicies({1, 1, 1, 1, 1});
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(missing);
    QCOMPARE(CurrentPolicies(), (Policies{1, 1, 1, 1, 1}));
}

void tst_ManagerPolicies::policyFileInUnusableFolder_data()
{
    QTest::addColumn<QString>("kind");

    QTest::newRow("a file") << QStringLiteral("file");
    QTest::newRow("the policy file is a folder") << QStringLiteral("folder");
    QTest::newRow("read only") << QStringLiteral("read only");
#ifdef Q_OS_LINUX
    QTest::newRow("no folders there") << QStringLiteral("/proc/self");
#endif
}

void tst_ManagerPolicies::policyFileInUnusableFolder()
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

QTEST_GUILESS_MAIN(tst_ManagerPolicies)
#include "tst_managerpolicies.moc"
