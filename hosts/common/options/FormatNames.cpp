// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatNames.h"

#include "Words.h"

#include "job/formats/FormatCatalog.h"

#include "ZTBatchOutputSettings.h"

#include <algorithm>

namespace BatchHost {

QStringList FormatNames()
{
    QStringList names{ZTBatchOutputSettings::GetOriginalFormat()};
    for (const BatchJob::FormatSchema& format : BatchJob::Formats()) {
        names.append(format.name);
    }
    return names;
}

QString FormatName(const QString& text)
{
    const QStringList names = FormatNames();
    for (const QString& name : names) {
        if (name.compare(text, Qt::CaseInsensitive) == 0) {
            return name;
        }
    }
    const BatchJob::FormatSchema* const format = BatchJob::FindFormatByExtension(text);
    if (format == nullptr) {
        throw NoSuchWord(text, names);
    }
    return format->name;
}

QStringList FormatsWithOption(const QString& option)
{
    QStringList names;
    for (const BatchJob::FormatSchema& format : BatchJob::Formats()) {
        const auto isOption = [&option](const BatchJob::ParameterSchema& known) { return known.name == option; };
        if (std::any_of(format.options.begin(), format.options.end(), isOption)) {
            names.append(format.name);
        }
    }
    return names;
}

} // namespace BatchHost
