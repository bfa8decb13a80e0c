// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MainWindow.h"

#include "hosts/common/Language.h"

#include <QMenuBar>
#include <QSplitter>

using BatchHost::Messages;

namespace BatchDesktop {

MainWindow::MainWindow()
{
    QMenu* const edit = menuBar()->addMenu(Messages::tr("&Edit"));
    QAction* const undo = job.History().createUndoAction(this);
    undo->setShortcut(QKeySequence::Undo);
    QAction* const redo = job.History().createRedoAction(this);
    redo->setShortcut(QKeySequence::Redo);
    edit->addActions({undo, redo});
    setCentralWidget(new QSplitter);
}

MainWindow::~MainWindow() = default;

} // namespace BatchDesktop
