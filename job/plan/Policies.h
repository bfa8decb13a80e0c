// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/PolicyValues.h"

#include "ZTBatchMessage.h"
#include "ZTBatchPayload.h"

#include <QString>

#include <array>
#include <optional>

namespace BatchJob {

/// What is done about a trouble.
enum class Decision { Skip, Stop, Ask, Overwrite, Rename, Nearest };

/// The policies of a run in their current state: an answer may change one for the rest of the run.
class Policies
{
public:
    /// Policies that skip.
    Policies() = default;

    /// A value that the policy does not have means to skip; CheckPolicies() refuses such orders.
    explicit Policies(const PolicyValues& values);
    explicit Policies(const ZTBatchPayload::Process& order);

    Decision Of(PolicyKind kind) const;
    void Set(PolicyKind kind, Decision decision);

    /// The meaning of `value` for the policy `kind`; nothing when the policy has no such value.
    static std::optional<Decision> Meaning(PolicyKind kind, int value);

    /// The question of the policy `kind`. Its answer comes under the same number.
    static ZTBatchMessage::Message Question(PolicyKind kind);

    /// The name for users: "input", "naming".
    static QString Name(PolicyKind kind);

private:
    static std::size_t Index(PolicyKind kind);

    std::array<Decision, policyCount> decisions{};
};

} // namespace BatchJob
