// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"

#include <QString>

#include <tiffio.h>

namespace BatchWorker {

/// A TIFF file, opened by its decoder: the first directory. What the decoder complains of is kept here and printed
/// nowhere.
class TiffHandle
{
public:
    /// Opens the file of the descriptor `source`, which may be closed then. The decoder takes at most
    /// `largestAllocation` bytes at once. Throws DamagedFile.
    TiffHandle(int source, qint64 largestAllocation);
    ~TiffHandle();

    TIFF* Get() const { return tiff; }

    qint64 FileSize() const;

    /// How many directories the file has. Afterwards the decoder may stand at another one.
    int CountDirectories() const { return int(TIFFNumberOfDirectories(tiff)); }

    /// The first error, as the decoder says it; empty when there was none.
    const QString& Problem() const { return problem; }

    /// From now on, what the decoder repairs is appended to `list`. Before, it speaks of fields that it does not know.
    void WarnTo(BatchJob::Warnings& list) { warnings = &list; }

    /// The value of a field that always has one; `fallback` when it lacks.
    template<typename Value>
    Value Field(quint32 tag, Value fallback) const
    {
        Value value = fallback;
        return TIFFGetFieldDefaulted(tiff, tag, &value) == 1 ? value : fallback;
    }

private:
    Q_DISABLE_COPY(TiffHandle)

    static tmsize_t Read(thandle_t self, void* bytes, tmsize_t count);
    static tmsize_t Write(thandle_t, void*, tmsize_t);
    static toff_t Seek(thandle_t self, toff_t offset, int whence);
    static int Close(thandle_t);
    static toff_t Size(thandle_t self);
    static int NoteError(TIFF*, void* self, const char*, const char* format, va_list values)
        __attribute__((format(printf, 4, 0)));
    static int NoteWarning(TIFF*, void* self, const char*, const char* format, va_list values)
        __attribute__((format(printf, 4, 0)));

    int descriptor;
    qint64 position = 0;
    QString problem;
    BatchJob::Warnings* warnings = nullptr;
    TIFF* tiff = nullptr;
};

} // namespace BatchWorker
