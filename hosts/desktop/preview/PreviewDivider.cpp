// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewDivider.h"

#include "hosts/common/Language.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

constexpr int mostValue = 1000;

} // namespace

PreviewDivider::PreviewDivider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setObjectName(QStringLiteral("previewDivider"));
    setAccessibleName(Messages::tr("Line between before and after"));
    setRange(0, mostValue);
    setValue(mostValue / 2);
    setSingleStep(mostValue / 100);
    setPageStep(mostValue / 10);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

int PreviewDivider::Place() const
{
    return int(qint64(width()) * value() / mostValue);
}

void PreviewDivider::SetLineShown(bool isShown)
{
    isLineShown = isShown;
    update();
}

void PreviewDivider::paintEvent(QPaintEvent*)
{
    if (!isLineShown) {
        return;
    }
    QPainter painter(this);
    const int place = Place();
    const QColor line = palette().color(hasFocus() ? QPalette::Highlight : QPalette::Window);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 3));
    painter.drawLine(place, 0, place, height());
    painter.setPen(QPen(line, 1));
    painter.drawLine(place, 0, place, height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setBrush(line);
    painter.drawEllipse(QPoint(place, height() / 2), Reach(), Reach());
}

void PreviewDivider::mousePressEvent(QMouseEvent* event)
{
    isMoving = event->button() == Qt::LeftButton && IsAtLine(event->pos());
    event->setAccepted(isMoving);
}

void PreviewDivider::mouseMoveEvent(QMouseEvent* event)
{
    if (isMoving) {
        setValue(int(qint64(event->pos().x()) * mostValue / qMax(1, width())));
        return;
    }
    if (IsAtLine(event->pos())) {
        setCursor(Qt::SplitHCursor);
    } else {
        unsetCursor();
    }
    event->ignore();
}

void PreviewDivider::mouseReleaseEvent(QMouseEvent* event)
{
    event->setAccepted(isMoving);
    isMoving = false;
}

bool PreviewDivider::IsAtLine(const QPoint& place) const
{
    return qAbs(place.x() - Place()) <= Reach();
}

int PreviewDivider::Reach() const
{
    return qMax(2, fontMetrics().height() / 3);
}

} // namespace BatchDesktop
