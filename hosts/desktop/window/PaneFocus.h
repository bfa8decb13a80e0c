// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PaneArrangement.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>

namespace BatchDesktop {

/// Leads the keyboard's focus from one part of the window to the next, back to where it was in that part.
class PaneFocus : public QObject
{
    Q_OBJECT

public:
    PaneFocus(PaneArrangement& panes, const QVector<QWidget*>& parts, QObject* parent);

    /// To the next visible part (`step` 1) or the one before (-1), around the window.
    void Move(int step);

private:
    void OnFocusChanged(QWidget* now);
    int PartOf(const QWidget* widget) const;
    static QWidget* FirstIn(QWidget* part);

    PaneArrangement& panes;
    const QVector<QWidget*> parts;
    QHash<int, QPointer<QWidget>> last; ///< by part
};

} // namespace BatchDesktop
