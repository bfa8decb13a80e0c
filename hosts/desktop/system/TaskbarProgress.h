// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <memory>

namespace BatchDesktop {

/// The progress of a run on the program's symbol in the taskbar. Taskbars that show none ignore it.
class TaskbarProgress
{
public:
    /// On Windows it is the symbol of `window`, elsewhere that of the program.
    explicit TaskbarProgress(QWidget& window);

    /// Hides it.
    ~TaskbarProgress();

    /// Shows it; `percent` is 0 to 100.
    void Show(int percent);

    /// Whether the user is waited for.
    void SetUrgent(bool isUrgent);

    void Hide();

private:
    class Link;

    const std::unique_ptr<Link> link;
};

} // namespace BatchDesktop
