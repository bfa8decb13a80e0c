// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// The rate of progress messages from a server process to the signal of a session, compared with a bare QLocalSocket and
// a QDataStream that read the same burst. The time is from the server's first write to the last emission, on a clock
// that both processes share. Every run checks that all messages arrive in order.

#include "ManagerRun.h"
#include "OwnFolder.h"
#include "Stopwatch.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QLocalSocket>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using Session = ZTBatchManager::ZTBatchSession;

constexpr int rounds = 7;
constexpr double goal = 200000; // messages per second

/// Receives the values of a burst, and checks and times them.
class Burst
{
public:
    explicit Burst(int count)
        : count(count)
    {
    }

    void Receive(int value)
    {
        isInOrder = isInOrder && value == received;
        if (++received == count) {
            end = Nanoseconds();
        }
    }

    bool IsComplete() const { return received == count; }

    /// Messages per second since the start of the burst, which is one of the server's `events`.
    double Rate(const QStringList& events) const
    {
        const QStringList begin = events.filter(QStringLiteral("flood "));
        if (!IsComplete() || !isInOrder || begin.size() != 1) {
            qFatal("The burst is incomplete or out of order.");
        }
        return count / ((end - begin.first().mid(6).toLongLong()) / 1e9);
    }

private:
    int count;
    int received = 0;
    bool isInOrder = true;
    qint64 end = 0;
};

QStringList Rules(int count)
{
    return {opensAtOnce, QStringLiteral("5: flood %1").arg(count)};
}

double ManagerRate(int count)
{
    ManagerRun run(Rules(count));
    if (!run.Connect()) {
        qFatal("The server is not connected.");
    }
    Session* session = run.Manager()->CreateBatchSession();
    Burst burst(count);
    QObject::connect(session, &Session::Progress, session, [&burst](int value) { burst.Receive(value); });
    session->Process(QString());
    Eventually([&] { return burst.IsComplete(); });
    return burst.Rate(run.stage.Events());
}

double BareRate(int count)
{
    ManagerRun run(Rules(count));
    QProcess server;
    server.start(ServerStage::ServerPath(), {ServerStage::PipeName()});
    QLocalSocket socket;
    Eventually([&] { return run.stage.Count(QStringLiteral("open")) == 1; });
    socket.connectToServer(ServerStage::PipeName());

    Burst burst(count);
    QDataStream in(&socket);
    QObject::connect(&socket, &QLocalSocket::readyRead, &socket, [&] {
        for (;;) {
            QString name;
            QByteArray payload;
            in.startTransaction();
            in >> name >> payload;
            if (!in.commitTransaction()) {
                return;
            }
            QDataStream fields(payload);
            QString id;
            int value = 0;
            fields >> id >> value;
            burst.Receive(value);
        }
    });
    const QString id = QStringLiteral("6ba7b810-9dad-11d1-80b4-00c04fd430c8");
    QByteArray created;
    QDataStream fields(&created, QIODevice::WriteOnly);
    fields << id;
    QDataStream out(&socket);
    out << QStringLiteral("0") << created << QStringLiteral("5") << created;
    Eventually([&] { return burst.IsComplete(); });
    server.kill();
    server.waitForFinished();
    return burst.Rate(run.stage.Events());
}

void Measure(int count)
{
    std::vector<double> managerRates;
    std::vector<double> bareRates;
    for (int round = 0; round < rounds; ++round) {
        managerRates.push_back(ManagerRate(count));
        bareRates.push_back(BareRate(count));
    }
    const double rate = Median(managerRates);
    const double slowest = *std::min_element(managerRates.begin(), managerRates.end());
    const double bareRate = Median(bareRates);
    std::printf(
        "%7d progress messages   manager %8.0f /s (slowest of %d: %8.0f)   bare socket %8.0f /s   ratio %.2f%s\n",
        count, rate, rounds, slowest, bareRate, rate / bareRate, rate < goal ? "   below the goal" : "");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    return RunInOwnFolder(argc, argv, [](int ownArgc, char** ownArgv) {
        const QCoreApplication application(ownArgc, ownArgv);
        Measure(10000);
        Measure(100000);
        Measure(500000);
        return 0;
    });
}
