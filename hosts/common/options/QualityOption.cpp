// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "QualityOption.h"

#include "FormatNames.h"
#include "ParameterTexts.h"

#include "hosts/common/RequestError.h"
#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

namespace BatchHost {

namespace {

const QString option = QStringLiteral("--quality");
const QString formatOption = QStringLiteral("--format-option");
const QString quality = QStringLiteral("quality");

void SetQuality(ZTBatchDocument& job, const QString& text)
{
    QString format;
    QByteArray options;
    job.GetOutputSettings()->GetFormat(format, options);
    const BatchJob::FormatSchema* const known = BatchJob::FindFormat(format);
    const QStringList able = FormatsWithOption(quality);
    if (known != nullptr && !able.contains(known->name)) {
        throw RequestError{BatchJob::Phrase::English("%1 files have no quality; %2 have one")
                               .arg(known->name, able.join(QStringLiteral(", ")))};
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
