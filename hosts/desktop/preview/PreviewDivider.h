// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSlider>

namespace BatchDesktop {

/// The line between before and after, laid over a view of the same size. It takes the mouse where the line is, and
/// leaves it to the view elsewhere.
class PreviewDivider : public QSlider
{
    Q_OBJECT

public:
    explicit PreviewDivider(QWidget* parent);

    /// Where the line is, from the left.
    int Place() const;

    /// Without the line, the slider stays where it is, and keeps the focus.
    void SetLineShown(bool isShown);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool IsAtLine(const QPoint& place) const;
    int Reach() const;

    bool isMoving = false;
    bool isLineShown = true;
};

} // namespace BatchDesktop
