// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Versions.h"

#include <QByteArray>

#include <optional>

/// Which libraries a worker makes pictures with. Only workers link them, so the others ask the program.
namespace BatchProtocol {

/// The one argument of a worker that is to say its versions on standard output, and to end.
constexpr char versionsArgument[] = "--versions";

/// The versions as a worker says them: a name and a version on each line.
QByteArray LinesOf(const BatchJob::Versions& versions);

/// Reads what a worker has said. Lines that are no versions, or longer than any, are left out.
BatchJob::Versions VersionsIn(const QByteArray& lines);

/// Asks the worker's executable `program`. Nothing if it does not answer; `problem` then says why, for users.
std::optional<BatchJob::Versions> VersionsOfWorker(const QString& program, QString& problem);

} // namespace BatchProtocol
