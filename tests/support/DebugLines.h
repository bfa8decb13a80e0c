// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// Collects all messages of Qt's logging from all threads, instead of printing them, as long as it exists. There may be
/// only one at a time.
class DebugLines
{
public:
    DebugLines();
    ~DebugLines();

    /// All lines so far, in order.
    QStringList All() const;

    /// The texts of the lines "[source:line] text" of one source, in order.
    QStringList TextsFrom(const QString& source) const;

    /// How many lines end with `text`.
    int CountEndingWith(const QString& text) const;

    void Clear();

private:
    Q_DISABLE_COPY(DebugLines)

    QtMessageHandler previousHandler;
};
