// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Trouble.h"

namespace BatchJob {

bool CountsAsSkipped(Action action, int errorCode)
{
    return action == Action::FileSkipped &&
           (errorCode == ZTBatchMessage::FileNameAlreadyExists || errorCode == ZTBatchMessage::UnsupportedOutputFormat);
}

PolicyKind PolicyOfError(int errorCode)
{
    switch (errorCode) {
    case ZTBatchMessage::ReadFileError:
    case ZTBatchMessage::UnsupportedInputFormat:
    case ZTBatchMessage::ImageTooLarge:
        return PolicyKind::Input;
    case ZTBatchMessage::WriteOutputFormatError:
        return PolicyKind::Output;
    case ZTBatchMessage::ApplyAdjustmentError:
        return PolicyKind::Processing;
    case ZTBatchMessage::FileNameAlreadyExists:
        return PolicyKind::Naming;
    case ZTBatchMessage::UnsupportedOutputFormat:
        return PolicyKind::WriteToFormat;
    default:
        return PolicyKind::None;
    }
}

} // namespace BatchJob
