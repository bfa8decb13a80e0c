// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputAdder.h"
#include "InputPaths.h"
#include "NamePlan.h"
#include "PictureColumns.h"
#include "PictureFilter.h"
#include "PictureGrid.h"
#include "PictureList.h"
#include "PictureTexts.h"
#include "RunStates.h"
#include "Thumbnails.h"

#include <QTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QMimeData;
class QStackedWidget;
class QToolButton;

namespace BatchDesktop {

class ActionButtons;
class AddingLine;

/// The pictures of the job: a list and a grid, what may be done with them, and what has become of them.
///
/// Drops, paste and actions go to what is registered with ZTBatchManager, whose instance must exist before the pane.
class PicturesPane : public QWidget
{
    Q_OBJECT

public:
    /// `job` must outlive the pane.
    explicit PicturesPane(EditedJob& job, QWidget* parent = nullptr);
    PicturesPane(EditedJob& job, const ThumbnailFiles& thumbnailFiles, QWidget* parent = nullptr);
    ~PicturesPane() override;

    EditedJob& Job() { return job; }
    InputAdder& Adder() { return adder; }
    const InputPaths& Inputs() const { return inputs; }
    const NamePlan& Names() const { return plan; }
    const Thumbnails& Pictures() const { return thumbnails; }

    /// Names are planned anew: a run may have taken some.
    void RenewNames() { plan.Renew(); }

    /// For the observer of a run.
    RunStates& States() { return states; }

    /// Adds files and folders, by the registered handler.
    void AddPaths(const QStringList& paths);

    /// The path of the current picture; empty if a folder is current or nothing.
    QString Current() const { return current; }

    void SelectPrevious() { SelectBeside(-1); }
    void SelectNext() { SelectBeside(1); }

    /// Makes a picture the current one and the only one that is selected. It must pass the filter to be seen in the
    /// list. Ignores a path that is not in the job.
    void Select(const QString& file);

    /// The selected pictures and folders, as indexes of the input model and as paths.
    QModelIndexList SelectedInputs() const;
    QStringList SelectedPaths() const;
    bool HasSelection() const;

    /// Removes them, as a step of the history.
    void RemoveSelected();

    /// Shows only some of the pictures in the list; the grid has always all.
    void Filter(const QString& text, ShownState state);

    /// Its file may have changed on the disk.
    void ForgetThumbnail(const QString& file) { thumbnails.Forget(file); }

Q_SIGNALS:
    void CurrentChanged(const QString& file);
    void SelectionChanged();

    /// Pictures have come or gone. Emitted at most ten times a second.
    void InputsChanged();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakeHead();
    void MakeKeys();
    void ConnectViews();
    bool Accepts(const QMimeData* data) const;
    void Take(const QMimeData* data);
    void ApplyFilter();
    void UpdateHead();
    void UpdateCurrent();
    void UpdateActions();
    void ShowGrid(bool isGrid);
    bool IsGrid() const;
    QModelIndex CurrentInput() const;
    void SelectBeside(int step);
    void SelectInput(const QModelIndex& input);
    void WantThumbnails();

    EditedJob& job;
    InputPaths inputs;
    NamePlan plan;
    RunStates states;
    Thumbnails thumbnails;
    PictureTexts texts;
    PictureColumns columns;
    PictureFilter filter;
    InputAdder adder;
    QString current;
    QTimer headDelay;
    QTimer sightDelay;
    QTimer filterDelay;
    QLabel* head = nullptr;
    QLineEdit* filterText = nullptr;
    QComboBox* filterState = nullptr;
    QToolButton* listButton = nullptr;
    QToolButton* gridButton = nullptr;
    QStackedWidget* views = nullptr;
    PictureList* list = nullptr;
    PictureGrid* grid = nullptr;
    QLabel* hint = nullptr; ///< in the place of the views when there are no pictures
    ActionButtons* buttons = nullptr;
    AddingLine* addingLine = nullptr;
};

} // namespace BatchDesktop
