#pragma once

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace BatchCli {

/// One line on standard error that is written over and over: how far something is. Shows nothing when standard error is
/// no terminal.
class StatusLine
{
public:
    explicit StatusLine(bool isWanted);
    ~StatusLine();

    bool IsShown() const { return isShown; }

    /// Shows the text that `make` gives, cut to the terminal's width; at most ten times a second, else `make` is not
    /// asked.
    void Show(const std::function<QString()>& make);

    /// As Show(), but at once.
    void ShowNow(const QString& text);

    /// Takes the line away, so that something else can be written.
    void Clear();

private:
    Q_DISABLE_COPY(StatusLine)

    const bool isShown;
    bool isVisible = false;
    QElapsedTimer sinceLast;
};

} // namespace BatchCli
