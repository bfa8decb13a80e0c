#pragma once

#include <QByteArray>

#include <vips/vips8>

namespace BatchWorker {

/// An open file as target of the imaging library, which remembers why it could not be written: the library tells a full
/// disk and a damaged source with the same exception. A failure does not stop the library; it has to be asked for.
class ResultTarget
{
public:
    /// Writes to `descriptor`, which stays the caller's, from its beginning: first `before`, then what the library
    /// writes.
    ResultTarget(int descriptor, const QByteArray& before);

    vips::VTarget Target() const { return target; }

    /// The error number of the first operation on the file that failed; 0 when all went well.
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
