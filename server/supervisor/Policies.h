#pragma once

#include "server/protocol/WorkerMessages.h"

#include "ZTBatchPayload.h"

#include <QString>

#include <array>
#include <optional>

namespace BatchSupervisor {

/// What is done about a case.
enum class Decision { Skip, Stop, Ask, Overwrite, Rename, Nearest };

/// The policies of a run, as they are now: an answer may change one for the rest of it.
class Policies
{
public:
    Policies() = default;

    /// Takes the policies of an order. A value that CheckPolicies() refuses means to skip.
    explicit Policies(const ZTBatchPayload::Process& order);

    Decision Of(BatchProtocol::Case kind) const;
    void Set(BatchProtocol::Case kind, Decision decision);

    /// What `value` of the policy for `kind` means; nothing when it is none of that policy's.
    static std::optional<Decision> Meaning(BatchProtocol::Case kind, int value);

    /// The question about a case of this kind. Its answer comes under the same number.
    static ZTBatchMessage::Message Question(BatchProtocol::Case kind);

    /// For users: "input", "naming".
    static QString Name(BatchProtocol::Case kind);

private:
    static std::size_t Index(BatchProtocol::Case kind);

    std::array<Decision, 5> decisions{};
};

} // namespace BatchSupervisor
