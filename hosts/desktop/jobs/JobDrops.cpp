// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobDrops.h"

#include "hosts/common/JobFile.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <utility>

namespace BatchDesktop {

namespace {

/// The job file that `data` is; empty if it is something else.
QString JobIn(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return !path.isEmpty() && BatchHost::IsSavedJob(path) ? path : QString();
}

} // namespace

JobDrops::JobDrops(std::function<void(const QString& path)> open, QObject* parent)
    : QObject(parent)
    , open(std::move(open))
{
}

void JobDrops::Watch(QWidget& widget)
{
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

bool JobDrops::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto* const drop = static_cast<QDropEvent*>(event); // The other two are such events, too.
    const QString path = JobIn(*drop->mimeData());
    if (path.isEmpty()) {
        return QObject::eventFilter(watched, event);
    }
    drop->setDropAction(Qt::CopyAction); // The file stays where it is.
    drop->accept();
    if (type == QEvent::Drop) {
        // A question about changes must not keep the program that the file comes from.
        QTimer::singleShot(0, this, [this, path] { open(path); });
    }
    return true;
}

} // namespace BatchDesktop
