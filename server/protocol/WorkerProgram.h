// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchProtocol {

/// The path of the worker's executable, beside that of this process. Needs a QCoreApplication.
QString WorkerProgram();

} // namespace BatchProtocol
