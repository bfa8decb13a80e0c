// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTemporaryDir>

/// A temporary folder of its own for this process and its children, so that local sockets and temporary files of tests
/// that run in parallel are separate. Created first in a test; the destructor removes the folder.
class PrivateTempDir
{
public:
    PrivateTempDir();
    ~PrivateTempDir();

    /// The absolute path of `name` in the folder.
    QString FilePath(const QString& name) const;

    /// The names of all entries of the folder, sorted, including local sockets.
    QStringList Entries() const;

private:
    Q_DISABLE_COPY(PrivateTempDir)

    QByteArray previous;
    QTemporaryDir folder;
};
