#pragma once

#include "WorkerMessages.h"

#include "ZTBatchPayload.h"

#include <QString>

#include <array>
#include <optional>

/// What is done about a case.
enum class Decision { Skip, Stop, Ask, Overwrite, Rename, Nearest };

/// The policies of a run, as they are now: an answer may change one for the rest of it.
class Policies
{
public:
    Policies() = default;

    /// Takes the policies of an order. A value that CheckPolicies() refuses means to skip.
    explicit Policies(const ZTBatchPayload::Process& order);

    Decision Of(BatchServer::Case kind) const;
    void Set(BatchServer::Case kind, Decision decision);

    /// What `value` of the policy for `kind` means; nothing when it is none of that policy's.
    static std::optional<Decision> Meaning(BatchServer::Case kind, int value);

    /// The question about a case of this kind. Its answer comes under the same number.
    static ZTBatchMessage::Message Question(BatchServer::Case kind);

    /// For users: "input", "naming".
    static QString Name(BatchServer::Case kind);

private:
    static std::size_t Index(BatchServer::Case kind);

    std::array<Decision, 5> decisions{};
};
