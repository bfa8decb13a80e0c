// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchManager.h"

#include <QObject>
#include <QStringList>

/// The lines of a HostLog that many tests expect.
namespace HostLines {

inline const QString established = QStringLiteral("established");
inline const QString failed = QStringLiteral("failed");
inline const QString aborted = QStringLiteral("aborted");
inline const QString finished = QStringLiteral("finished");
inline const QString abnormalEnd = QStringLiteral("log [Abnormal process termination.]");

} // namespace HostLines

/// Records every signal of the manager and of its sessions, in order, one line for each emission.
class HostLog : public QObject
{
    Q_OBJECT

public:
    void Watch(ZTBatchManager* manager);
    void Watch(ZTBatchManager::ZTBatchSession* session);

    int Count(const QString& line) const { return lines.count(line); }

    QStringList lines;
    int connections = 0; ///< how often ConnectionEstablished() was emitted

private:
    void Note(const QString& line) { lines.append(line); }
};
