// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PaneArrangement.h"

#include "hosts/common/Language.h"

#include <QResizeEvent>
#include <QTabBar>

#include <algorithm>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

constexpr int leastWidthOfThree = 1100;

} // namespace

PaneArrangement::PaneArrangement(QWidget* picturesPane, QWidget* previewPane, QWidget* settingsPane, QWidget* parent)
    : QSplitter(parent)
    , pictures(picturesPane)
    , preview(previewPane)
    , settings(settingsPane)
    , tabs(new QTabWidget)
{
    setObjectName(QStringLiteral("panes"));
    setChildrenCollapsible(false);
    tabs->setObjectName(QStringLiteral("paneTabs"));
    tabs->setDocumentMode(true);
    tabs->setTabBarAutoHide(true);
    // It would hand the focus to its bar, which is hidden in wide windows; the keyboard's way would end there.
    tabs->setFocusProxy(nullptr);
    tabs->setFocusPolicy(Qt::NoFocus);
    tabs->tabBar()->setAccessibleName(Messages::tr("Panes"));
    tabs->addTab(pictures, Messages::tr("Pictures"));
    addWidget(tabs);
    addWidget(preview);
    addWidget(settings);
    setStretchFactor(1, 1);
}

void PaneArrangement::SetWidths(const QByteArray& saved)
{
    widths = saved;
    if (hasSize && !IsNarrow()) {
        ApplyWidths();
    }
}

void PaneArrangement::Raise(QWidget* pane)
{
    const int index = tabs->indexOf(pane);
    if (index >= 0) {
        tabs->setCurrentIndex(index);
    }
}

// Three panes must not keep the window from becoming narrow.
QSize PaneArrangement::minimumSizeHint() const
{
    const QSize beside = pictures->minimumSizeHint().expandedTo(preview->minimumSizeHint());
    const QSize right = settings->minimumSizeHint();
    const int tabBar = tabs->fontMetrics().height() * 2;
    return {beside.width() + handleWidth() + right.width(), std::max(beside.height() + tabBar, right.height())};
}

void PaneArrangement::resizeEvent(QResizeEvent* event)
{
    const int needed = pictures->minimumSizeHint().width() + preview->minimumSizeHint().width() +
                       settings->minimumSizeHint().width() + 2 * handleWidth();
    Arrange(event->size().width() < std::max(needed, leastWidthOfThree));
    QSplitter::resizeEvent(event);
    if (!hasSize) {
        hasSize = true; // Before that, widths were shared by nobody.
        if (!IsNarrow()) {
            ApplyWidths();
        }
    }
}

void PaneArrangement::Arrange(bool isNarrow)
{
    if (isNarrow == IsNarrow()) {
        return;
    }
    if (isNarrow) {
        widths = saveState();
        tabs->addTab(preview, Messages::tr("Preview"));
        const int half = width() / 2;
        setSizes({half, width() - half});
    } else {
        insertWidget(1, preview);
        preview->show();
        setStretchFactor(1, 1);
        ApplyWidths();
    }
}

void PaneArrangement::ApplyWidths()
{
    if (!restoreState(widths)) {
        const int share = width() / 20;
        setSizes({7 * share, 7 * share, 6 * share});
    }
    setChildrenCollapsible(false); // It is a part of the saved state.
}

} // namespace BatchDesktop
