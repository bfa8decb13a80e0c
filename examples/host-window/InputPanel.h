// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ZVBatchInputTableModel.h>

#include <QWidget>

class QTableView;
class ZTBatchInputModel;

/// The inputs of a job, as a tree and as a grid.
class InputPanel : public QWidget
{
    Q_OBJECT

public:
    /// `inputs` must outlive the panel's use.
    explicit InputPanel(ZTBatchInputModel& inputs);

    // step 3 begins
protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // step 3 ends

private:
    QWidget* MakeTree();
    QWidget* MakeGrid();
    QWidget* MakeButtons();
    void AskForPictures();
    // step 3 begins
    void Refresh();
    // step 3 ends

    ZTBatchInputModel& inputs;
    ZVBatchInputTableModel grid;
};
