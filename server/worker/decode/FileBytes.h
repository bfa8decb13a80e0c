// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace BatchWorker {

/// The bytes of an open file by their places. Several users of one file do not disturb each other.
class FileBytes
{
public:
    /// Reads from a duplicate of `descriptor`. Throws PictureFailure if it cannot be duplicated.
    explicit FileBytes(int descriptor);
    ~FileBytes();

    qint64 Size() const { return size; }

    /// Copies up to `length` bytes from `offset` on; returns how many there were before the end or an error.
    qint64 Read(qint64 offset, void* target, qint64 length) const;

    /// The same as a byte array, shorter where the file ends.
    QByteArray At(qint64 offset, int length) const;

private:
    Q_DISABLE_COPY(FileBytes)

    int file;
    qint64 size;
};

} // namespace BatchWorker
