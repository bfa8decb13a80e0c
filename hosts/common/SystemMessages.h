// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Phrase.h"

#include <array>
#include <cerrno>

namespace BatchHost {

/// What the C library says of an error of a file, in its plain locale. It gets into many texts.
struct SystemMessage
{
    int number; ///< as errno
    const char* text;
};

inline constexpr std::array systemMessages{
    SystemMessage{EACCES, BatchJob::Phrase::Marked("Permission denied")},
    SystemMessage{EPERM, BatchJob::Phrase::Marked("Operation not permitted")},
    SystemMessage{ENOENT, BatchJob::Phrase::Marked("No such file or directory")},
    SystemMessage{EEXIST, BatchJob::Phrase::Marked("File exists")},
    SystemMessage{EISDIR, BatchJob::Phrase::Marked("Is a directory")},
    SystemMessage{ENOTDIR, BatchJob::Phrase::Marked("Not a directory")},
    SystemMessage{ENAMETOOLONG, BatchJob::Phrase::Marked("File name too long")},
    SystemMessage{ENOSPC, BatchJob::Phrase::Marked("No space left on device")},
    SystemMessage{EFBIG, BatchJob::Phrase::Marked("File too large")},
    SystemMessage{EROFS, BatchJob::Phrase::Marked("Read-only file system")},
    SystemMessage{EIO, BatchJob::Phrase::Marked("Input/output error")},
    SystemMessage{EMFILE, BatchJob::Phrase::Marked("Too many open files")},
    SystemMessage{EPIPE, BatchJob::Phrase::Marked("Broken pipe")},
    SystemMessage{ELOOP, BatchJob::Phrase::Marked("Too many levels of symbolic links")},
};

} // namespace BatchHost
