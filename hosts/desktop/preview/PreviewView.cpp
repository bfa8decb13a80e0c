// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewView.h"

#include "PreviewDivider.h"

#include "hosts/common/Language.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

/// Larger pictures are reduced roughly, so that nobody waits for it.
constexpr qint64 mostReducedWell = 8'000'000; // pixels

/// A plain widget has no role that tells anything.
QAccessibleInterface* NewAccess(const QString&, QObject* object)
{
    auto* const view = qobject_cast<PreviewView*>(object);
    return view != nullptr ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}

} // namespace

PreviewView::PreviewView(QWidget* parent)
    : QWidget(parent)
    , divider(new PreviewDivider(this))
{
    setObjectName(QStringLiteral("previewView"));
    QAccessible::installFactory(NewAccess);
    setAccessibleName(Messages::tr("Preview"));
    setFocusPolicy(Qt::StrongFocus);
    const int line = fontMetrics().height();
    setMinimumSize(12 * line, 8 * line);
    divider->installEventFilter(this);
    connect(divider, &QSlider::valueChanged, this, QOverload<>::of(&QWidget::update));
    Arrange();
}

void PreviewView::SetPictures(const PreviewPictures& newPictures)
{
    pictures = newPictures;
    message = pictures.IsShown() ? QString() : Messages::tr("The result is too large to be shown here.");
    scaled.clear();
    Arrange();
}

void PreviewView::SetMessage(const QString& text)
{
    pictures = {};
    message = text;
    scaled.clear();
    Arrange();
}

void PreviewView::SetUpdating(bool isOn)
{
    isUpdating = isOn;
    update();
}

void PreviewView::SetZoom(ViewZoom zoom)
{
    place.SetZoom(zoom);
    update();
}

void PreviewView::SetSideBySide(bool isOn)
{
    isSideBySide = isOn;
    Arrange();
}

void PreviewView::SetBeforeOnly(bool isOn)
{
    isBeforeOnly = isOn;
    Arrange();
}

/// The pictures or the room for them have changed.
void PreviewView::Arrange()
{
    const bool hasBoth = !pictures.before.isNull() && !pictures.after.isNull();
    divider->setGeometry(rect());
    divider->setVisible(hasBoth && !isSideBySide);
    divider->SetLineShown(!isBeforeOnly); // A hidden slider would lose the focus.
    NoteSizes();
    update();
}

void PreviewView::NoteSizes()
{
    place.SetSizes(pictures.size, QSizeF(isSideBySide ? RightPart().size() : size()) * devicePixelRatioF());
}

QRect PreviewView::RightPart() const
{
    return {width() / 2 + 1, 0, width() - width() / 2 - 1, height()};
}

void PreviewView::paintEvent(QPaintEvent*)
{
    NoteSizes(); // The window may have come to another screen.
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (pictures.after.isNull()) {
        PaintMessage(painter, isUpdating ? Messages::tr("Updating") : message);
        return;
    }
    const QString before = Messages::tr("before");
    const QString after = Messages::tr("after");
    if (isBeforeOnly) {
        PaintPart(painter, rect(), rect(), pictures.before, before);
    } else if (isSideBySide) {
        const QRect right = RightPart();
        PaintPart(painter, right, right, pictures.after, after);
        const QRect left(QPoint(), right.size());
        PaintPart(painter, left, left, pictures.before, before);
    } else {
        const int line = divider->isVisible() ? divider->Place() : 0;
        PaintPart(painter, rect(), {line, 0, width() - line, height()}, pictures.after, after);
        PaintPart(painter, rect(), {0, 0, line, height()}, pictures.before, before);
    }
    if (isUpdating) {
        QColor veil = palette().color(QPalette::Base);
        veil.setAlphaF(0.6);
        painter.fillRect(rect(), veil);
        PaintMessage(painter, Messages::tr("Updating"));
    }
}

