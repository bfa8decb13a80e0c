// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QString>

namespace BatchDesktop {

/// Whether other programs come first while a run works: an entry of a menu, remembered from one start to the next. It
/// counts for runs that are started afterwards.
class RunPriority
{
public:
    /// The action belongs to `parent`. The choice is kept in the file of settings `file`.
    RunPriority(const QString& file, QObject* parent);

    QAction* Action() const { return action; }

private:
    QAction* const action;
};

} // namespace BatchDesktop
