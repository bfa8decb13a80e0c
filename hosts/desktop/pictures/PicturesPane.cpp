// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PicturesPane.h"

#include "ActionButtons.h"
#include "AddingLine.h"

#include "hosts/common/Language.h"

#include "ZTBatchManager.h"
#include "ZTInputDnDHandler.h"
#include "ZTInputUpdateHandler.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <chrono>

using BatchHost::Messages;
using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

ZTBatchManager::ZTInputDnDHandler* DropHandler()
{
    const ZTBatchManager* const manager = ZTBatchManager::Instance();
    return manager ? manager->InputDragAndDropHandler() : nullptr;
}

void SetDelay(QTimer& timer, std::chrono::milliseconds delay)
{
    timer.setSingleShot(true);
    timer.setInterval(delay);
}

void Begin(QTimer& timer)
{
    if (!timer.isActive()) {
        timer.start();
    }
}

QString HeadText(int files, int folders)
{
    if (folders == 0) {
        return files == 1 ? Messages::tr("1 picture") : Messages::tr("%1 pictures").arg(files);
    }
    if (folders == 1) {
        return files == 1 ? Messages::tr("1 picture in 1 folder") : Messages::tr("%1 pictures in 1 folder").arg(files);
    }
    return Messages::tr("%1 pictures in %2 folders").arg(QString::number(files), QString::number(folders));
}

} // namespace

PicturesPane::PicturesPane(EditedJob& job, QWidget* parent)
    : PicturesPane(job, ThumbnailFiles::OfUser(), parent)
{
}

PicturesPane::PicturesPane(EditedJob& job, const ThumbnailFiles& thumbnailFiles, QWidget* parent)
    : QWidget(parent)
    , job(job)
    , inputs(*job.Document().GetInputModel())
    , plan(job)
    , thumbnails(thumbnailFiles)
    , texts(plan, states, thumbnails)
    , columns(*job.Document().GetInputModel(), inputs, texts)
    , filter(columns)
    , adder(job, inputs)
    , head(new QLabel)
    , filterText(new QLineEdit)
    , filterState(new QComboBox)
    , listButton(new QToolButton)
    , gridButton(new QToolButton)
    , views(new QStackedWidget)
    , list(new PictureList(filter))
    , grid(new PictureGrid(*job.Document().GetInputModel(), inputs, texts))
    , hint(new QLabel(Messages::tr("Drop pictures and folders here, or add them with the buttons below.")))
    , buttons(new ActionButtons)
    , addingLine(new AddingLine(adder))
{
    setObjectName(QStringLiteral("picturesPane"));
    setAcceptDrops(true);
    hint->setObjectName(QStringLiteral("picturesHint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    views->addWidget(list);
    views->addWidget(grid);
    views->addWidget(hint);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(head);
    MakeHead();
    column->addWidget(views, 1);
    column->addWidget(addingLine);
    column->addWidget(buttons);
    MakeKeys();
    ConnectViews();
    connect(buttons, &ActionButtons::ActionsChanged, this, &PicturesPane::UpdateActions);
    UpdateActions();
    UpdateHead();
}

PicturesPane::~PicturesPane()
{
    delete views;
    delete addingLine;
}

void PicturesPane::MakeHead()
{
    head->setObjectName(QStringLiteral("picturesHead"));
    filterText->setObjectName(QStringLiteral("pictureFilter"));
    filterText->setAccessibleName(Messages::tr("Show only pictures whose names contain"));
    filterText->setPlaceholderText(Messages::tr("Filter"));
    filterText->setClearButtonEnabled(true);
    filterState->setObjectName(QStringLiteral("pictureStateFilter"));
    filterState->setAccessibleName(Messages::tr("Show only pictures with the state"));
    filterState->addItem(Messages::tr("All pictures"), int(ShownState::All));
    filterState->addItem(Messages::tr("Name taken"), int(ShownState::NameTaken));
    const auto addState = [this](RunStates::State state, ShownState shown) {
        filterState->addItem(RunStates::Word(state), int(shown));
    };
    addState(RunStates::State::Waiting, ShownState::Waiting);
    addState(RunStates::State::Working, ShownState::Working);
    addState(RunStates::State::Written, ShownState::Written);
    addState(RunStates::State::Skipped, ShownState::Skipped);
    addState(RunStates::State::Failed, ShownState::Failed);
    listButton->setObjectName(QStringLiteral("listButton"));
    listButton->setText(Messages::tr("List"));
    gridButton->setObjectName(QStringLiteral("gridButton"));
    gridButton->setText(Messages::tr("Grid"));
    auto* const row = new QHBoxLayout;
    row->addWidget(filterText, 1);
    row->addWidget(filterState);
    for (QToolButton* const button : {listButton, gridButton}) {
        button->setAccessibleName(button->text());
        button->setCheckable(true);
        button->setAutoExclusive(true);
        button->setFocusPolicy(Qt::StrongFocus);
        row->addWidget(button);
    }
    listButton->setChecked(true);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    connect(listButton, &QToolButton::clicked, this, [this] { ShowGrid(false); });
    connect(gridButton, &QToolButton::clicked, this, [this] { ShowGrid(true); });
    SetDelay(filterDelay, 150ms);
    connect(&filterDelay, &QTimer::timeout, this, &PicturesPane::ApplyFilter);
    connect(filterText, &QLineEdit::textChanged, this, [this] { filterDelay.start(); });
    connect(filterState, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PicturesPane::ApplyFilter);
}

void PicturesPane::MakeKeys()
{
    auto* const paste = new QShortcut(QKeySequence::Paste, this);
    paste->setContext(Qt::WidgetWithChildrenShortcut);
    connect(paste, &QShortcut::activated, this, [this] { Take(QApplication::clipboard()->mimeData()); });
}

void PicturesPane::ConnectViews()
{
    SetDelay(headDelay, 100ms);
    SetDelay(sightDelay, 50ms);
    connect(&headDelay, &QTimer::timeout, this, [this] {
        UpdateHead();
        UpdateCurrent();
        Q_EMIT InputsChanged();
    });
    connect(&sightDelay, &QTimer::timeout, this, &PicturesPane::WantThumbnails);
    connect(&inputs, &InputPaths::Changed, this, [this] { Begin(headDelay); });
    connect(list, &PictureList::SightChanged, this, [this] { Begin(sightDelay); });
    connect(grid, &PictureGrid::SightChanged, this, [this] { Begin(sightDelay); });
    for (QAbstractItemView* const view :
         {static_cast<QAbstractItemView*>(list), static_cast<QAbstractItemView*>(grid)}) {
        connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &PicturesPane::UpdateCurrent);
        connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &PicturesPane::SelectionChanged);
        view->setContextMenuPolicy(Qt::ActionsContextMenu);
    }
    const auto noteOthersMayPass = [this] {
        if (filterState->currentIndex() > 0) {
            Begin(headDelay);
        }
    };
    connect(&states, &RunStates::Changed, this, noteOthersMayPass);
    connect(&texts, &PictureTexts::AllChanged, this, noteOthersMayPass);
}

