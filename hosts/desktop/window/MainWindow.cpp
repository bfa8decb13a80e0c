// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include "hosts/common/Language.h"
#include "hosts/common/Presets.h"
#include "hosts/common/RequestError.h"
#include "hosts/desktop/jobs/PresetBundle.h"
#include "hosts/desktop/jobs/SeveralPresetsDialog.h"
#include "hosts/desktop/run/RunPriority.h"
#include "hosts/desktop/settings/sections/ElidedLabel.h"
#include "hosts/desktop/settings/sections/SettingsSection.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"

#include <QCloseEvent>
#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QVBoxLayout>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

const QString geometryKey = QStringLiteral("geometry");
const QString panesKey = QStringLiteral("panes");
const QString openKey = QStringLiteral("openSections");

RunStates::State StateOf(const FileResult& result)
{
    switch (result.kind) {
    case FileResult::Kind::Written:
    case FileResult::Kind::Unchanged:
        return RunStates::State::Written;
    case FileResult::Kind::Skipped:
        return RunStates::State::Skipped;
    case FileResult::Kind::Failed:
        break;
    }
    return RunStates::State::Failed;
}

} // namespace

MainWindow::MainWindow(const QString& settingsFolder, const QString& dataFolder)
    : settingsFolder(settingsFolder)
    , layoutFile(QDir(settingsFolder).filePath(QStringLiteral("window.ini")))
    , runner(settingsFolder)
    , presets(new PresetBox(job, settingsFolder))
    , system(runner, *this)
{
    setObjectName(QStringLiteral("mainWindow"));
    desk = std::make_unique<JobDesk>(job, *presets, *this, dataFolder);
    MakePanes();
    inputs = std::make_unique<InputModule>(*pictures);
    MakeMenus();
    MakeRunMenu();
    ConnectPictures();
    ConnectRun();
    ConnectJobs();
    ConnectSystem();
    forecasts = std::make_unique<ForecastLink>(job, *pictures, *preview, runner, *bar);
    runs = std::make_unique<RunLink>(job, runner, RunLink::Bars{*bar, *questions, *resume}, settingsFolder);
    UpdateStart();
    RestoreLayout();
}

MainWindow::~MainWindow()
{
    runs.reset(); // They use the panes and bars.
    forecasts.reset();
    inputs.reset(); // It is registered with the manager and uses the pane.
    desk.reset();   // It looks at the presets.
    delete takeCentralWidget();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    SaveLayout();
    desk->Close();
    QMainWindow::closeEvent(event);
}

void MainWindow::RestoreLayout()
{
    const QSettings layout(layoutFile, QSettings::IniFormat);
    if (!restoreGeometry(layout.value(geometryKey).toByteArray())) {
        constexpr QSize usual(1280, 800);
        resize(usual.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    }
    panes->SetWidths(layout.value(panesKey).toByteArray());
    const QStringList open = layout.value(openKey).toStringList();
    for (SettingsSection* const section : settings->Sections()) {
        section->SetFolded(!open.contains(section->objectName()));
    }
}

void MainWindow::SaveLayout() const
{
    QSettings layout(layoutFile, QSettings::IniFormat);
    layout.setValue(geometryKey, saveGeometry());
    layout.setValue(panesKey, panes->Widths());
    QStringList open;
    for (const SettingsSection* const section : settings->Sections()) {
        if (!section->IsFolded()) {
            open.append(section->objectName());
        }
    }
    layout.setValue(openKey, open);
}

QWidget* MainWindow::NewTopRow()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    start = new QPushButton(Messages::tr("Start"));
    start->setObjectName(QStringLiteral("start"));
    start->setDefault(true);
    destination = new ElidedLabel;
    destination->setObjectName(QStringLiteral("destination"));
    destination->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(destination, 1);
    layout->addWidget(presets);
    layout->addWidget(start);
    connect(start, &QPushButton::clicked, this, &MainWindow::StartRun);
    connect(&job, &EditedJob::SettingsChanged, this, &MainWindow::ShowDestination);
    connect(&job, &EditedJob::Replaced, this, &MainWindow::ShowDestination);
    ShowDestination();
    return row;
}

