// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PreviewPictures.h"
#include "ViewPlace.h"

#include <QHash>
#include <QWidget>

namespace BatchDesktop {

class PreviewDivider;

/// Shows a picture before and after, the same part of both: with a line between them, or side by side. Drag and wheel
/// move it, with the control key the wheel zooms; the space bar shows the picture before as long as it is held.
class PreviewView : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewView(QWidget* parent = nullptr);

    void SetPictures(const PreviewPictures& newPictures);

    /// Shows `text` instead of pictures.
    void SetMessage(const QString& text);

    /// Dims what is shown, and says why.
    void SetUpdating(bool isOn);

    void SetZoom(ViewZoom zoom);
    ViewZoom Zoom() const { return place.Zoom(); }

    void SetSideBySide(bool isOn);
    bool IsSideBySide() const { return isSideBySide; }

    /// Whether only the picture before is shown.
    void SetBeforeOnly(bool isOn);
    bool IsBeforeOnly() const { return isBeforeOnly; }

    PreviewDivider* Divider() const { return divider; }

Q_SIGNALS:
    /// By the wheel.
    void ZoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Scaled
    {
        QSize size;
        QImage picture;
    };

    void Arrange();
    void NoteSizes();
    void MoveBy(const QPoint& way);
    void StepZoom(int steps);
    QRect RightPart() const;
    void PaintPart(QPainter& painter, const QRect& part, const QRect& clip, const QImage& picture, const QString& name);
    const QImage& InSize(const QImage& picture, const QSize& size);
    void PaintMessage(QPainter& painter, const QString& text) const;

    PreviewPictures pictures;
    QString message;
    ViewPlace place;
    PreviewDivider* const divider;
    QPoint dragged;
    QHash<qint64, Scaled> scaled; ///< pictures that are shown reduced, by their cache keys
    bool isSideBySide = false;
    bool isBeforeOnly = false;
    bool isUpdating = false;
};

} // namespace BatchDesktop
