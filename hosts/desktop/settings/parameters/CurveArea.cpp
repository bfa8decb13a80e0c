// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CurveArea.h"

#include "hosts/common/Language.h"
#include "job/effects/MonotoneCurve.h"

#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

// Tenths are finer than the eye, and short in a job.
double Rounded(double value)
{
    constexpr double tenths = 10;
    return std::round(value * tenths) / tenths;
}

} // namespace

CurveArea::CurveArea(double low, double high, QWidget* parent)
    : QWidget(parent)
    , minimum(low)
    , maximum(high)
    , points(low, high)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    Describe();
}

void CurveArea::SetPoints(const QJsonArray& wanted)
{
    points.Set(wanted);
    Choose(current);
}

QSize CurveArea::sizeHint() const
{
    constexpr int lines = 10;
    return QSize(lines, lines) * fontMetrics().lineSpacing();
}

double CurveArea::Radius() const
{
    constexpr double share = 4;
    return fontMetrics().height() / share;
}

QRectF CurveArea::Frame() const
{
    const double side = std::min(width(), height()) - 2 * Radius();
    return {Radius(), Radius(), side, side};
}

QPointF CurveArea::PlaceOf(const QPointF& point) const
{
    const QRectF frame = Frame();
    const double scale = frame.width() / (maximum - minimum);
    return {frame.left() + (point.x() - minimum) * scale, frame.bottom() - (point.y() - minimum) * scale};
}

QPointF CurveArea::PointAt(const QPointF& place) const
{
    const QRectF frame = Frame();
    const double scale = (maximum - minimum) / frame.width();
    return {Rounded(minimum + (place.x() - frame.left()) * scale),
            Rounded(minimum + (frame.bottom() - place.y()) * scale)};
}

int CurveArea::PointNear(const QPointF& place) const
{
    int nearest = -1;
    double least = 2 * Radius();
    for (int i = 0; i < points.Count(); ++i) {
        const double distance = QLineF(place, PlaceOf(points.At(i))).length();
        if (distance <= least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

void CurveArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = Frame();
    painter.fillRect(frame, palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    constexpr int fields = 4;
    for (int i = 0; i <= fields; ++i) {
        const double at = frame.width() * i / fields;
        painter.drawLine(frame.topLeft() + QPointF(at, 0), frame.bottomLeft() + QPointF(at, 0));
        painter.drawLine(frame.topLeft() + QPointF(0, at), frame.topRight() + QPointF(0, at));
    }
    QVector<QPointF> knots;
    for (int i = 0; i < points.Count(); ++i) {
        knots.append(points.At(i));
    }
    const BatchJob::MonotoneCurve curve(knots);
    QPainterPath path(PlaceOf({minimum, curve.At(minimum)}));
    const int steps = std::max(1, int(frame.width()));
    for (int i = 1; i <= steps; ++i) {
        const double x = minimum + (maximum - minimum) * i / steps;
        path.lineTo(PlaceOf({x, curve.At(x)}));
    }
    painter.setPen(QPen(palette().color(QPalette::Text), 1.5));
    painter.drawPath(path);
    for (int i = 0; i < points.Count(); ++i) {
        const bool isChosen = i == current && hasFocus();
        painter.setBrush(palette().brush(isChosen ? QPalette::Highlight : QPalette::Base));
        painter.drawEllipse(PlaceOf(points.At(i)), Radius(), Radius());
    }
}

void CurveArea::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const int near = PointNear(event->localPos());
    isDragging = true;
    if (near >= 0) {
        Choose(near);
    } else {
        Add(PointAt(event->localPos()));
    }
}

void CurveArea::mouseMoveEvent(QMouseEvent* event)
{
    if (isDragging) {
        MoveCurrent(PointAt(event->localPos()));
    }
}

void CurveArea::mouseReleaseEvent(QMouseEvent*)
{
    isDragging = false;
    Q_EMIT Released();
}

void CurveArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int near = PointNear(event->localPos());
    if (near >= 0) {
        Choose(near);
        RemoveCurrent();
    }
}

void CurveArea::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 * points.Gap() : points.Gap();
    const QPointF point = points.At(current);
    constexpr int keySteps = 10;
    const double way = keySteps * step;
    switch (event->key()) {
    case Qt::Key_PageUp:
        return Choose(current + 1);
    case Qt::Key_PageDown:
        return Choose(current - 1);
    case Qt::Key_Left:
        return MoveCurrent(point - QPointF(way, 0));
    case Qt::Key_Right:
        return MoveCurrent(point + QPointF(way, 0));
    case Qt::Key_Up:
        return MoveCurrent(point + QPointF(0, way));
    case Qt::Key_Down:
        return MoveCurrent(point - QPointF(0, way));
    case Qt::Key_Insert:
        return AddBehindCurrent();
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return RemoveCurrent();
    default:
        QWidget::keyPressEvent(event);
    }
}

void CurveArea::Choose(int index)
{
    current = qBound(0, index, points.Count() - 1);
    Describe();
    update();
}

void CurveArea::Add(const QPointF& point)
{
    const int index = points.Add(point);
    if (index >= 0) {
        Choose(index);
        Q_EMIT Changed();
    }
}

void CurveArea::AddBehindCurrent()
{
    const int from = std::min(current, points.Count() - 2);
    const QPointF middle = (points.At(from) + points.At(from + 1)) / 2;
    Add({Rounded(middle.x()), Rounded(middle.y())});
    Q_EMIT Released();
}

void CurveArea::RemoveCurrent()
{
    isDragging = false;
    if (points.Remove(current)) {
        Choose(current);
        Q_EMIT Changed();
        Q_EMIT Released();
    }
}

void CurveArea::MoveCurrent(const QPointF& point)
{
    const QPointF before = points.At(current);
    points.Move(current, point);
    if (points.At(current) != before) {
        Choose(current);
        Q_EMIT Changed();
    }
}

void CurveArea::Describe()
{
    setAccessibleDescription(Messages::tr("Point %1 of %2: %3 becomes %4")
                                 .arg(current + 1)
                                 .arg(points.Count())
                                 .arg(points.At(current).x())
                                 .arg(points.At(current).y()));
}

} // namespace BatchDesktop
