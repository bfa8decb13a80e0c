// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

#include <vips/vips8>

/// What the worker asks of the system about files. Descriptors are those of the C library that the worker uses; on
/// Windows the imaging library has another one, to which they mean nothing.
namespace BatchWorker {

/// What the error number of one of these functions says, for users.
QString FileProblem(int number);

/// Opens `file` for reading, whatever kind of file it is, without waiting for anything. Child processes do not get it.
/// Negative, with errno, when that fails.
int OpenForReading(const QString& file);

/// The same open file once more, for this process alone. Negative, with errno, when that fails.
int DuplicateOf(int descriptor);

bool IsRegularFile(int descriptor);

/// In bytes; negative, with errno, when it cannot be found out.
qint64 SizeOfFile(int descriptor);

/// Copies up to `length` bytes from `place` on, wherever the file stands. Fewer come at its end, or when there is a
/// limit to one call; 0 at the end. Negative, with errno, when that fails.
qint64 ReadAt(int descriptor, void* target, qint64 length, qint64 place);

/// From now on WriteSome() fails with EFBIG before a file would be larger than `bytes`. On Unix the system sees to
/// that, however a file is written.
void LimitFileSize(qint64 bytes);

/// Writes up to `length` bytes where the file stands, and returns how many. Negative, with errno, when that fails.
qint64 WriteSome(int descriptor, const void* bytes, qint64 length);

/// Where the file stands afterwards; `whence` as for lseek(). Negative, with errno, when that fails.
qint64 MoveTo(int descriptor, qint64 offset, int whence);

/// Opens `file`, which has no name yet, at `path`: also a result that is still open for writing here, which a system
/// may refuse otherwise. False, with file.errorString() where the system says it, when that fails.
bool OpenFile(QFile& file, const QString& path, QIODevice::OpenMode mode);

/// The file as a source of the imaging library, which may be used when `descriptor` is closed.
vips::VSource SourceOf(int descriptor);

/// Gives the open file the times of the last access and change that the file at `path` has.
void CopyTimes(const QString& path, int descriptor);

/// Which file a path leads to, and when it was changed last.
struct FileState
{
    quint64 device = 0;
    quint64 file = 0;
    qint64 bytes = -1;   ///< negative for a file that does not exist
    qint64 modified = 0; ///< in the system's smallest unit, as may be set by programs
    qint64 changed = 0;  ///< the same of any change, as the system notes it

    bool operator==(const FileState& other) const;
};

FileState StateOf(const QString& path);

} // namespace BatchWorker
