// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

namespace BatchProtocol {

/// QProcess starts a program from a forked copy of this process, which may wait for a word of this one first. If this
/// process were killed meanwhile, the copy would wait for ever, and keep its pipes and locks. From this call on the
/// system ends such copies with this process, where it can (Linux). May be called before anything of Qt, and
/// repeatedly.
void EndForkedCopiesWithThisProcess();

/// A process that the system ends together with this one, where it can (Linux and Windows). Elsewhere a worker notices
/// the end of its input. It inherits its three standard streams and no other open file.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(QObject* parent = nullptr);

    /// Processes that are started from now on give way to others that need the processor: SCHED_BATCH and a niceness of
    /// 10 on Linux, a niceness elsewhere on Unix, priority below normal on Windows. They take what is left.
    void KeepInBackground();

    /// Starts the process. QProcess misses the end of a process that is killed before its program runs; this does not.
    void Launch(const QString& program, const QStringList& arguments);

protected:
    void setupChildProcess() override;

private:
    bool isInBackground = false;
};

} // namespace BatchProtocol
