// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTest>

/// The rows of a test of random edits: one for each seed.
inline void AddSeeds()
{
    QTest::addColumn<unsigned>("seed");

    for (unsigned seed = 1; seed <= 40; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

/// Makes `steps` edits with an `Editor` of this seed. An Editor has Edit(), Difference() and the text `lastEdit`.
/// Returns the first difference, with seed, step and edit; empty if there is none.
template<typename Editor>
QString FirstDifference(unsigned seed, int steps)
{
    Editor editor(seed);
    for (int step = 0; step < steps; ++step) {
        editor.Edit();
        const QString difference = editor.Difference();
        if (!difference.isEmpty()) {
            return QStringLiteral("seed %1, step %2, after %3: %4")
                .arg(seed)
                .arg(step)
                .arg(editor.lastEdit, difference);
        }
    }
    return QString();
}
