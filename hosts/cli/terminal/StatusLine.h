// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace BatchCli {

/// A line on standard error that is overwritten as something progresses. Shows nothing when standard error is not a
/// terminal.
class StatusLine
{
public:
    explicit StatusLine(bool isWanted);
    ~StatusLine();

    bool IsShown() const { return isShown; }

    /// Shows the text that `make` returns, cut to the terminal's width. Does nothing when called more than ten times a
    /// second.
    void Show(const std::function<QString()>& make);

    /// As Show(), but always.
    void ShowNow(const QString& text);

    /// Erases the line, so that something else can be written.
    void Clear();

private:
    Q_DISABLE_COPY(StatusLine)

    const bool isShown;
    bool isVisible = false;
    QElapsedTimer sinceLast;
};

} // namespace BatchCli
