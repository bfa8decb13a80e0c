// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerPool.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>
#include <optional>

namespace BatchDesktop {

/// Has a worker make thumbnails, as PNG files. The worker is started with the first one.
class ThumbnailMaker : public QObject
{
    Q_OBJECT

public:
    /// `folder`, which exists, is where the thumbnails go.
    ThumbnailMaker(const QString& folder, QObject* parent = nullptr);
    ~ThumbnailMaker() override;

    /// How many thumbnails are being made or wait for it.
    int Pending() const { return targets.size(); }

    /// Makes the thumbnail `target` of `source`. `others` are pictures that will probably follow: a worker can read
    /// only what it was allowed to at first.
    void Make(const QString& source, const QString& target, const QStringList& others);

Q_SIGNALS:
    /// `target` is there, or cannot be made because of `source`.
    void Made(const QString& target, bool isThere);

    /// No worker can be started. Whatever was to be made is not.
    void Unable();

private:
    /// What the worker may read.
    struct Reach
    {
        QByteArray job;
        QSet<QString> folders;
        QSet<QString> files;

        bool Covers(const QString& path) const;
    };

    void Extend(const QString& source, const QStringList& others);
    void HandOut();
    void Finish(const BatchProtocol::Assignment& task, bool isThere);

    const QString folder;
    Reach reach;
    QList<BatchProtocol::Assignment> waiting;
    QHash<int, QString> targets; ///< of the tasks, by their numbers
    int lastNumber = 0;
    std::unique_ptr<BatchProtocol::WorkerPool> pool;
};

} // namespace BatchDesktop
