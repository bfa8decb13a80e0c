// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PaneFocus.h"

#include <QApplication>

namespace BatchDesktop {

PaneFocus::PaneFocus(PaneArrangement& panes, const QVector<QWidget*>& parts, QObject* parent)
    : QObject(parent)
    , panes(panes)
    , parts(parts)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { OnFocusChanged(now); });
}

void PaneFocus::Move(int step)
{
    const int count = parts.size();
    int part = PartOf(QApplication::focusWidget());
    if (part < 0 && step < 0) {
        part = 0;
    }
    for (int i = 0; i < count; ++i) {
        part = (part + step + count) % count;
        panes.Raise(parts[part]);
        QWidget* const before = last.value(part);
        QWidget* const wanted = before && before->isVisible() && before->isEnabled() ? before : FirstIn(parts[part]);
        if (wanted) {
            wanted->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

void PaneFocus::OnFocusChanged(QWidget* now)
{
    const int part = PartOf(now);
    if (part >= 0) {
        last.insert(part, now);
    }
}

int PaneFocus::PartOf(const QWidget* widget) const
{
    for (int i = 0; i < parts.size(); ++i) {
        if (widget && (parts[i] == widget || parts[i]->isAncestorOf(widget))) {
            return i;
        }
    }
    return -1;
}

QWidget* PaneFocus::FirstIn(QWidget* part)
{
    QWidget* at = part;
    do {
        if ((at->focusPolicy() & Qt::TabFocus) != 0 && at->isVisible() && at->isEnabled()) {
            return at;
        }
        at = at->nextInFocusChain();
    } while (at != part && part->isAncestorOf(at));
    return nullptr;
}

} // namespace BatchDesktop
