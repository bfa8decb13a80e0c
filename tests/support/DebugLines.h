#pragma once

#include <QStringList>

/// Collects every message that Qt's logging gets while it lives, from all threads, and keeps them from the terminal.
/// One at a time.
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
