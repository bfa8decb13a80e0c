// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureCells.h"

#include <QSet>
#include <QTableView>
#include <QTimer>

namespace BatchDesktop {

/// The inputs as a grid of thumbnails.
class PictureGrid : public QTableView
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    PictureGrid(ZTBatchInputModel& inputs, const InputPaths& paths, const PictureTexts& texts,
                QWidget* parent = nullptr);
    ~PictureGrid() override;

    PictureCells& Cells() { return cells; }

    /// As PictureList has it.
    QStringList PicturesInSight() const;

    /// Makes `input` the current one. Opens its folder.
    void SetCurrent(const QModelIndex& input);

    /// The current input, or an invalid index.
    QModelIndex Current() const { return cells.InputAt(currentIndex()); }

Q_SIGNALS:
    void SightChanged();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Outdate();
    void Rebuild();
    void OpenNewFolders();
    void FitCells();
    bool Toggle(const QModelIndex& cell);

    const InputPaths& paths;
    ZVBatchInputTableModel table;
    PictureCells cells;
    QTimer delay;
    QSet<QString> seenFolders; ///< each is opened once, when it comes
    bool isOutdated = true;
};

} // namespace BatchDesktop
