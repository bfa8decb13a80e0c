// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// The cost of a pipe session, compared in the same run with a bare QLocalSocket and a QDataStream on each side:
// messages and megabytes per second, the time from a write to its signal, and the memory for one large message.
//
// The sender is a child process. Each message begins with the time at which it was sent, on a clock that both processes
// share. A run lasts from the first of these times to the arrival of the last message. The sender sends all messages of
// a run as fast as it can.

#include "Stopwatch.h"
#include "ZTPipeSession.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace {

const QString messageName = QStringLiteral("7");
const QString sessionKind = QStringLiteral("session");
const QString bareKind = QStringLiteral("bare");
constexpr int rounds = 5;
constexpr int latencyMessages = 500;
constexpr int latencyInterval = 7; // ms: not a multiple or divisor of the 10 ms between polls
constexpr int largeSize = 256 * 1024 * 1024;

/// A new payload for one message, as every user makes it, which begins with the current time.
QByteArray Stamped(const QByteArray& pattern)
{
    QByteArray payload(pattern.constData(), pattern.size());
    const qint64 now = Nanoseconds();
    std::memcpy(payload.data(), &now, sizeof(now));
    return payload;
}

qint64 Stamp(const QByteArray& payload)
{
    qint64 stamp = 0;
    std::memcpy(&stamp, payload.constData(), sizeof(stamp));
    return stamp;
}

QByteArray Pattern(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>((i * 31 + (i >> 8)) & 0xFF);
    }
    return bytes;
}

/// The peak memory of this process so far, in bytes; 0 where the system does not tell.
qint64 PeakMemory()
{
#ifdef Q_OS_LINUX
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
#else
    return 0;
#endif
}

// The child process ---------------------------------------------------------------------------------------------------

struct Task
{
    QString kind;
    QString pipe;
    int size = 0;
    int count = 0;
    int interval = 0; ///< ms between two messages; 0 for all at once
};

/// Sends a task's messages, at their interval or all at once.
class Sender
{
public:
    Sender(const Task& task, std::function<void(const QByteArray&)> send)
        : task(task)
        , send(std::move(send))
        , pattern(Pattern(task.size))
        , left(task.count)
    {
    }

    void Start()
    {
        if (task.interval == 0) {
            for (; left > 0; --left) {
                send(Stamped(pattern));
            }
            return;
        }
        QObject::connect(&timer, &QTimer::timeout, [this] {
            send(Stamped(pattern));
            if (--left == 0) {
                timer.stop();
            }
        });
        timer.setTimerType(Qt::PreciseTimer);
        timer.start(task.interval);
    }

private:
    Task task;
    std::function<void(const QByteArray&)> send;
    QByteArray pattern;
    int left;
    QTimer timer;
};

/// Calls `receive` for each message on a bare socket, with the transactions of QDataStream.
template<typename Receive>
void ReadBare(QLocalSocket& socket, const Receive& receive)
{
    QDataStream stream(&socket);
    for (;;) {
        QString name;
        QByteArray payload;
        stream.startTransaction();
        stream >> name >> payload;
        if (!stream.commitTransaction()) {
            return;
        }
        receive(payload);
    }
}

void WriteBare(QLocalSocket& socket, const QByteArray& payload)
{
    QDataStream stream(&socket);
    stream << messageName << payload;
}

int RunChild(const Task& task)
{
    if (task.kind == sessionKind) {
        ZTPipeSession session(task.pipe, nullptr);
        Sender sender(task, [&](const QByteArray& payload) { session.Send(messageName, payload); });
        QObject::connect(&session, &ZTPipeSession::SessionDown, qApp, &QCoreApplication::quit);
        QObject::connect(&session, &ZTPipeSession::SessionConnected, qApp, [&] { sender.Start(); });
        QCoreApplication::exec();
    } else {
        QLocalSocket socket;
        Sender sender(task, [&](const QByteArray& payload) { WriteBare(socket, payload); });
        QObject::connect(&socket, &QLocalSocket::disconnected, qApp, &QCoreApplication::quit);
        socket.connectToServer(task.pipe);
        sender.Start();
        QCoreApplication::exec();
    }
    std::printf("%lld\n", static_cast<long long>(PeakMemory()));
    return 0;
}

// The receiving process -----------------------------------------------------------------------------------------------

struct Run
{
    double seconds = 0;
    std::vector<double> latencies; ///< ms
    qint64 childPeak = 0;          ///< bytes
    bool isIntact = true;
};

class Receiver
{
public:
    explicit Receiver(const Task& task)
        : task(task)
        , expected(Pattern(task.size))
    {
    }

