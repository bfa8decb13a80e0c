// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunOutput.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

std::unique_ptr<RunReport> ReportOf(const ParsedArguments& arguments)
{
    const QString option = QStringLiteral("--report");
    if (!arguments.Has(option)) {
        return nullptr;
    }
    try {
        return std::make_unique<RunReport>(arguments.Value(option));
    } catch (const RequestError& error) {
        throw error.In(option);
    }
}

} // namespace

RunDisplay::Detail DetailOf(const ParsedArguments& arguments)
{
    return arguments.Has(QStringLiteral("--quiet"))     ? RunDisplay::Detail::Quiet
           : arguments.Has(QStringLiteral("--verbose")) ? RunDisplay::Detail::Verbose
                                                        : RunDisplay::Detail::Normal;
}

RunOutput::RunOutput(const ParsedArguments& arguments)
    : isQuiet(arguments.Has(QStringLiteral("--quiet")))
    , writesEvents(arguments.Has(QStringLiteral("--json")))
    , report(ReportOf(arguments))
    , display(DetailOf(arguments))
{
}

QVector<RunObserver*> RunOutput::Observers()
{
    QVector<RunObserver*> observers{&display};
    if (writesEvents) {
        observers.append(&events);
    }
    if (report) {
        observers.append(report.get());
    }
    if (!isQuiet) {
        observers.append(&summary);
    }
    return observers;
}

bool RunOutput::WriteReportError() const
{
    if (!report || report->Error().isEmpty()) {
        return true;
    }
    WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(Translated(report->Error())));
    return false;
}

} // namespace BatchCli
