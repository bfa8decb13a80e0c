// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/Settings.h"

namespace BatchDesktop {

/// Where two chains of effects differ: one row that was moved, or rows between equal ones.
class EffectDifference
{
public:
    EffectDifference(const QVector<Settings::Effect>& before, const QVector<Settings::Effect>& after);

    bool IsMove() const { return isMove; }
    int From() const { return from; }
    int To() const { return to; }

    /// The first row that differs, and how many do on each side. Equal rows are before and behind them.
    int First() const { return first; }
    int OldCount() const { return oldCount; }
    int NewCount() const { return newCount; }

private:
    int first = 0;
    int oldCount = 0;
    int newCount = 0;
    bool isMove = false;
    int from = 0;
    int to = 0;
};

} // namespace BatchDesktop