void MainWindow::ShowDestination()
{
    const QString folder = QDir::toNativeSeparators(job.CurrentSettings().outputFolder);
    destination->setText(folder.isEmpty() ? QString() : Messages::tr("Results go to %1").arg(folder));
}

void MainWindow::MakePanes()
{
    auto* const body = new QWidget;
    auto* const layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(NewTopRow());
    layout->addWidget(&desk->Naming());
    layout->addWidget(&desk->Notice());
    pictures = new PicturesPane(job);
    preview = new PreviewPane(job);
    settings = new SettingsPane(job);
    panes = new PaneArrangement(pictures, preview, settings);
    layout->addWidget(panes, 1);
    questions = new QuestionBar(runner);
    bar = new RunBar(runner);
    resume = new ResumeBar;
    layout->addWidget(resume);
    layout->addWidget(questions);
    layout->addWidget(bar);
    setCentralWidget(body);
    focus = new PaneFocus(*panes, {pictures, preview, settings, resume, questions, bar}, this);
}

void MainWindow::MakeMenus()
{
    QMenu* const file = menuBar()->addMenu(Messages::tr("&File"));
    const ZTBatchManager* const manager = ZTBatchManager::Instance();
    file->addActions(manager != nullptr ? manager->GetInputActions() : QList<QAction*>());
    file->addSeparator();
    desk->FillJobMenu(*file);
    file->addSeparator();
    QAction* const quit = file->addAction(Messages::tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu* const edit = menuBar()->addMenu(Messages::tr("&Edit"));
    QAction* const undo = job.History().createUndoAction(this);
    undo->setShortcut(QKeySequence::Undo);
    QAction* const redo = job.History().createRedoAction(this);
    redo->setShortcut(QKeySequence::Redo);
    edit->addActions({undo, redo});
    edit->addSeparator();
    edit->addMenu(settings->AddEffectMenu());
    edit->addActions(settings->EffectActions());

    desk->FillPresetMenu(*menuBar()->addMenu(Messages::tr("&Preset")));

    QMenu* const view = menuBar()->addMenu(Messages::tr("&View"));
    view->addActions(preview->Actions());
    view->addSeparator();
    QAction* const previous =
        view->addAction(Messages::tr("&Previous picture"), pictures, &PicturesPane::SelectPrevious);
    previous->setShortcut(QKeySequence(Qt::Key_BracketLeft));
    QAction* const next = view->addAction(Messages::tr("&Next picture"), pictures, &PicturesPane::SelectNext);
    next->setShortcut(QKeySequence(Qt::Key_BracketRight));
    view->addSeparator();
    view->addAction(
        Messages::tr("Ne&xt pane"), this, [this] { focus->Move(1); }, QKeySequence(Qt::Key_F6));
    view->addAction(
        Messages::tr("Pre&vious pane"), this, [this] { focus->Move(-1); }, QKeySequence(Qt::SHIFT + Qt::Key_F6));
}

void MainWindow::OpenPaths(const QStringList& paths)
{
    const QStringList others = desk->OpenJobs(paths);
    if (!others.isEmpty()) {
        AddPaths(others);
    }
}

void MainWindow::ConnectJobs()
{
    connect(&desk->Keeper(), &JobKeeper::Changed, this, &MainWindow::ShowTitle);
    desk->WatchDrops(*this);
    desk->WatchDrops(*pictures);
    ShowTitle();
}

void MainWindow::ShowTitle()
{
    const JobKeeper& keeper = desk->Keeper();
    setWindowTitle(percent < 0 ? Messages::tr("%1[*] - Velkora Batch").arg(keeper.Name())
                               : Messages::tr("%1 % - %2[*] - Velkora Batch").arg(percent).arg(keeper.Name()));
    setWindowModified(keeper.IsChanged());
    setWindowFilePath(keeper.File());
}

void MainWindow::MakeRunMenu()
{
    QMenu* const menu = menuBar()->addMenu(Messages::tr("&Run"));
    startAction = menu->addAction(Messages::tr("&Start"), this, &MainWindow::StartRun);
    startAction->setObjectName(QStringLiteral("startAction"));
    startAction->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Return));
    severalAction =
        menu->addAction(Messages::tr("Start with several p&resets..."), this, &MainWindow::AskForSeveralPresets);
    severalAction->setObjectName(QStringLiteral("severalAction"));
    menu->addActions(bar->Actions());
    menu->addSeparator();
    updateAction = menu->addAction(Messages::tr("Make only &what has changed"));
    updateAction->setObjectName(QStringLiteral("updateAction"));
    updateAction->setCheckable(true);
    menu->addAction(RunPriority(layoutFile, menu).Action());
}

