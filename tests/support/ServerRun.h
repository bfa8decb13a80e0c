// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PrivateTempDir.h"
#include "ZTBatchDocument.h"
#include "ZTBatchManager.h"
#include "ZTBatchPayload.h"
#include "ZTPipeSession.h"

#include <QObject>
#include <QProcess>
#include <QStringList>

#include <functional>
#include <memory>

/// A batch server in a folder of its own, and a host on its pipe that writes down what it is told.
///
/// The server lies in a new temporary folder together with the worker that the test wants. The folder also is the place
/// for its pipe and for the test's files. At the end of this object server and workers are gone.
class ServerRun : public QObject
{
    Q_OBJECT

public:
    enum class Worker {
        Real,
        StandIn, ///< see tests/helpers/standinworker
        Lying,   ///< see tests/helpers/lyingworker
        Missing
    };

    explicit ServerRun(Worker worker);
    ~ServerRun() override;

    /// The path of `name` in the folder.
    QString Path(const QString& name) const { return folder.FilePath(name); }

    /// Writes a file, with the folders above it, and returns its path.
    QString Write(const QString& name, const QByteArray& content);

    /// The content of a file; null when there is none.
    QByteArray Content(const QString& name) const;

    /// The names of all files in a folder, hidden ones too, sorted.
    QStringList Names(const QString& folderName) const;

    /// A variable of the server's environment, for servers that start from now on.
    void SetVariable(const QString& name, const QString& value) { environment.insert(name, value); }

    /// Starts the server, and connects a host that creates a session.
    bool Start();
    bool StartServer();
    bool Connect();

    /// Kills the server, and returns when its workers have followed it.
    bool KillServer();

    /// The host goes, without a word.
    void DropPipe() { pipe.reset(); }

    /// The text of a job for the files, with results in the folder "out" under their original names, as JPEG.
    QString Job(const QStringList& inputs, const std::function<void(ZTBatchDocument&)>& change = {}) const;

    struct Policies
    {
        int input = ZTBatchManager::InputSkip;
        int output = ZTBatchManager::OutputSkip;
        int processing = ZTBatchManager::ProcessingSkip;
        int naming = ZTBatchManager::NamingSkip;
        int format = ZTBatchManager::WriteToFormatSkip;
    };

    void Process(const QString& job, const Policies& policies);
    void Process(const QString& job) { Process(job, Policies()); }

    /// Sends a message with the fields after the session's id.
    template<ZTBatchMessage::Message message, typename... Fields>
    void Send(Fields... fields)
    {
        SendRaw(message, ZTBatchPayload::Pack(ZTBatchPayload::ToServer<message>{session, fields...}));
    }
    void SendRaw(ZTBatchMessage::Message message, const QByteArray& payload);

    /// Waits until a line begins with `line`, 30 seconds at most.
    bool WaitFor(const QString& line);
    bool WaitForFinished() { return WaitFor(QStringLiteral("finished")); }

    /// Waits until the server has ended by itself; its exit code, or -1.
    int WaitForEnd();

    /// The lines so far that begin with `begin`.
    QStringList Lines(const QString& begin) const;
    int Count(const QString& begin) const { return Lines(begin).size(); }

    /// Everything for the message of a failed test.
    QString Report() const;

    /// The process ids of the workers.
    QList<qint64> WorkerIds() const;

    /// Whether a process has ended.
    static bool HasEnded(qint64 process);

    /// The most memory that the server ever had, in bytes; 0 where that is not to be had.
    qint64 PeakMemory() const;

    QProcess& Server() { return server; }
    ZTPipeSession* Pipe() { return pipe.get(); }

    /// What came, in order: "range 0 3", "file [in]", "processed [in] [out]", "error [in] [out] action code",
    /// "progress 1", "log text", "finished", "input question" and so on; paths within the folder without the folder.
    QStringList lines;

    QString session = QStringLiteral("session");

private:
    void Note(const QString& name, const QByteArray& payload);
    QString Short(const QString& path) const;

    PrivateTempDir folder;
    QProcessEnvironment environment;
    QProcess server;
    std::unique_ptr<ZTPipeSession> pipe;
    QString errors;
};
