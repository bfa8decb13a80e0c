// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSplitter>
#include <QTabWidget>

namespace BatchDesktop {

/// Pictures, preview and settings side by side. Where the window is too narrow for three, the preview is a tab beside
/// the pictures.
class PaneArrangement : public QSplitter
{
    Q_OBJECT

public:
    /// The panes become its children.
    PaneArrangement(QWidget* pictures, QWidget* preview, QWidget* settings, QWidget* parent = nullptr);

    bool IsNarrow() const { return preview->parentWidget() != this; }

    /// The widths of the three panes side by side, for the next start.
    QByteArray Widths() const { return IsNarrow() ? widths : saveState(); }

    /// Ignores what is not from Widths().
    void SetWidths(const QByteArray& saved);

    /// Makes `pane` visible if it is behind a tab.
    void Raise(QWidget* pane);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange(bool isNarrow);
    void ApplyWidths();

    QWidget* const pictures;
    QWidget* const preview;
    QWidget* const settings;
    QTabWidget* const tabs;
    bool hasSize = false;
    QByteArray widths; ///< of three panes, while there are two
};

} // namespace BatchDesktop
