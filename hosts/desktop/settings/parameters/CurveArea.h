// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CurvePoints.h"

#include <QWidget>

namespace BatchDesktop {

/// Draws a curve and lets a user add, move and remove its points, by mouse and by keys.
class CurveArea : public QWidget
{
    Q_OBJECT

public:
    CurveArea(double low, double high, QWidget* parent);

    const CurvePoints& Points() const { return points; }
    void SetPoints(const QJsonArray& wanted);

    /// The point that keys change.
    int Current() const { return current; }

    /// Where `point` is drawn.
    QPointF PlaceOf(const QPointF& point) const;

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return width; }

Q_SIGNALS:
    /// The user has changed the points.
    void Changed();

    /// The user has finished a movement.
    void Released();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF Frame() const;
    QPointF PointAt(const QPointF& place) const;
    int PointNear(const QPointF& place) const; ///< -1 for none
    double Radius() const;
    void Choose(int index);
    void Add(const QPointF& point);
    void AddBehindCurrent();
    void RemoveCurrent();
    void MoveCurrent(const QPointF& point);
    void Describe();

    const double minimum;
    const double maximum;
    CurvePoints points;
    int current = 0;
    bool isDragging = false;
};

} // namespace BatchDesktop
