// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

class QMimeData;

namespace BatchDesktop {

/// Takes job files that are dropped onto widgets, before the widgets see them.
class JobDrops : public QObject
{
    Q_OBJECT

public:
    /// `open` is called with the path of a file.
    explicit JobDrops(std::function<void(const QString& path)> open, QObject* parent = nullptr);

    /// `widget` gets drops of job files, besides those that it takes itself.
    void Watch(QWidget& widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const std::function<void(const QString&)> open;
};

} // namespace BatchDesktop
