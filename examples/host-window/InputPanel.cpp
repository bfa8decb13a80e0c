// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputPanel.h"

#include "InputFiles.h"

#include <ZTBatchInputModel.h>
// step 3 begins
#include <ZTBatchManager.h>
#include <ZTInputDnDHandler.h>
#include <ZTInputUpdateHandler.h>
// step 3 ends

// step 3 begins
#include <QAction>
#include <QDropEvent>
// step 3 ends
#include <QFileDialog>
#include <QHeaderView>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

InputPanel::InputPanel(ZTBatchInputModel& inputs)
    : inputs(inputs)
    , grid(&inputs)
{
    auto* const views = new QTabWidget;
    views->addTab(MakeTree(), tr("Tree"));
    views->addTab(MakeGrid(), tr("Grid"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(MakeButtons());
    layout->addWidget(views);
    // step 3 begins
    setAcceptDrops(true);
    // step 3 ends
}

QWidget* InputPanel::MakeTree()
{
    auto* const tree = new QTreeView;
    tree->setObjectName(QStringLiteral("tree"));
    tree->setHeaderHidden(true);
    tree->setModel(&inputs);
    return tree;
}

QWidget* InputPanel::MakeGrid()
{
    auto* const table = new QTableView;
    table->setObjectName(QStringLiteral("grid"));
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setModel(&grid);
    // The grid does not follow each node by itself. One rebuild serves all files of a drop.
    auto* const rebuild = new QTimer(table);
    rebuild->setSingleShot(true);
    connect(&inputs, &QAbstractItemModel::rowsInserted, rebuild, QOverload<>::of(&QTimer::start));
    connect(&inputs, &QAbstractItemModel::rowsRemoved, rebuild, QOverload<>::of(&QTimer::start));
    connect(rebuild, &QTimer::timeout, &grid, &ZVBatchInputTableModel::rebuild);
    connect(&grid, &QAbstractItemModel::modelReset, table, [this, table] {
        table->clearSpans();
        for (int row = 0; row < grid.rowCount(); ++row) {
            if (grid.isFolderRow(row)) {
                table->setSpan(row, 0, 1, grid.columnCount());
            }
        }
    });
    connect(table, &QTableView::doubleClicked, &grid, [this](const QModelIndex& cell) {
        if (grid.isFolderRow(cell.row())) {
            grid.toggleFolder(grid.mapToSource(cell));
        }
    });
    return table;
}

QWidget* InputPanel::MakeButtons()
{
    auto* const bar = new QToolBar;
    connect(bar->addAction(tr("Add pictures...")), &QAction::triggered, this, &InputPanel::AskForPictures);
    connect(bar->addAction(tr("Remove all")), &QAction::triggered, this,
            [this] { inputs.removeRows(0, inputs.rowCount()); });
    // step 3 begins
    connect(bar->addAction(tr("Refresh")), &QAction::triggered, this, &InputPanel::Refresh);
    auto* const manager = ZTBatchManager::Instance();
    bar->addActions(manager->GetInputActions());
    connect(manager, &ZTBatchManager::InputActionRegistered, bar, [bar](QAction* action) { bar->addAction(action); });
    connect(manager, &ZTBatchManager::InputActionUnregistered, bar,
            [bar](QAction* action) { bar->removeAction(action); });
    // step 3 ends
    return bar;
}

void InputPanel::AskForPictures()
{
    AddInputs(inputs, QFileDialog::getOpenFileNames(this, tr("Add pictures")));
}

// step 3 begins
void InputPanel::dragEnterEvent(QDragEnterEvent* event)
{
    const auto* const handler = ZTBatchManager::Instance()->InputDragAndDropHandler();
    if (handler && handler->IsAccept(*event->mimeData())) {
        event->acceptProposedAction();
    }
}

void InputPanel::dropEvent(QDropEvent* event)
{
    if (auto* const handler = ZTBatchManager::Instance()->InputDragAndDropHandler()) {
        handler->DropData(&inputs, *event->mimeData());
        event->acceptProposedAction();
    }
}

void InputPanel::Refresh()
{
    auto* const handler = ZTBatchManager::Instance()->InputUpdateHandler();
    if (!handler) {
        return;
    }
    QVector<QModelIndex> folders{QModelIndex()};
    while (!folders.isEmpty()) {
        const QModelIndex folder = folders.takeLast();
        for (int row = 0; row < inputs.rowCount(folder); ++row) {
            const QModelIndex index = inputs.index(row, 0, folder);
            handler->Update(&inputs, index, false);
            folders.append(index);
        }
    }
}
// step 3 ends