void PicturesPane::AddPaths(const QStringList& paths)
{
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    QMimeData data;
    data.setUrls(urls);
    Take(&data);
}

void PicturesPane::Select(const QString& file)
{
    if (inputs.Contains(file)) {
        SelectInput(inputs.IndexOf(file));
    }
}

QModelIndexList PicturesPane::SelectedInputs() const
{
    QModelIndexList selected;
    if (IsGrid()) {
        const QModelIndexList cells = grid->selectionModel()->selectedIndexes();
        for (const QModelIndex& cell : cells) {
            const QModelIndex input = grid->Cells().InputAt(cell);
            if (input.isValid()) {
                selected.append(input);
            }
        }
        return selected;
    }
    const QModelIndexList rows = list->Selected();
    for (const QModelIndex& row : rows) {
        selected.append(columns.mapToSource(row));
    }
    return selected;
}

bool PicturesPane::HasSelection() const
{
    return IsGrid() ? !SelectedInputs().isEmpty() : list->selectionModel()->hasSelection();
}

QStringList PicturesPane::SelectedPaths() const
{
    QStringList paths;
    const QModelIndexList selected = SelectedInputs();
    for (const QModelIndex& input : selected) {
        paths.append(NodeOf(input)->data.fileName);
    }
    return paths;
}

void PicturesPane::RemoveSelected()
{
    const QModelIndexList selected = SelectedInputs();
    if (!selected.isEmpty()) {
        job.History().push(
            new RemoveInputsStep(*job.Document().GetInputModel(), selected, Messages::tr("Remove pictures")));
    }
}

void PicturesPane::Filter(const QString& text, ShownState state)
{
    filterText->setText(text);
    filterState->setCurrentIndex(filterState->findData(int(state)));
    ApplyFilter();
}

void PicturesPane::dragEnterEvent(QDragEnterEvent* event)
{
    if (Accepts(event->mimeData())) {
        event->setDropAction(Qt::CopyAction); // Files stay where they are.
        event->accept();
    }
}

