// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FactsLine.h"

#include <QRegularExpression>
#include <QStringList>

namespace BatchJob {

namespace {

constexpr int base = 10;
constexpr int second = 1000; // ms

QString Start(const QString& file)
{
    return file + QStringLiteral(": facts: ");
}

const QString& Separator()
{
    static const QString separator = QStringLiteral(", ");
    return separator;
}

QString SizeText(const QString& word, const QSize& size)
{
    return QStringLiteral("%1 %2 x %3 pixels").arg(word).arg(size.width()).arg(size.height());
}

/// The numbers in `part` if it has the form of `pattern`.
std::optional<QVector<qint64>> NumbersIn(const QString& part, const QString& pattern)
{
    const QRegularExpressionMatch match = QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(part);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    QVector<qint64> numbers;
    for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
        numbers.append(match.captured(i).toLongLong());
    }
    return numbers;
}

QSize SizeOf(const QVector<qint64>& numbers)
{
    return {int(numbers[0]), int(numbers[1])};
}

/// Enters what `part` says; false when it says nothing known.
bool ReadPart(const QString& part, PictureFacts& facts)
{
    const QString size = QStringLiteral(" ([0-9]{1,8}) x ([0-9]{1,8}) pixels");
    if (const auto from = NumbersIn(part, QStringLiteral("from") + size)) {
        facts.inputSize = SizeOf(*from);
    } else if (const auto to = NumbersIn(part, QStringLiteral("to") + size)) {
        facts.outputSize = SizeOf(*to);
    } else if (const auto bytes = NumbersIn(part, QStringLiteral("([0-9]{1,18}) bytes"))) {
        facts.outputBytes = bytes->first();
    } else if (const auto quality = NumbersIn(part, QStringLiteral("quality ([0-9]{1,3})"))) {
        facts.quality = int(quality->first());
    } else if (const auto time = NumbersIn(part, QStringLiteral("([0-9]{1,6})\\.([0-9]{3}) seconds"))) {
        facts.milliseconds = int(time->first() * second + time->last());
    } else {
        return false;
    }
    return true;
}

} // namespace

QString FactsLine::Text() const
{
    QStringList parts;
    if (!facts.inputSize.isEmpty()) {
        parts.append(SizeText(QStringLiteral("from"), facts.inputSize));
    }
    if (!facts.outputSize.isEmpty()) {
        parts.append(SizeText(QStringLiteral("to"), facts.outputSize));
    }
    if (facts.outputBytes >= 0) {
        parts.append(QStringLiteral("%1 bytes").arg(facts.outputBytes));
    }
    if (facts.quality > 0) {
        parts.append(QStringLiteral("quality %1").arg(facts.quality));
    }
    if (facts.milliseconds >= 0) {
        parts.append(QStringLiteral("%1.%2 seconds")
                         .arg(facts.milliseconds / second)
                         .arg(facts.milliseconds % second, 3, base, QLatin1Char('0')));
    }
    return parts.isEmpty() ? QString() : Start(file) + parts.join(Separator());
}

std::optional<FactsLine> FactsLine::Parse(const QString& text, const QString& file)
{
    const QString start = Start(file);
    if (!text.startsWith(start)) {
        return std::nullopt;
    }
    PictureFacts facts;
    for (const QString& part : text.mid(start.size()).split(Separator())) {
        if (!ReadPart(part, facts)) {
            return std::nullopt;
        }
    }
    // A line that is written otherwise than here says nothing certain.
    const FactsLine line{file, PossibleFacts(facts)};
    return line.Text() == text ? std::optional(line) : std::nullopt;
}

} // namespace BatchJob
