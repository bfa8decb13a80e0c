// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ThumbnailFiles.h"
#include "ThumbnailMaker.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QStringList>
#include <QThreadPool>

namespace BatchDesktop {

/// Small pictures of the inputs that are visible. They come from the disk if they can, else a worker makes them; this
/// process decodes only what the worker has written.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    explicit Thumbnails(const ThumbnailFiles& files, QObject* parent = nullptr);
    ~Thumbnails() override;

    /// The pictures that are wanted now, the most urgent first. Those that were wanted before are forgotten, unless
    /// they are being made.
    void Want(const QStringList& pictures);

    /// The thumbnail of a picture; null before it is made.
    QPixmap Of(const QString& picture) const;

    /// Whether a thumbnail could not be made. It is not tried again until the file changes.
    bool IsBroken(const QString& picture) const { return broken.contains(picture); }

    /// The picture may have changed on the disk.
    void Forget(const QString& picture);

    /// How many were given to a worker so far.
    int MadeCount() const { return made; }

Q_SIGNALS:
    /// There is one now, or it turned out to be broken.
    void Changed(const QString& picture);

private:
    /// What the disk has for a picture.
    struct Found
    {
        ThumbnailFiles::Place place;
        QImage image; ///< null if it is not made
    };

    /// A picture that a worker makes.
    struct Order
    {
        QString picture;
        bool isFromDesktop = false; ///< made from the desktop's thumbnail; if that fails, from the picture
    };

    void Next();
    void LookUp(const QString& picture);
    void OnFound(const QString& picture, const Found& found);
    void OnMade(const QString& target, bool isThere);
    void Give(const QString& picture, const ThumbnailFiles::Place& place);
    void GiveUp(const QString& picture);

    const ThumbnailFiles files;
    ThumbnailMaker maker;
    QStringList wanted;
    QString looking;              ///< the picture that is being looked up; empty if none is
    QHash<QString, Order> orders; ///< by path of our thumbnail
    QSet<QString> ordered;        ///< the pictures of the orders
    QSet<QString> broken;
    mutable QCache<QString, QPixmap> pixmaps; ///< by picture; the cost is in KiB
    bool isUnable = false;
    int made = 0;
    QThreadPool reader; ///< of one thread
};

} // namespace BatchDesktop
