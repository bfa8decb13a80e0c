// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ForecastLink.h"

#include "hosts/common/Language.h"

#include "ZTBatchInputModel.h"

using BatchHost::Messages;

namespace BatchDesktop {

ForecastLink::ForecastLink(EditedJob& job, PicturesPane& pictures, PreviewPane& preview, JobRunner& runner, RunBar& bar)
    : job(job)
    , pictures(pictures)
    , preview(preview)
    , runner(runner)
    , bar(bar)
{
    connect(&job, &EditedJob::SettingsChanged, this, &ForecastLink::OnJobChanged);
    const ZTBatchInputModel* const model = job.Document().GetInputModel();
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ForecastLink::OnJobChanged);
    connect(model, &QAbstractItemModel::rowsInserted, this, [this] {
        if (this->runner.CurrentState() != JobRunner::State::Idle) {
            this->bar.Say(Messages::tr("Pictures that are added now are for the next run."));
        }
        OnJobChanged();
    });
    connect(&pictures, &PicturesPane::InputsChanged, this, &ForecastLink::Update);
    connect(&pictures.Names(), &NamePlan::Planned, this, &ForecastLink::OnPlanned);
    connect(&estimate, &SizeEstimate::Changed, this, &ForecastLink::Update);
    connect(&bar, &RunBar::SummaryPutAway, this, [this] {
        this->pictures.States().Clear();
        this->pictures.RenewNames();
    });
    connect(&runner, &JobRunner::StateChanged, this, &ForecastLink::UpdateHold);
    const PreviewMaker& maker = preview.Maker();
    connect(&maker, &PreviewMaker::Updating, this, &ForecastLink::UpdateHold);
    connect(&maker, &PreviewMaker::Made, this, &ForecastLink::UpdateHold);
    connect(&maker, &PreviewMaker::Failed, this, &ForecastLink::UpdateHold);
    connect(&maker, &PreviewMaker::Stopped, this, &ForecastLink::UpdateHold);
    Update();
}

void ForecastLink::OnJobChanged()
{
    estimate.Stop();
    if (runner.CurrentState() == JobRunner::State::Idle) {
        bar.PreferForecast();
    }
}

void ForecastLink::OnPlanned()
{
    estimate.Ask(pictures.Names().Writable(), job.CurrentSettings());
    Update();
}

void ForecastLink::UpdateHold()
{
    estimate.Hold(runner.CurrentState() != JobRunner::State::Idle || preview.Maker().IsUpdating());
}

Forecast ForecastLink::Now() const
{
    Forecast forecast;
    forecast.files = job.Document().GetInputModel()->GetFileNodesCount();
    if (const std::optional<NamePlan::Counts> numbers = pictures.Names().Numbers()) {
        forecast.areNamesKnown = pictures.Names().IsCurrent() && !job.CurrentSettings().outputFolder.isEmpty();
        forecast.newNames = numbers->newNames;
        forecast.takenNames = numbers->takenNames;
        forecast.replaced = numbers->replaced;
        forecast.unwritable = numbers->unwritable;
    }
    forecast.sum = estimate.Sum();
    forecast.freeBytes = estimate.FreeBytes();
    return forecast;
}

void ForecastLink::Update()
{
    bar.SetForecast(Now().Text());
}

} // namespace BatchDesktop