void PicturesPane::dropEvent(QDropEvent* event)
{
    if (Accepts(event->mimeData())) {
        Take(event->mimeData());
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void PicturesPane::keyPressEvent(QKeyEvent* event)
{
    if (event->text() == QLatin1String("/")) {
        filterText->setFocus(Qt::ShortcutFocusReason);
    } else {
        QWidget::keyPressEvent(event);
    }
}

bool PicturesPane::Accepts(const QMimeData* data) const
{
    const auto* const handler = DropHandler();
    return handler && data && handler->IsAccept(*data);
}

void PicturesPane::Take(const QMimeData* data)
{
    if (Accepts(data)) {
        DropHandler()->DropData(job.Document().GetInputModel(), *data);
    }
}

void PicturesPane::ApplyFilter()
{
    filterDelay.stop();
    list->ShowOnly(filterText->text().trimmed(), ShownState(filterState->currentData().toInt()));
    UpdateHead();
    UpdateCurrent(); // No signal tells that the last one is hidden.
    Begin(sightDelay);
}

void PicturesPane::UpdateHead()
{
    const int files = inputs.FileCount();
    const bool isFiltered = filter.IsActive() && !IsGrid();
    head->setText(
        isFiltered ? Messages::tr("%1 of %2 pictures").arg(QString::number(filter.FileCount()), QString::number(files))
                   : HeadText(files, inputs.FolderCount()));
    const bool isEmpty = job.Document().GetInputModel()->rowCount() == 0;
    QWidget* const view = gridButton->isChecked() ? static_cast<QWidget*>(grid) : list;
    views->setCurrentWidget(isEmpty ? hint : view);
}

void PicturesPane::UpdateCurrent()
{
    const QModelIndex input = CurrentInput();
    const bool isPicture = input.isValid() && PictureTexts::IsFile(*NodeOf(input));
    const QString now = isPicture ? NodeOf(input)->data.fileName : QString();
    if (now == current) {
        return;
    }
    current = now;
    const ZTBatchManager* const manager = ZTBatchManager::Instance();
    if (isPicture && manager && manager->InputUpdateHandler()) {
        manager->InputUpdateHandler()->Update(job.Document().GetInputModel(), input, false);
    }
    Q_EMIT CurrentChanged(current);
}

void PicturesPane::UpdateActions()
{
    const ZTBatchManager* const manager = ZTBatchManager::Instance();
    const QList<QAction*> wanted = manager ? manager->GetInputActions() : QList<QAction*>();
    for (QWidget* const widget :
         {static_cast<QWidget*>(this), static_cast<QWidget*>(list), static_cast<QWidget*>(grid)}) {
        const QList<QAction*> old = widget->actions();
        for (QAction* const action : old) {
            widget->removeAction(action);
        }
        widget->addActions(wanted);
    }
}

void PicturesPane::ShowGrid(bool isGrid)
{
    const QModelIndex input = CurrentInput();
    (isGrid ? gridButton : listButton)->setChecked(true);
    UpdateHead();
    for (QWidget* const field : {static_cast<QWidget*>(filterText), static_cast<QWidget*>(filterState)}) {
        field->setEnabled(!isGrid);
        field->setToolTip(isGrid ? Messages::tr("The grid shows all pictures; the list can be filtered.") : QString());
    }
    SelectInput(input);
    Begin(sightDelay);
}

bool PicturesPane::IsGrid() const
{
    return views->currentWidget() == grid;
}

QModelIndex PicturesPane::CurrentInput() const
{
    return IsGrid() ? grid->Current() : columns.mapToSource(filter.mapToSource(list->currentIndex()));
}

void PicturesPane::SelectBeside(int step)
{
    const QModelIndex from = filter.mapFromSource(columns.mapFromSource(CurrentInput()));
    const QModelIndex to = list->Neighbour(from, step);
    if (to.isValid()) {
        SelectInput(columns.mapToSource(filter.mapToSource(to)));
    }
}

void PicturesPane::SelectInput(const QModelIndex& input)
{
    if (!input.isValid()) {
        return;
    }
    if (IsGrid()) {
        grid->SetCurrent(input);
    } else {
        list->setCurrentIndex(filter.mapFromSource(columns.mapFromSource(input)));
    }
    UpdateCurrent();
}

void PicturesPane::WantThumbnails()
{
    thumbnails.Want(IsGrid() ? grid->PicturesInSight() : list->PicturesInSight());
}

} // namespace BatchDesktop