/// Paints what of `picture` is in `clip`, if `part` is its room.
void PreviewView::PaintPart(QPainter& painter, const QRect& part, const QRect& clip, const QImage& picture,
                            const QString& name)
{
    if (clip.isEmpty()) {
        return;
    }
    const double ratio = devicePixelRatioF();
    const QRectF target = place.Target();
    // The picture before lies in the middle of one that effects or a frame have made larger.
    QRectF own(QPointF(), QSizeF(picture.size()) * place.Scale());
    own.moveCenter(target.center());
    own = QRectF(own.topLeft().toPoint(), own.size().toSize()); // each pixel on one of the screen
    painter.save();
    painter.setClipRect(clip);
    painter.translate(part.topLeft());
    painter.scale(1 / ratio, 1 / ratio);
    if (!picture.isNull()) {
        if (picture.hasAlphaChannel()) {
            painter.fillRect(own, QBrush(palette().color(QPalette::Mid), Qt::Dense4Pattern));
        }
        const bool isReduced = place.Scale() < 1;
        painter.setRenderHint(QPainter::SmoothPixmapTransform, isReduced);
        const QImage& shown = isReduced ? InSize(picture, own.size().toSize()) : picture;
        painter.drawImage(own, shown, QRectF(shown.rect()));
    }
    painter.restore();
    const int margin = fontMetrics().height() / 3;
    const int width = fontMetrics().horizontalAdvance(name) + 2 * margin;
    const bool isLeft = clip.left() == 0;
    const QRect label(isLeft ? clip.left() : clip.right() - width + 1, clip.top(), width,
                      fontMetrics().height() + margin);
    if (clip.contains(label)) {
        painter.fillRect(label, palette().color(QPalette::Window));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(label, Qt::AlignCenter, name);
    }
}

/// `picture`, reduced well if that takes no time that is felt.
const QImage& PreviewView::InSize(const QImage& picture, const QSize& size)
{
    if (qint64(picture.width()) * picture.height() > mostReducedWell || size.isEmpty()) {
        return picture;
    }
    Scaled& kept = scaled[picture.cacheKey()];
    if (kept.size != size) {
        kept = {size, picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)};
    }
    return kept.picture;
}

void PreviewView::PaintMessage(QPainter& painter, const QString& text) const
{
    const int margin = fontMetrics().height();
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap, text);
}

void PreviewView::resizeEvent(QResizeEvent*)
{
    Arrange();
}

void PreviewView::keyPressEvent(QKeyEvent* event)
{
    const int step = 2 * fontMetrics().height();
    switch (event->key()) {
    case Qt::Key_Space:
        if (!event->isAutoRepeat()) {
            SetBeforeOnly(true);
        }
        break;
    case Qt::Key_Left:
        MoveBy({step, 0});
        break;
    case Qt::Key_Right:
        MoveBy({-step, 0});
        break;
    case Qt::Key_Up:
        MoveBy({0, step});
        break;
    case Qt::Key_Down:
        MoveBy({0, -step});
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PreviewView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space) {
        QWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        SetBeforeOnly(false);
    }
}

void PreviewView::focusOutEvent(QFocusEvent* event)
{
    SetBeforeOnly(false); // The space bar may be released elsewhere.
    QWidget::focusOutEvent(event);
}

/// Space bar and wheel do on the line what they do beside it.
bool PreviewView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == divider && event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (watched == divider && isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        if (event->type() == QEvent::KeyPress) {
            keyPressEvent(static_cast<QKeyEvent*>(event));
        } else {
            keyReleaseEvent(static_cast<QKeyEvent*>(event));
        }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void PreviewView::mousePressEvent(QMouseEvent* event)
{
    dragged = event->pos();
}

void PreviewView::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) != 0) {
        MoveBy(event->pos() - dragged);
        dragged = event->pos();
    }
}

void PreviewView::wheelEvent(QWheelEvent* event)
{
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        StepZoom(event->angleDelta().y() > 0 ? 1 : -1);
    } else {
        MoveBy(event->pixelDelta().isNull() ? event->angleDelta() / 2 : event->pixelDelta());
    }
    event->accept();
}

void PreviewView::MoveBy(const QPoint& way)
{
    place.Move(QPointF(way) * devicePixelRatioF());
    update();
}

void PreviewView::StepZoom(int steps)
{
    const auto wanted = ViewZoom(std::clamp(int(Zoom()) + steps, int(ViewZoom::Fit), int(ViewZoom::Double)));
    if (wanted != Zoom()) {
        SetZoom(wanted);
        Q_EMIT ZoomChanged();
    }
}

} // namespace BatchDesktop
