// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultKind.h"

#include "Phrase.h"

namespace BatchJob {

QString ResultWord(ResultKind kind)
{
    switch (kind) {
    case ResultKind::Written:
        return Phrase::English("written");
    case ResultKind::Unchanged:
        return Phrase::English("unchanged");
    case ResultKind::Skipped:
        return Phrase::English("skipped");
    case ResultKind::Failed:
        return Phrase::English("failed");
    }
    return {};
}

} // namespace BatchJob
