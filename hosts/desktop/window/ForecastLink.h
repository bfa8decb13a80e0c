// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/estimate/Forecast.h"
#include "hosts/desktop/estimate/SizeEstimate.h"
#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/pictures/PicturesPane.h"
#include "hosts/desktop/preview/PreviewPane.h"
#include "hosts/desktop/run/JobRunner.h"
#include "hosts/desktop/run/RunBar.h"

#include <QObject>

namespace BatchDesktop {

/// Lets the bar of the run say what a run would do. The bytes of the results are estimated while neither a run nor the
/// preview needs the machine.
class ForecastLink : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
    ForecastLink(EditedJob& job, PicturesPane& pictures, PreviewPane& preview, JobRunner& runner, RunBar& bar);

    const SizeEstimate& Estimate() const { return estimate; }

    Forecast Now() const;

private:
    void OnJobChanged();
    void OnPlanned();
    void UpdateHold();
    void Update();

    EditedJob& job;
    PicturesPane& pictures;
    PreviewPane& preview;
    JobRunner& runner;
    RunBar& bar;
    SizeEstimate estimate;
};

} // namespace BatchDesktop
