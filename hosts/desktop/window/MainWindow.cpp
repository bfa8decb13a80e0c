// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"

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

RunStates::State StateOf(const FileResult& result)
{
    switch (result.kind) {
    case FileResult::Kind::Written:
        return RunStates::State::Written;
    case FileResult::Kind::Skipped:
        return RunStates::State::Skipped;
    case FileResult::Kind::Failed:
        break;
    }
    return RunStates::State::Failed;
}

} // namespace

MainWindow::MainWindow(const QString& settingsFolder)
    : layoutFile(QDir(settingsFolder).filePath(QStringLiteral("window.ini")))
    , runner(settingsFolder)
    , presets(new PresetBox(job, settingsFolder))
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(Messages::tr("Velkora Batch"));
    MakePanes();
    inputs = std::make_unique<InputModule>(*pictures);
    MakeMenus();
    MakeRunMenu();
    ConnectPictures();
    ConnectRun();
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
    delete takeCentralWidget();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    SaveLayout();
    QMainWindow::closeEvent(event);
}

void MainWindow::RestoreLayout()
{
    const QSettings layout(layoutFile, QSettings::IniFormat);
    if (!restoreGeometry(layout.value(geometryKey).toByteArray())) {
        constexpr QSize usual(1280, 800);
        resize(usual.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    }
    if (!panes->restoreState(layout.value(panesKey).toByteArray())) {
        const int share = width() / 10;
        panes->setSizes({3 * share, 4 * share, 3 * share});
    }
}

void MainWindow::SaveLayout() const
{
    QSettings layout(layoutFile, QSettings::IniFormat);
    layout.setValue(geometryKey, saveGeometry());
    layout.setValue(panesKey, panes->saveState());
}

QWidget* MainWindow::NewTopRow()
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    start = new QPushButton(Messages::tr("Start"));
    start->setObjectName(QStringLiteral("start"));
    start->setDefault(true);
    layout->addStretch(1);
    layout->addWidget(presets);
    layout->addWidget(start);
    connect(start, &QPushButton::clicked, this, &MainWindow::StartRun);
    connect(presets, &PresetBox::Problem, this, [this](const QString& text) { bar->Say(text); });
    return row;
}

void MainWindow::MakePanes()
{
    auto* const body = new QWidget;
    auto* const layout = new QVBoxLayout(body);
    layout->addWidget(NewTopRow());
    panes = new QSplitter;
    panes->setObjectName(QStringLiteral("panes"));
    panes->setChildrenCollapsible(false);
    pictures = new PicturesPane(job);
    preview = new PreviewPane(job);
    settings = new SettingsPane(job);
    for (QWidget* const pane :
         {static_cast<QWidget*>(pictures), static_cast<QWidget*>(preview), static_cast<QWidget*>(settings)}) {
        panes->addWidget(pane);
    }
    panes->setStretchFactor(1, 1);
    layout->addWidget(panes, 1);
    questions = new QuestionBar(runner);
    bar = new RunBar(runner);
    resume = new ResumeBar;
    layout->addWidget(resume);
    layout->addWidget(questions);
    layout->addWidget(bar);
    setCentralWidget(body);
}

void MainWindow::MakeMenus()
{
    QMenu* const file = menuBar()->addMenu(Messages::tr("&File"));
    const ZTBatchManager* const manager = ZTBatchManager::Instance();
    file->addActions(manager != nullptr ? manager->GetInputActions() : QList<QAction*>());
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

    QMenu* const view = menuBar()->addMenu(Messages::tr("&View"));
    view->addActions(preview->Actions());
    view->addSeparator();
    QAction* const previous =
        view->addAction(Messages::tr("&Previous picture"), pictures, &PicturesPane::SelectPrevious);
    previous->setShortcut(QKeySequence(Qt::Key_BracketLeft));
    QAction* const next = view->addAction(Messages::tr("&Next picture"), pictures, &PicturesPane::SelectNext);
    next->setShortcut(QKeySequence(Qt::Key_BracketRight));
}

void MainWindow::MakeRunMenu()
{
    QMenu* const menu = menuBar()->addMenu(Messages::tr("&Run"));
    startAction = menu->addAction(Messages::tr("&Start"), this, &MainWindow::StartRun);
    startAction->setObjectName(QStringLiteral("startAction"));
    startAction->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Return));
    menu->addActions(bar->Actions());
}

void MainWindow::ConnectPictures()
{
    connect(pictures, &PicturesPane::CurrentChanged, this, [this](const QString& file) {
        preview->SetFile(file);
        settings->SetExample(file);
    });
    connect(pictures, &PicturesPane::InputsChanged, this, &MainWindow::UpdateStart);
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

void MainWindow::OnResult(const QString& input)
{
    const FileResult& result = runner.Results().value(input);
    pictures->States().Set(input, StateOf(result), Translated(result.reason));
}

void MainWindow::StartRun()
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
        runner.Start(job.Document(), job.CurrentSettings().policies);
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
}

} // namespace BatchDesktop
