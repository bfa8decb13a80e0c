// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Thumbnails.h"

#include <QColorSpace>
#include <QFile>

#include <algorithm>

namespace BatchDesktop {

namespace {

constexpr int mostPixmaps = 64 * 1024;          // KiB
constexpr qint64 mostFiles = qint64(256) << 20; // bytes of thumbnails on the disk
constexpr int ordersAhead = 2;

QImage ReadOwn(const QString& path)
{
    QImage image(path, "PNG");
    if (image.colorSpace().isValid()) {
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    return image;
}

} // namespace

Thumbnails::Thumbnails(const ThumbnailFiles& files, QObject* parent)
    : QObject(parent)
    , files(files)
    , maker(files.OwnFolder())
    , pixmaps(mostPixmaps)
{
    reader.setMaxThreadCount(1);
    reader.start([files] { files.Prune(mostFiles); });
    connect(&maker, &ThumbnailMaker::Made, this, &Thumbnails::OnMade);
    connect(&maker, &ThumbnailMaker::Unable, this, [this] {
        isUnable = true;
        orders.clear();
        ordered.clear();
    });
}

Thumbnails::~Thumbnails()
{
    reader.clear();
    reader.waitForDone();
}

void Thumbnails::Want(const QStringList& pictures)
{
    wanted = pictures;
    Next();
}

QPixmap Thumbnails::Of(const QString& picture) const
{
    const QPixmap* const pixmap = pixmaps.object(picture);
    return pixmap ? *pixmap : QPixmap();
}

void Thumbnails::Forget(const QString& picture)
{
    pixmaps.remove(picture);
    broken.remove(picture);
    Q_EMIT Changed(picture);
}

void Thumbnails::Next()
{
    while (looking.isEmpty() && maker.Pending() < ordersAhead && !wanted.isEmpty()) {
        const QString picture = wanted.takeFirst();
        if (!pixmaps.contains(picture) && !broken.contains(picture) && !ordered.contains(picture)) {
            LookUp(picture);
        }
    }
}

void Thumbnails::LookUp(const QString& picture)
{
    looking = picture;
    reader.start([this, picture] {
        Found found{files.Find(picture), QImage()};
        if (found.place.isMade) {
            found.image = ReadOwn(found.place.own);
            if (found.image.isNull()) {
                QFile::remove(found.place.own); // It is made anew when the picture is wanted again.
            }
        }
        QMetaObject::invokeMethod(
            this, [this, picture, found] { OnFound(picture, found); }, Qt::QueuedConnection);
    });
}

void Thumbnails::OnFound(const QString& picture, const Found& found)
{
    looking.clear();
    ordered.remove(picture);
    if (!found.image.isNull()) {
        const int cost = std::max(1, int(found.image.sizeInBytes() / 1024));
        pixmaps.insert(picture, new QPixmap(QPixmap::fromImage(found.image)), cost);
        Q_EMIT Changed(picture);
    } else if (found.place.own.isEmpty() || found.place.isBroken) {
        GiveUp(picture);
    } else if (!isUnable && !found.place.isMade) {
        Give(picture, found.place);
    }
    Next();
}

void Thumbnails::Give(const QString& picture, const ThumbnailFiles::Place& place)
{
    const bool isFromDesktop = !place.desktop.isEmpty();
    orders.insert(place.own, {picture, isFromDesktop});
    ordered.insert(picture);
    ++made;
    maker.Make(isFromDesktop ? place.desktop : picture, place.own, wanted);
}

void Thumbnails::OnMade(const QString& target, bool isThere)
{
    const Order order = orders.take(target);
    if (isThere) {
        wanted.prepend(order.picture); // It is read like any other that is there.
    } else if (order.isFromDesktop) {
        ThumbnailFiles::Place place;
        place.own = target;
        Give(order.picture, place);
        return;
    } else {
        ThumbnailFiles::MarkBroken(target);
        GiveUp(order.picture);
    }
    ordered.remove(order.picture);
    Next();
}

void Thumbnails::GiveUp(const QString& picture)
{
    ordered.remove(picture);
    broken.insert(picture);
    Q_EMIT Changed(picture);
}

} // namespace BatchDesktop
