// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TroubleLine.h"

#include "job/values/Phrase.h"

#include <QStringList>

namespace BatchJob {

namespace {

/// What stands between `start` and `end` in `text`; nothing when `text` has not both.
std::optional<QString> Between(const QString& start, const QString& text, const QString& end)
{
    const int length = text.size() - start.size() - end.size();
    if (length < 0 || !text.startsWith(start) || !text.endsWith(end)) {
        return std::nullopt;
    }
    return text.mid(start.size(), length);
}

QString Beginning(const QString& file)
{
    return file + QStringLiteral(": ");
}

/// Empty for an action that is no consequence.
QString Consequence(Action action)
{
    switch (action) {
    case Action::ReportedOnly:
        return QStringLiteral("asking");
    case Action::FileSkipped:
        return QStringLiteral("skipped");
    case Action::RunStopped:
        return QStringLiteral("the run is stopped");
    default:
        return {};
    }
}

QString PolicyEnd(PolicyKind policy)
{
    return QStringLiteral(" (%1 policy)").arg(Policies::Name(policy));
}

QString TroubleEnd(Action action, PolicyKind policy)
{
    return QStringLiteral("; ") + Consequence(action) + PolicyEnd(policy);
}

/// What stands around the result in a remark. Empty for an action without remark.
struct RemarkFrame
{
    QString start;
    QString end;
};

/// A remark, with %1 for the result. Empty for an action without remark.
QString RemarkOf(Action action)
{
    switch (action) {
    case Action::WrittenUnderAnotherName:
        return Phrase::English("written as \"%1\" (naming policy)");
    case Action::ExistingFileOverwritten:
        return Phrase::English("\"%1\" was overwritten (naming policy)");
    case Action::WrittenInAnotherFormat:
        return Phrase::English("written as %1 (write-to-format policy)");
    default:
        return {};
    }
}

RemarkFrame RemarkFrameOf(Action action)
{
    const QStringList parts = RemarkOf(action).split(QStringLiteral("%1"));
    return {parts.first(), parts.last()};
}

const QString& RefusalStart()
{
    static const QString start = QStringLiteral("The job is refused: ");
    return start;
}

} // namespace

QString TroubleLine::Text() const
{
    return Beginning(file) + reason + TroubleEnd(action, policy);
}

std::optional<TroubleLine> TroubleLine::Parse(const QString& text, const QString& file, Action action)
{
    if (Consequence(action).isEmpty()) {
        return std::nullopt;
    }
    for (int i = 0; i < policyCount; ++i) {
        const auto policy = PolicyKind(i);
        if (const std::optional<QString> reason = Between(Beginning(file), text, TroubleEnd(action, policy))) {
            return TroubleLine{file, *reason, action, policy};
        }
    }
    return std::nullopt;
}

QString ResultLine::Text() const
{
    return Beginning(file) + Remark();
}

QString ResultLine::Remark() const
{
    const RemarkFrame frame = RemarkFrameOf(action);
    return frame.start + result + frame.end;
}

std::optional<ResultLine> ResultLine::Parse(const QString& text, const QString& file, Action action)
{
    const RemarkFrame frame = RemarkFrameOf(action);
    if (frame.end.isEmpty()) {
        return std::nullopt;
    }
    const std::optional<QString> result = Between(Beginning(file) + frame.start, text, frame.end);
    return result ? std::optional(ResultLine{file, *result, action}) : std::nullopt;
}

QString RefusalLine::Text() const
{
    return RefusalStart() + message + QLatin1Char('.');
}

std::optional<RefusalLine> RefusalLine::Parse(const QString& text)
{
    const std::optional<QString> message = Between(RefusalStart(), text, QStringLiteral("."));
    return message ? std::optional(RefusalLine{*message}) : std::nullopt;
}

} // namespace BatchJob