void MainWindow::ConnectPictures()
{
    connect(pictures, &PicturesPane::CurrentChanged, this, [this](const QString& file) {
        preview->SetFile(file);
        settings->SetExample(file);
    });
    connect(pictures, &PicturesPane::InputsChanged, this, [this] {
        if (pictures->Current().isEmpty()) {
            pictures->SelectNext(); // There is something to see at once.
        }
        UpdateStart();
    });
}

void MainWindow::ConnectRun()
{
    RunStates& states = pictures->States();
    connect(&runner, &JobRunner::StateChanged, this, &MainWindow::UpdateStart);
    connect(&runner, &JobRunner::Started, &states, [this, &states] { states.Begin(runner.CurrentInputs()); });
    connect(&runner, &JobRunner::Begun, &states,
            [&states](const QString& input) { states.Set(input, RunStates::State::Working); });
    connect(&runner, &JobRunner::ResultKnown, this, &MainWindow::OnResult);
    connect(bar, &RunBar::FailedWanted, this, [this] { pictures->Filter(QString(), ShownState::Failed); });
}

void MainWindow::ConnectSystem()
{
    connect(&system, &SystemLink::PercentChanged, this, [this](int now) {
        percent = now;
        ShowTitle();
    });
    connect(&system, &SystemLink::WindowWanted, this, &MainWindow::BringToFront);
    connect(&system, &SystemLink::FolderWanted, this, [this](const QString& folder) { runs->openFolder(folder); });
    connect(&system, &SystemLink::FailuresWanted, this, [this] {
        BringToFront();
        pictures->Filter(QString(), ShownState::Failed);
    });
}

void MainWindow::BringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void MainWindow::OnResult(const QString& input)
{
    const FileResult& result = runner.Results().value(input);
    pictures->States().Set(input, StateOf(result), Translated(result.reason));
}

void MainWindow::StartRun()
{
    BeginRun([this](const std::optional<BatchJob::Update>& update) {
        runner.Start(job.Document(), job.CurrentSettings().policies, update);
    });
}

void MainWindow::AskForSeveralPresets()
{
    QStringList names;
    for (const Preset& preset : Presets(settingsFolder).All()) {
        if (preset.problem.isEmpty()) {
            names.append(preset.name);
        }
    }
    auto* const dialog = new SeveralPresetsDialog(names, job.CurrentSettings().outputFolder, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->Choose(severalPresets);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        severalPresets = dialog->Chosen();
        StartSeveral(severalPresets);
    });
    dialog->open();
}

void MainWindow::StartSeveral(const QStringList& presetNames)
{
    BeginRun([&](const std::optional<BatchJob::Update>& update) {
        ZTBatchDocument first;
        const BatchJob::JobBundle bundle = BundleOfPresets(job.Document(), Presets(settingsFolder), presetNames, first);
        runner.Start(first, bundle, job.CurrentSettings().policies, update);
    });
}

/// What keeps the run from beginning is said in the bar.
void MainWindow::BeginRun(const std::function<void(const std::optional<BatchJob::Update>&)>& begin)
{
    if (runner.CurrentState() != JobRunner::State::Idle) {
        return;
    }
    const QString obstacle = runner.Obstacle();
    if (!obstacle.isEmpty()) {
        bar->Say(obstacle);
        return;
    }
    try {
        begin(updateAction->isChecked() ? std::optional(BatchJob::Update()) : std::nullopt);
    } catch (const RequestError& error) {
        bar->Say(Messages::tr("The run cannot be started: %1.").arg(Translated(error.text)));
    }
}

void MainWindow::UpdateStart()
{
    const bool canStart =
        runner.CurrentState() == JobRunner::State::Idle && job.Document().GetInputModel()->GetFileNodesCount() > 0;
    start->setEnabled(canStart);
    startAction->setEnabled(canStart);
    severalAction->setEnabled(canStart);
}

} // namespace BatchDesktop
