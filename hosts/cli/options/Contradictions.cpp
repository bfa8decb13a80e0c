// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Contradictions.h"

#include "hosts/common/RequestError.h"
#include "hosts/common/options/JobOptions.h"
#include "job/values/Phrase.h"

#include <algorithm>
#include <utility>

using namespace BatchHost;

namespace BatchCli {

namespace {

const QString none = QStringLiteral("none");

/// An option as it was given, with its value if it has one.
QString Given(const ParsedArguments& arguments, const QString& option)
{
    const QString value = arguments.Value(option);
    return value.isEmpty() ? option : option + QLatin1Char(' ') + value;
}

void Exclude(const ParsedArguments& arguments, const QString& first, const QString& second)
{
    if (arguments.Has(second)) {
        throw RequestError{BatchJob::Phrase::English("%1 and %2 contradict each other; remove one of them")
                               .arg(Given(arguments, first), Given(arguments, second))};
    }
}

bool IsNone(const ParsedArguments& arguments, const QString& option)
{
    return arguments.Has(option) && arguments.Value(option).compare(none, Qt::CaseInsensitive) == 0;
}

void CheckSize(const ParsedArguments& arguments)
{
    const QString size = QStringLiteral("--size");
    const QString resize = QStringLiteral("--resize");
    const QString side = QStringLiteral("--side");
    if (IsNone(arguments, size)) {
        if (!IsNone(arguments, resize)) {
            Exclude(arguments, size, resize);
        }
        Exclude(arguments, size, side);
    } else if (IsNone(arguments, resize)) {
        Exclude(arguments, resize, side);
        if (arguments.Has(size)) {
            Exclude(arguments, size, resize);
        }
    }
}

/// Each option about the frame adds one.
void CheckFrame(const ParsedArguments& arguments)
{
    const QString frame = QStringLiteral("--frame");
    if (!IsNone(arguments, frame)) {
        return;
    }
    const QVector<JobOption>& options = JobOptions();
    const auto isFrame = [&frame](const JobOption& option) { return option.info.name == frame; };
    const QString group = std::find_if(options.begin(), options.end(), isFrame)->info.group;
    for (const JobOption& option : options) {
        if (option.info.group == group && option.info.name != frame) {
            Exclude(arguments, frame, option.info.name);
        }
    }
}

} // namespace

void CheckContradictions(const ParsedArguments& arguments)
{
    const QString quiet = QStringLiteral("--quiet");
    if (arguments.Has(quiet)) {
        Exclude(arguments, quiet, QStringLiteral("--verbose"));
    }
    CheckSize(arguments);
    CheckFrame(arguments);
}

void CheckFormatShorthands(const ParsedArguments& arguments)
{
    const QString formatOption = QStringLiteral("--format-option");
    const QStringList texts = arguments.Values(formatOption);
    for (const auto& [option, name] : {std::pair("--quality", "quality"), std::pair("--max-size", "maxBytes")}) {
        const QString own = QLatin1String(option);
        for (const QString& text : texts) {
            const bool isSame =
                text.section(QLatin1Char('='), 0, 0).trimmed().compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
            if (arguments.Has(own) && isSame && text.section(QLatin1Char('='), 1) != arguments.Value(own)) {
                throw RequestError{BatchJob::Phrase::English("%1 and %2 contradict each other; remove one of them")
                                       .arg(Given(arguments, own), formatOption + QLatin1Char(' ') + text)};
            }
        }
    }
}

} // namespace BatchCli