    void Receive(const QByteArray& payload)
    {
        const qint64 now = Nanoseconds();
        const qint64 stamp = Stamp(payload);
        first = received == 0 ? stamp : first;
        run.latencies.push_back((now - stamp) / 1e6);
        // A single large message is compared completely; of many small ones only the size, to keep the timing true.
        const std::size_t compared = task.count > 1 ? 0 : expected.size() - sizeof(stamp);
        const bool isSame =
            payload.size() == expected.size() &&
            std::memcmp(payload.constData() + sizeof(stamp), expected.constData() + sizeof(stamp), compared) == 0;
        run.isIntact = run.isIntact && isSame;
        if (++received == task.count) {
            run.seconds = (now - first) / 1e9;
            QCoreApplication::quit();
        }
    }

    Run run;

private:
    Task task;
    QByteArray expected;
    int received = 0;
    qint64 first = 0;
};

Run Measure(Task task)
{
    static int runs = 0;
    task.pipe = QStringLiteral("bench%1").arg(++runs);
    QLocalServer server;
    if (!server.listen(task.pipe)) {
        qFatal("Cannot listen: %s", qPrintable(server.errorString()));
    }
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {task.kind, task.pipe, QString::number(task.size),
                                                          QString::number(task.count), QString::number(task.interval)});
    if (!server.waitForNewConnection(10000)) {
        qFatal("The sending process did not connect.");
    }

    QLocalSocket* socket = server.nextPendingConnection();
    std::unique_ptr<ZTPipeSession> session;
    Receiver receiver(task);
    const auto receive = [&receiver](const QByteArray& payload) { receiver.Receive(payload); };
    if (task.kind == sessionKind) {
        session = std::make_unique<ZTPipeSession>(socket, nullptr);
        QObject::connect(session.get(), &ZTPipeSession::IncomingMessage, qApp,
                         [&](const QString&, const QByteArray& payload) { receive(payload); });
    } else {
        const auto read = [&] { ReadBare(*socket, receive); };
        QObject::connect(socket, &QLocalSocket::readyRead, qApp, read);
        QTimer::singleShot(0, qApp, read);
    }
    QCoreApplication::exec();
    if (session) {
        session.reset();
    } else {
        delete socket;
    }
    child.waitForFinished();
    receiver.run.childPeak = child.readAllStandardOutput().trimmed().toLongLong();
    return receiver.run;
}

void Throughput(const char* title, int size, int count)
{
    std::vector<double> ratios;
    std::vector<double> sessionRates;
    std::vector<double> bareRates;
    for (int round = 0; round < rounds; ++round) {
        const Run bare = Measure({bareKind, {}, size, count, 0});
        const Run session = Measure({sessionKind, {}, size, count, 0});
        if (!bare.isIntact || !session.isIntact) {
            qFatal("A message arrived broken.");
        }
        bareRates.push_back(count / bare.seconds);
        sessionRates.push_back(count / session.seconds);
        ratios.push_back(bare.seconds / session.seconds);
    }
    const double rate = Median(sessionRates);
    const double bareRate = Median(bareRates);
    std::printf("%-8s %7d messages   session %9.0f /s %8.1f MB/s   bare %9.0f /s %8.1f MB/s   ratio %.2f\n", title,
                count, rate, rate * size / 1e6, bareRate, bareRate * size / 1e6, Median(ratios));
}

void Latency()
{
    const Run session = Measure({sessionKind, {}, 1024, latencyMessages, latencyInterval});
    const Run bare = Measure({bareKind, {}, 1024, latencyMessages, latencyInterval});
    std::printf("write to signal, %d messages of 1 KiB, one every %d ms: median %.2f ms (bare %.2f ms)\n",
                latencyMessages, latencyInterval, Median(session.latencies), Median(bare.latencies));
}

void LargeMessage()
{
    const qint64 before = PeakMemory();
    const Run run = Measure({sessionKind, {}, largeSize, 1, 0});
    // Not the pipe's: the pattern and the payload in the sender, the pattern in this process.
    const double sender = double(run.childPeak) / largeSize - 2;
    const double receiver = double(PeakMemory() - before) / largeSize - 1;
    std::printf("one message of 256 MiB: %s, %.0f MB/s; extra memory in sizes of the message: sender %.2f, receiver "
                "%.2f\n",
                run.isIntact ? "intact" : "BROKEN", largeSize / run.seconds / 1e6, sender, receiver);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 6) {
        return RunChild({arguments[1], arguments[2], arguments[3].toInt(), arguments[4].toInt(), arguments[5].toInt()});
    }

    const QTemporaryDir folder;
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    LargeMessage();
    Throughput("16 B", 16, 1000000);
    Throughput("1 KiB", 1024, 250000);
    Throughput("1 MiB", 1024 * 1024, 250);
    Latency();
    return 0;
}
