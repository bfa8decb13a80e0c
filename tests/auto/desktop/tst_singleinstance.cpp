// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/system/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <future>
#include <vector>

using namespace BatchDesktop;

/// Starts that find each other. Their sockets are in a folder of the test's own.
class tst_SingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void secondStartHandsItsPathsOver_data();
    void secondStartHandsItsPathsOver();
    void startsInOtherFoldersAreApart();
    void nextStartIsTheFirstWhenTheFirstHasEnded();
    void deadSocketsAreInNobodysWay();
    void strangeMessagesAreRefused();
    void severalStartsAtOnceAreAllHeard();

private:
    QString LockFile() const;
    QString ServerName() const;

    QTemporaryDir runtime;
    int folders = 0;
    QString folder; ///< of settings; it needs not exist
};

namespace {

using Place = SingleInstance::Place;

constexpr int patience = 30'000; // ms

/// A second start, in a thread: it waits for the first, which lives in the test's own.
Place StartAnother(const QString& settings, const QStringList& paths)
{
    auto another = std::async(std::launch::async, [&] { return SingleInstance(settings).Begin(paths); });
    const auto isOver = [&another] { return another.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
    return QTest::qWaitFor(isOver, patience) ? another.get() : Place::Alone;
}

} // namespace

void tst_SingleInstance::initTestCase()
{
    QVERIFY(runtime.isValid());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    qputenv("TMP", QFile::encodeName(QDir::toNativeSeparators(runtime.path())));
}

void tst_SingleInstance::init()
{
    folder = runtime.filePath(QStringLiteral("settings-%1").arg(++folders));
}

QString tst_SingleInstance::LockFile() const
{
    const QDir place(runtime.path());
    const QStringList locks = place.entryList({QStringLiteral("velkora-batch-desktop-*.lock")});
    return locks.isEmpty() ? QString() : place.filePath(locks.first());
}

QString tst_SingleInstance::ServerName() const
{
    QString name = LockFile();
    name.chop(int(std::strlen(".lock")));
#ifdef Q_OS_WIN
    name = QFileInfo(name).fileName();
#endif
    return name;
}

void tst_SingleInstance::secondStartHandsItsPathsOver_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("a file") << QStringList{QStringLiteral("/photos/a.jpg")};
    QTest::newRow("names of all kinds") << QStringList{QStringLiteral("/photos/two words"),
                                                       QString::fromUtf8("/写真/ä\n\"b\".jpg"), QStringLiteral("/")};
    QStringList many;
    for (int i = 0; i < 100'000; ++i) {
        many += QStringLiteral("/photos/folder/picture-%1.jpg").arg(i);
    }
    QTest::newRow("100,000 files") << many;
}

void tst_SingleInstance::secondStartHandsItsPathsOver()
{
    QFETCH(QStringList, paths);
    SingleInstance first(folder);
    QSignalSpy started(&first, &SingleInstance::Started);
    QCOMPARE(first.Begin({QStringLiteral("/own.jpg")}), Place::First);
    QCOMPARE(StartAnother(folder, paths), Place::Second);
    QCOMPARE(StartAnother(folder, paths), Place::Second);
    QCOMPARE(started.size(), 2);
    QCOMPARE(started.first().first().toStringList(), paths);
}

void tst_SingleInstance::startsInOtherFoldersAreApart()
{
    SingleInstance first(folder);
    QSignalSpy started(&first, &SingleInstance::Started);
    QCOMPARE(first.Begin({}), Place::First);
    SingleInstance other(runtime.filePath(QStringLiteral("others")));
    QCOMPARE(other.Begin({}), Place::First);
    QVERIFY(started.isEmpty());
}

void tst_SingleInstance::nextStartIsTheFirstWhenTheFirstHasEnded()
{
    for (int i = 0; i < 3; ++i) {
        SingleInstance first(folder);
        QCOMPARE(first.Begin({}), Place::First);
    }
}

// As a killed process leaves them: a socket that nobody listens to, and the lock of a process that is gone.
void tst_SingleInstance::deadSocketsAreInNobodysWay()
{
    QString lockFile;
    QString socketFile;
    {
        SingleInstance first(folder);
        QCOMPARE(first.Begin({}), Place::First);
        lockFile = LockFile();
        socketFile = ServerName();
    }
    const auto write = [](const QString& path, const QByteArray& content) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    constexpr int noProcess = 999'999'999;
    const QByteArray anyHost;
    QVERIFY(write(lockFile, QByteArray::number(noProcess) + "\nvelkora-batch-desktop\n" + anyHost + '\n'));
#ifndef Q_OS_WIN // Pipes end with their process there.
    QVERIFY(write(socketFile, "dead"));
#endif
    SingleInstance next(folder);
    QSignalSpy started(&next, &SingleInstance::Started);
    QCOMPARE(next.Begin({}), Place::First);
    QCOMPARE(StartAnother(folder, {QStringLiteral("/a.jpg")}), Place::Second);
    QCOMPARE(started.size(), 1);
}

void tst_SingleInstance::strangeMessagesAreRefused()
{
    SingleInstance first(folder);
    QSignalSpy started(&first, &SingleInstance::Started);
    QCOMPARE(first.Begin({}), Place::First);
    QLocalSocket gone;
    gone.connectToServer(ServerName());
    gone.write("/half a path");
    gone.disconnectFromServer();
    QLocalSocket endless;
    endless.connectToServer(ServerName());
    const QByteArray block(1'000'000, 'x');
    qint64 sent = 0;
    connect(&endless, &QLocalSocket::bytesWritten, &endless, [&] {
        if (endless.bytesToWrite() == 0) {
            sent += endless.write(block);
        }
    });
    sent += endless.write(block);
    QTRY_COMPARE_WITH_TIMEOUT(endless.state(), QLocalSocket::UnconnectedState, patience);
    QVERIFY(sent < 40'000'000);
    QVERIFY(started.isEmpty());
    QCOMPARE(StartAnother(folder, {QStringLiteral("/a.jpg")}), Place::Second);
    QCOMPARE(started.size(), 1);
}

void tst_SingleInstance::severalStartsAtOnceAreAllHeard()
{
    constexpr int starts = 6;
    SingleInstance first(folder);
    QSignalSpy started(&first, &SingleInstance::Started);
    QCOMPARE(first.Begin({}), Place::First);
    std::vector<std::future<Place>> places;
    for (int i = 0; i < starts; ++i) {
        places.push_back(std::async(std::launch::async, [this, i] {
            return SingleInstance(folder).Begin({QStringLiteral("/%1.jpg").arg(i)});
        }));
    }
    QTRY_COMPARE_WITH_TIMEOUT(started.size(), starts, patience);
    for (std::future<Place>& place : places) {
        QCOMPARE(place.get(), Place::Second);
    }
}

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_singleinstance.moc"
