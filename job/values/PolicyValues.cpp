// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PolicyValues.h"

#include "JobValues.h"

namespace BatchJob {

QStringList PolicyWords(PolicyKind kind)
{
    switch (kind) {
    case PolicyKind::Naming:
        return AllWords(NamingPolicyWords);
    case PolicyKind::WriteToFormat:
        return AllWords(WriteToFormatPolicyWords);
    default:
        return AllWords(FilePolicyWords);
    }
}

QString PolicyWord(PolicyKind kind, int value)
{
    switch (kind) {
    case PolicyKind::Naming:
        return WordOf(NamingPolicyWords, value);
    case PolicyKind::WriteToFormat:
        return WordOf(WriteToFormatPolicyWords, value);
    default:
        return WordOf(FilePolicyWords, value);
    }
}

int AskingPolicy(PolicyKind kind)
{
    switch (kind) {
    case PolicyKind::Naming:
        return ZTBatchManager::NamingAsk;
    case PolicyKind::WriteToFormat:
        return ZTBatchManager::WriteToFormatAsk;
    default:
        return ZTBatchManager::InputAsk;
    }
}

} // namespace BatchJob
