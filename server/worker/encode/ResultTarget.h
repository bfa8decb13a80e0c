// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <vips/vips8>

namespace BatchWorker {

/// Bytes that a file has beside those of an encoder.
struct AddedBytes
{
    QByteArray bytes;
    gint64 place = 0; ///< how many of the encoder's bytes come before
};

/// An open file as a target of the imaging library. It remembers why a write failed, because the library throws the
/// same exception for a full disk and for a damaged source. A failure does not stop the library: ask Problem() after.
class ResultTarget
{
public:
    /// Writes to `descriptor`, which stays the caller's, from its beginning, what the library writes, and `added`. An
    /// encoder that goes back to earlier bytes must have `added` before all of them.
    ResultTarget(int descriptor, const AddedBytes& added);

    vips::VTarget Target() const { return target; }

    /// The error number of the first operation on the file that failed; 0 if none did.
    int Problem() const { return problem; }

private:
    ResultTarget(const ResultTarget&) = delete;
    ResultTarget& operator=(const ResultTarget&) = delete;

    gint64 Write(const char* data, gint64 length);
    void WriteToFile(const char* data, gint64 length);
    gint64 Seek(gint64 offset, int whence);

    vips::VTarget target;
    int descriptor;
    AddedBytes added;
    gint64 done = 0; ///< bytes of the library up to `added`
    bool isAdded = false;
    int problem = 0;
};

} // namespace BatchWorker
