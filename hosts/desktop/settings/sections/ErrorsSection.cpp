// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ErrorsSection.h"

#include "hosts/common/Language.h"
#include "job/settings/JobCheck.h"

#include "ZTBatchPayload.h"

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

BoundParameter Policy(PolicyKind kind, const char* name, const QString& label, const QVector<ShownChoice>& choices,
                      const char* field)
{
    const auto place = std::size_t(kind);
    return {ChoiceRow(name, label, choices, field),
            [place](const Settings& settings) { return settings.policies[place]; },
            [place](Settings& settings, const QJsonValue& value) { settings.policies[place] = value.toInt(); }};
}

} // namespace

ErrorsSection::ErrorsSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : FormSection(Messages::tr("Error&s"), QStringLiteral("errors"), job, choosers, parent)
{
    MakeForm();
}

QVector<BoundParameter> ErrorsSection::Parameters() const
{
    return {
        Policy(PolicyKind::Input, "input", Messages::tr("A picture that cannot be read"), ChoicesOf(FilePolicyWords),
               "The input policy"),
        Policy(PolicyKind::Output, "output", Messages::tr("A result that cannot be written"),
               ChoicesOf(FilePolicyWords), "The output policy"),
        Policy(PolicyKind::Processing, "processing", Messages::tr("A picture that cannot be processed"),
               ChoicesOf(FilePolicyWords), "The processing policy"),
        Policy(PolicyKind::Naming, "naming", Messages::tr("A name that is taken"), ChoicesOf(NamingPolicyWords),
               "The naming policy"),
        Policy(PolicyKind::WriteToFormat, "format", Messages::tr("A format that cannot hold the picture"),
               ChoicesOf(WriteToFormatPolicyWords), "The write-to-format policy"),
    };
}

QString ErrorsSection::State() const
{
    int asked = 0;
    for (int kind = 0; kind < policyCount; ++kind) {
        asked += Now().policies[std::size_t(kind)] == AskingPolicy(PolicyKind(kind)) ? 1 : 0;
    }
    if (asked == policyCount) {
        return Messages::tr("You are asked");
    }
    return asked == 0 ? Messages::tr("Decided in advance")
                      : Messages::tr("You are asked in %1 of %2 cases").arg(asked).arg(policyCount);
}

QString ErrorsSection::Problem() const
{
    ZTBatchPayload::Process order{};
    order.inputPolicy = Now().policies[std::size_t(PolicyKind::Input)];
    order.outputPolicy = Now().policies[std::size_t(PolicyKind::Output)];
    order.processingPolicy = Now().policies[std::size_t(PolicyKind::Processing)];
    order.namingPolicy = Now().policies[std::size_t(PolicyKind::Naming)];
    order.writeToFormatPolicy = Now().policies[std::size_t(PolicyKind::WriteToFormat)];
    return CheckPolicies(order).message;
}

} // namespace BatchDesktop
