// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "StatusLine.h"

#include "Console.h"

namespace BatchCli {

namespace {

constexpr int interval = 100;

const QString eraseLine = QStringLiteral("\r\033[K");

} // namespace

StatusLine::StatusLine(bool isWanted)
    : isShown(isWanted && Terminal::IsErrorTerminal() && qEnvironmentVariable("TERM") != QLatin1String("dumb"))
{
}

StatusLine::~StatusLine()
{
    Clear();
}

void StatusLine::Show(const std::function<QString()>& make)
{
    if (isShown && (!sinceLast.isValid() || sinceLast.elapsed() >= interval)) {
        ShowNow(make());
    }
}

void StatusLine::ShowNow(const QString& text)
{
    if (isShown) {
        // Some terminals break the line after their last column.
        WriteError(eraseLine + Terminal::Shortened(text, Terminal::Columns() - 1));
        isVisible = true;
        sinceLast.start();
    }
}

void StatusLine::Clear()
{
    if (isVisible) {
        WriteError(eraseLine);
        isVisible = false;
    }
}

} // namespace BatchCli
