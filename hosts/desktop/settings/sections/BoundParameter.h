// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/Settings.h"
#include "hosts/desktop/settings/parameters/ParameterRow.h"
#include "job/values/JobValues.h"

#include <functional>

namespace BatchDesktop {

/// A parameter that is edited, and what it is of the settings.
struct BoundParameter
{
    ParameterRow row;
    std::function<QJsonValue(const Settings&)> read;
    std::function<void(Settings&, const QJsonValue&)> write;
    std::function<bool(const Settings&)> isUsed = {}; ///< whether it is shown; null: always
};

/// The choices of `words`, in the user's language.
template<std::size_t count>
QVector<ShownChoice> ChoicesOf(const std::array<BatchJob::Word, count>& words);

/// Rows of what the catalogues do not describe. `field` is how the checks of jobs name it. The texts are shown as they
/// are.
ParameterRow NumberRow(const char* name, const QString& label, double minimum, double maximum, const char* unit,
                       const char* field);
ParameterRow IntegerRow(const char* name, const QString& label, int minimum, int maximum, const char* unit,
                        const char* field);
ParameterRow TruthRow(const char* name, const QString& label);
ParameterRow TextRow(const char* name, const QString& label, int longest);
ParameterRow ColourRow(const char* name, const QString& label);
ParameterRow FileRow(const char* name, const QString& label, const char* field);
ParameterRow ChoiceRow(const char* name, const QString& label, const QVector<ShownChoice>& choices, const char* field);

/// `text` with a capital letter in front, in the user's language.
QString ShownDescription(const char* text);

template<std::size_t count>
QVector<ShownChoice> ChoicesOf(const std::array<BatchJob::Word, count>& words)
{
    QVector<ShownChoice> choices;
    for (const BatchJob::Word& word : words) {
        choices.append({word.value, ShownDescription(word.description)});
    }
    return choices;
}

} // namespace BatchDesktop
