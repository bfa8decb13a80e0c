// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WarningLine.h"

namespace BatchJob {

namespace {

QString Start(const QString& file)
{
    return file + QStringLiteral(": warning (");
}

const QString& KindEnd()
{
    static const QString end = QStringLiteral("): ");
    return end;
}

} // namespace

QString WarningLine::Text() const
{
    return Start(file) + WarningWord(warning.kind) + KindEnd() + warning.text;
}

std::optional<WarningLine> WarningLine::Parse(const QString& text, const QString& file)
{
    const QString start = Start(file);
    const int end = text.startsWith(start) ? text.indexOf(KindEnd(), start.size()) : -1; // No word holds its end.
    if (end < 0) {
        return std::nullopt;
    }
    const QString word = text.mid(start.size(), end - start.size());
    return WarningLine{file, {WarningKindOf(word), text.mid(end + KindEnd().size())}};
}

QString DetailLine::Text() const
{
    return file + QStringLiteral(": detail: ") + text;
}

} // namespace BatchJob
