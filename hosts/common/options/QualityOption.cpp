// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "QualityOption.h"

#include "ParameterTexts.h"

#include "hosts/common/RequestError.h"
#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <algorithm>

namespace BatchHost {

namespace {

const QString option = QStringLiteral("--quality");
const QString formatOption = QStringLiteral("--format-option");
const QString quality = QStringLiteral("quality");

bool HasQuality(const BatchJob::FormatSchema& format)
{
    return std::any_of(format.options.begin(), format.options.end(),
                       [](const BatchJob::ParameterSchema& known) { return known.name == quality; });
}

QString FormatsWithQuality()
{
    QStringList names;
    for (const BatchJob::FormatSchema& format : BatchJob::Formats()) {
        if (HasQuality(format)) {
            names.append(format.name);
        }
    }
    return names.join(QStringLiteral(", "));
}

void SetQuality(ZTBatchDocument& job, const QString& text)
{
    QString format;
    QByteArray options;
    job.GetOutputSettings()->GetFormat(format, options);
    const BatchJob::FormatSchema* const known = BatchJob::FindFormat(format);
    if (known != nullptr && !HasQuality(*known)) {
        throw RequestError{
            BatchJob::Phrase::English("%1 files have no quality; %2 have one").arg(known->name, FormatsWithQuality())};
    }
    job.GetOutputSettings()->SetFormat(format, WithFormatOption(format, options, quality + QLatin1Char('=') + text));
}

} // namespace

JobOption QualityOption()
{
    return {{option, QStringLiteral("1..100"),
             BatchJob::Phrase::English("the quality of results in formats that have one; the same as %1 %2=N")
                 .arg(formatOption, quality),
             BatchJob::Phrase::English("Output")},
            SetQuality,
            [](const ZTBatchDocument&) { return QStringList(); }}; // --format-option shows it.
}

} // namespace BatchHost
