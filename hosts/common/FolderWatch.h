// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

namespace BatchHost {

/// What the system tells of changes in folders. Its signals come from the event loop.
class FolderWatch : public QObject
{
    Q_OBJECT

public:
    /// For `folder` and what is below it.
    explicit FolderWatch(const QString& folder);
    ~FolderWatch() override;

    /// Whether the system tells of changes in all folders that are followed. Otherwise one has to look: the system does
    /// not for network folders, and for a number of folders at most.
    bool IsComplete() const { return channel >= 0; }

    /// Also tells of changes in the folders `paths`, but not below them. Returns whether that is new for any of them:
    /// what has changed there before was not told.
    bool Follow(const QStringList& paths);

Q_SIGNALS:
    /// Anything has changed. Comes after the signals below.
    void Changed();

    void Writing(const QString& path);
    void Closed(const QString& path);
    void MovedIn(const QString& path);

    /// Changes were too many to tell.
    void Overflown();

private:
    void Read();
    void Close();

    int channel = -1;            ///< negative where the system tells nothing
    QHash<int, QString> folders; ///< by the system's number of their watch
};

} // namespace BatchHost
