// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/terminal/EventWriter.h"
#include "hosts/cli/terminal/RunDisplay.h"
#include "hosts/cli/terminal/RunSummary.h"
#include "hosts/common/RunReport.h"

#include <QVector>

#include <memory>

namespace BatchCli {

/// How much `arguments` want to be told of a run.
RunDisplay::Detail DetailOf(const ParsedArguments& arguments);

/// What a run prints and writes about itself, as the options ask for it.
class RunOutput
{
public:
    /// Throws RequestError when the report cannot be written.
    explicit RunOutput(const ParsedArguments& arguments);

    QVector<BatchHost::RunObserver*> Observers();
    RunDisplay& Display() { return display; }
    bool IsQuiet() const { return isQuiet; }

    /// After the run: tells when the report could not be written. False then.
    bool WriteReportError() const;

private:
    Q_DISABLE_COPY(RunOutput)

    const bool isQuiet;
    const bool writesEvents;
    std::unique_ptr<BatchHost::RunReport> report;
    RunDisplay display;
    EventWriter events;
    RunSummary summary;
};

} // namespace BatchCli
