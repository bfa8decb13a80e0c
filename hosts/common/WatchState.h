// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ArrivedFiles.h"

#include <QFile>
#include <QLockFile>
#include <QString>
#include <QVector>

#include <array>
#include <optional>

class ZTBatchOutputSettings;

namespace BatchHost {

/// What watching a folder remembers in its output folder: which pictures it has taken, how far numbers in names have
/// come, and which pictures are in work. One process at a time holds it. docs/guide/hot-folder.md describes the file.
class WatchState
{
public:
    /// For prefix, middle and suffix of names: the number that comes next.
    using Numbers = std::array<int, 3>;

    /// Pictures that are made together.
    struct Batch
    {
        QString journal; ///< the name of the journal in the output folder
        Numbers next{};  ///< behind this batch
        QVector<SeenFile> files;
    };

    /// Reads the state in `outputFolder`, which is made if it does not exist, for the watched folder `folder`. Throws
    /// RequestError if it cannot be read and written, or another process holds it.
    WatchState(const QString& outputFolder, const QString& folder);

    static QString FileName();

    /// The pictures that were taken and need no further work.
    const QVector<SeenFile>& Taken() const { return taken; }

    /// The batch that was begun and is not done.
    const std::optional<Batch>& Open() const { return open; }

    /// Lets the numbers in names go on where they ended.
    void Continue(ZTBatchOutputSettings& output) const;

    /// What the numbers of `output` are behind `count` pictures.
    static Numbers Behind(const ZTBatchOutputSettings& output, int count);

    // Throw RequestError when the file cannot be written.

    /// Before the journal of the batch is begun.
    void Begin(const Batch& batch);

    /// The journal has begun.
    void NoteBegun();

    /// The open batch needs no further work. Before its journal is removed.
    void NoteDone();

    /// Nothing of the open batch was made, and none of its numbers used.
    void Drop();

private:
    void Read();
    void ReadLine(const QByteArray& line);
    void Write(const QByteArray& line);
    [[noreturn]] void Refuse(const QString& problem) const;

    const QString outputFolder;
    const QString folder;
    QLockFile lock;
    QFile file;
    QVector<SeenFile> taken;
    Numbers next{};
    std::optional<Batch> open;
    bool hasBegun = false;
};

} // namespace BatchHost
