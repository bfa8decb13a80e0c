// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchJob {

/// The name of a result that the plan of a greater job has made.
struct FixedName
{
    QString output; ///< path
    QString format; ///< of a FormatSchema

    qint64 number = 1; ///< of its file in texts, see OutputNaming::NumberOf()

    // How that plan came to the name.
    bool isRenamed = false;
    bool isOverwriting = false;
    bool hasOtherFormat = false;
};

} // namespace BatchJob
