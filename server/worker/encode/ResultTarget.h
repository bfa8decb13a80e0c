#pragma once

#include <QByteArray>

#include <vips/vips8>

namespace BatchWorker {

/// An open file as a target of the imaging library. It remembers why a write failed, because the library throws the
/// same exception for a full disk and for a damaged source. A failure does not stop the library: ask Problem() after.
class ResultTarget
{
public:
    /// Writes to `descriptor`, which stays the caller's, from its beginning: first `before`, then what the library
    /// writes.
    ResultTarget(int descriptor, const QByteArray& before);

    vips::VTarget Target() const { return target; }

    /// The error number of the first operation on the file that failed; 0 if none did.
    int Problem() const { return problem; }

private:
    ResultTarget(const ResultTarget&) = delete;
    ResultTarget& operator=(const ResultTarget&) = delete;

    gint64 Write(const char* data, gint64 length);
    gint64 Seek(gint64 offset, int whence);

    vips::VTarget target;
    int descriptor;
    gint64 lengthBefore;
    int problem = 0;
};

} // namespace BatchWorker
