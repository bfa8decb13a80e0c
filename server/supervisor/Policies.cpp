#include "Policies.h"

#include "ZTBatchManager.h"

using namespace BatchProtocol;

using BatchProtocol::Case;

namespace BatchSupervisor {

Policies::Policies(const ZTBatchPayload::Process& order)
{
    Set(Case::Input, Meaning(Case::Input, order.inputPolicy).value_or(Decision::Skip));
    Set(Case::Output, Meaning(Case::Output, order.outputPolicy).value_or(Decision::Skip));
    Set(Case::Processing, Meaning(Case::Processing, order.processingPolicy).value_or(Decision::Skip));
    Set(Case::Naming, Meaning(Case::Naming, order.namingPolicy).value_or(Decision::Skip));
    Set(Case::WriteToFormat, Meaning(Case::WriteToFormat, order.writeToFormatPolicy).value_or(Decision::Skip));
}

Decision Policies::Of(Case kind) const
{
    return decisions[Index(kind)];
}

void Policies::Set(Case kind, Decision decision)
{
    decisions[Index(kind)] = decision;
}

std::optional<Decision> Policies::Meaning(Case kind, int value)
{
    if (kind == Case::Naming) {
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
        return kind == Case::WriteToFormat ? std::optional(Decision::Nearest) : std::nullopt;
    default:
        return std::nullopt;
    }
}

ZTBatchMessage::Message Policies::Question(Case kind)
{
    // The questions stand in the order of the kinds.
    return ZTBatchMessage::Message(ZTBatchMessage::MsgInputQuestion + int(Index(kind)));
}

QString Policies::Name(Case kind)
{
    switch (kind) {
    case Case::Input:
        return QStringLiteral("input");
    case Case::Output:
        return QStringLiteral("output");
    case Case::Processing:
        return QStringLiteral("processing");
    case Case::Naming:
        return QStringLiteral("naming");
    case Case::WriteToFormat:
        return QStringLiteral("write-to-format");
    case Case::None:
        break;
    }
    return {};
}

std::size_t Policies::Index(Case kind)
{
    static_assert(int(Case::Input) == 1 && int(Case::WriteToFormat) == 5);
    return std::size_t(kind) - 1;
}

} // namespace BatchSupervisor
