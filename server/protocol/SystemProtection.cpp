// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SystemProtection.h"

#include "job/values/Phrase.h"

namespace BatchProtocol {

namespace {

// The versions of Landlock that bring a right which workers need to lose.
constexpr int withTruncation = 3;
constexpr int withDevices = 5;
constexpr int withScopes = 6;

} // namespace

QStringList SystemProtection::Description() const
{
    if (!canConfine) {
        return {BatchJob::Phrase::English("workers: not confined on this system")};
    }
    QString files = BatchJob::Phrase::English("files of workers: not restricted, as the kernel has no Landlock");
    if (fileAccess > 0) {
        const QString confined =
            fileAccess >= withScopes
                ? BatchJob::Phrase::English("files of workers: those of the job, by Landlock %1, with scopes for "
                                            "signals and sockets")
                : BatchJob::Phrase::English("files of workers: those of the job, by Landlock %1, without scopes for "
                                            "signals and sockets");
        files = confined.arg(fileAccess);
    }
    return {
        files,
        hasCallFilter
            ? BatchJob::Phrase::English("system calls of workers: a list of allowed ones, by seccomp")
            : BatchJob::Phrase::English("system calls of workers: not restricted, as the kernel has no seccomp"),
        BatchJob::Phrase::English("memory of the supervisor: closed to other processes of the user (not dumpable)")};
}

QStringList SystemProtection::Missing() const
{
    if (!canConfine) {
        return {QStringLiteral("Workers are not confined on this system.")};
    }
    QStringList missing;
    if (!hasCallFilter) {
        missing.append(QStringLiteral("This kernel lacks seccomp: the system calls of workers are not restricted."));
    }
    if (fileAccess == 0) {
        missing.append(QStringLiteral("This kernel lacks Landlock, or it is switched off: the access of workers to "
                                      "files is not restricted."));
    } else if (fileAccess < withTruncation) {
        missing.append(QStringLiteral("This kernel has version %1 of Landlock: workers can truncate files that they "
                                      "may only read.")
                           .arg(fileAccess));
    } else if (fileAccess < withDevices) {
        missing.append(
            QStringLiteral("This kernel has version %1 of Landlock: it does not restrict devices.").arg(fileAccess));
    } else if (fileAccess < withScopes) {
        missing.append(
            QStringLiteral("This kernel has version %1 of Landlock: only the list of system calls keeps workers from "
                           "signalling other processes.")
                .arg(fileAccess));
    }
    return missing;
}

} // namespace BatchProtocol
