// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Policies.h"

#include "ZTBatchManager.h"

namespace BatchJob {

Policies::Policies(const PolicyValues& values)
{
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        Set(kind, Meaning(kind, values[std::size_t(i)]).value_or(Decision::Skip));
    }
}

Policies::Policies(const ZTBatchPayload::Process& order)
    : Policies(PolicyValues{order.inputPolicy, order.outputPolicy, order.processingPolicy, order.namingPolicy,
                            order.writeToFormatPolicy})
{
}

Decision Policies::Of(PolicyKind kind) const
{
    return decisions[Index(kind)];
}

void Policies::Set(PolicyKind kind, Decision decision)
{
    decisions[Index(kind)] = decision;
}

std::optional<Decision> Policies::Meaning(PolicyKind kind, int value)
{
    if (kind == PolicyKind::Naming) {
        switch (value) {
        case ZTBatchManager::NamingSkip:
            return Decision::Skip;
        case ZTBatchManager::NamingOverwrite:
            return Decision::Overwrite;
        case ZTBatchManager::NamingRename:
            return Decision::Rename;
        case ZTBatchManager::NamingAsk:
            return Decision::Ask;
        default:
            return std::nullopt;
        }
    }
    switch (value) {
    case ZTBatchManager::WriteToFormatSkip:
        return Decision::Skip;
    case ZTBatchManager::WriteToFormatStop:
        return Decision::Stop;
    case ZTBatchManager::WriteToFormatAsk:
        return Decision::Ask;
    case ZTBatchManager::WriteToFormatNearest:
        return kind == PolicyKind::WriteToFormat ? std::optional(Decision::Nearest) : std::nullopt;
    default:
        return std::nullopt;
    }
}

ZTBatchMessage::Message Policies::Question(PolicyKind kind)
{
    static_assert(ZTBatchMessage::MsgWriteToFormatQuestion - ZTBatchMessage::MsgInputQuestion ==
                  int(PolicyKind::WriteToFormat));
    return ZTBatchMessage::Message(ZTBatchMessage::MsgInputQuestion + int(Index(kind)));
}

QString Policies::Name(PolicyKind kind)
{
    switch (kind) {
    case PolicyKind::Input:
        return QStringLiteral("input");
    case PolicyKind::Output:
        return QStringLiteral("output");
    case PolicyKind::Processing:
        return QStringLiteral("processing");
    case PolicyKind::Naming:
        return QStringLiteral("naming");
    case PolicyKind::WriteToFormat:
        return QStringLiteral("write-to-format");
    case PolicyKind::None:
        break;
    }
    return {};
}

std::size_t Policies::Index(PolicyKind kind)
{
    return std::size_t(kind);
}

} // namespace BatchJob
