#pragma once

#include <vips/vips8>

namespace BatchServer {

/// An open file as target of the imaging library, which remembers why it could not be written: the library tells a full
/// disk and a damaged source with the same exception.
class ResultTarget
{
public:
    /// Writes to `descriptor`, which stays the caller's, from its present position.
    explicit ResultTarget(int descriptor);

    vips::VTarget Target() const { return target; }

    /// The error number of the first operation on the file that failed; 0 when all went well.
    int Problem() const { return problem; }

private:
    ResultTarget(const ResultTarget&) = delete;
    ResultTarget& operator=(const ResultTarget&) = delete;

    gint64 Write(const char* data, gint64 length);

    vips::VTarget target;
    int descriptor;
    int problem = 0;
};

} // namespace BatchServer
