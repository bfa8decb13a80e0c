// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/JobValues.h"
#include "job/values/PolicyValues.h"

#include "ZTBatchMessage.h"

#include <QString>

namespace BatchJob {

/// Something that keeps a file from being written as it was planned.
struct Trouble
{
    PolicyKind kind = PolicyKind::None; ///< the policy that decides about it; None when there is no trouble
    int code = ZTBatchMessage::NoError; ///< a ZTBatchMessage::Error
    QString reason;                     ///< for the log
    QString nearestFormat;              ///< for WriteToFormat: a format that can hold the picture; may be empty
    bool isFromWorker = false;          ///< found at work, not by the plan
};

/// The policy that decides about a file that was not written because of `errorCode`. None for other codes.
PolicyKind PolicyOfError(int errorCode);

/// Whether a file that was not written counts as skipped; otherwise it counts as failed. A file is skipped when nothing
/// is wrong with the picture: its name is taken, or its format cannot be written. A file that a stopped run leaves
/// behind counts as failed.
bool CountsAsSkipped(Action action, int errorCode);

} // namespace BatchJob
