// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunLink.h"

#include "hosts/common/JobBundles.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"

#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QUrl>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

QString AskForReport(QWidget* parent)
{
    const QString proposed = QDir::home().filePath(QStringLiteral("report.csv"));
    const QString filters = Messages::tr("Tables (*.csv)") + QStringLiteral(";;") + Messages::tr("JSON files (*.json)");
    return QFileDialog::getSaveFileName(parent, Messages::tr("Save the report"), proposed, filters);
}

} // namespace

RunLink::RunLink(EditedJob& job, JobRunner& runner, const Bars& bars, const QString& settingsFolder)
    : chooseReport(AskForReport)
    , openFolder([](const QString& folder) { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); })
    , job(job)
    , runner(runner)
    , bars(bars)
    , thumbnails(ThumbnailFiles::OfUser())
    , search(settingsFolder)
{
    ConnectQuestions();
    ConnectReport();
    ConnectInterruptedRuns();
}

void RunLink::ConnectQuestions()
{
    connect(&bars.questions, &QuestionBar::PicturesWanted, this, [this](const QString& there, const QString& input) {
        existing = there;
        wanted = input;
        thumbnails.Forget(existing); // It may be a result of this very run.
        thumbnails.Want({existing, wanted});
        ShowPictures();
    });
    connect(&thumbnails, &Thumbnails::Changed, this, &RunLink::ShowPictures);
}

void RunLink::ShowPictures()
{
    const auto& question = runner.OpenQuestion();
    if (question && question->input == wanted && question->output == existing) {
        bars.questions.SetPictures(thumbnails.Of(existing), thumbnails.Of(wanted));
    }
}

void RunLink::ConnectReport()
{
    connect(&bars.run, &RunBar::FolderWanted, this, [this](const QString& folder) { openFolder(folder); });
    connect(&bars.run, &RunBar::ReportWanted, this, &RunLink::SaveReport);
}

void RunLink::SaveReport()
{
    const QString path = chooseReport(bars.run.window());
    if (path.isEmpty()) {
        return;
    }
    try {
        runner.SaveReport(path);
        bars.run.Say(Messages::tr("The report was saved as %1.").arg(QDir::toNativeSeparators(path)));
    } catch (const RequestError& error) {
        bars.run.Say(Messages::tr("The report was not saved: %1.").arg(Translated(error.text)));
    }
}

void RunLink::ConnectInterruptedRuns()
{
    connect(&runner, &JobRunner::Started, this, [this] { search.Remember(runner.CurrentFolder()); });
    connect(&runner, &JobRunner::StateChanged, this,
            [this] { bars.resume.SetCanResume(runner.CurrentState() == JobRunner::State::Idle); });
    connect(&search, &InterruptedRunSearch::Found, &bars.resume, &ResumeBar::Offer);
    connect(&bars.resume, &ResumeBar::ResumeWanted, this, &RunLink::TakeUp);
    connect(&bars.resume, &ResumeBar::ForgetWanted, this, [this](const InterruptedRun& run) {
        const QString problem = InterruptedRunSearch::Forget(run);
        if (!problem.isEmpty()) {
            bars.run.Say(Messages::tr("The run cannot be forgotten: %1.").arg(problem));
        }
    });
    search.Start();
}

/// An empty window shows the job of the run; other jobs stay.
void RunLink::TakeUp(const InterruptedRun& run)
{
    const QString obstacle = runner.Obstacle();
    if (!obstacle.isEmpty()) {
        bars.run.Say(obstacle);
        return;
    }
    if (job.Document().GetInputModel()->GetFileNodesCount() == 0) {
        job.Replace([&run](ZTBatchDocument& document) {
            ReadFirstJob(document, run.document);
            document.GetOutputSettings()->SetPath(run.folder); // The first of several jobs has one of its own there.
        });
    }
    try {
        runner.TakeUp(run.folder, run.name);
    } catch (const RequestError& error) {
        bars.run.Say(Messages::tr("The run cannot be resumed: %1.").arg(Translated(error.text)));
    }
}

} // namespace BatchDesktop
