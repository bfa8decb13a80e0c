// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// The bytes of a file in memory, for libraries that know names of 8 bit characters only.
class MappedFile
{
public:
    /// With `isChangeable`, the bytes in memory may be changed; those of the file stay as they are.
    explicit MappedFile(const QString& path, bool isChangeable = false);
    ~MappedFile();

    /// Null, with errno, when the file cannot be read, and when it is empty.
    const uchar* Bytes() const { return bytes; }
    qint64 Size() const { return size; }

private:
    Q_DISABLE_COPY(MappedFile)

    const uchar* bytes = nullptr;
    qint64 size = 0;
};

} // namespace BatchWorker
