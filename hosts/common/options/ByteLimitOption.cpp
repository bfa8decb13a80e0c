// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteLimitOption.h"

#include "ByteTexts.h"
#include "FormatNames.h"
#include "ParameterTexts.h"

#include "hosts/common/RequestError.h"
#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

namespace BatchHost {

namespace {

const QString maxBytes = QStringLiteral("maxBytes");

void SetLimit(ZTBatchDocument& job, const QString& text)
{
    QString format;
    QByteArray options;
    job.GetOutputSettings()->GetFormat(format, options);
    const BatchJob::FormatSchema* const known = BatchJob::FindFormat(format);
    const QStringList able = FormatsWithOption(maxBytes);
    if (known != nullptr && !able.contains(known->name)) {
        throw RequestError{
            BatchJob::Phrase::English("the size of %1 files follows from their pixels; %2 can have a limit")
                .arg(known->name, able.join(QStringLiteral(", ")))};
    }
    const QString value = QString::number(BytesFromText(text));
    job.GetOutputSettings()->SetFormat(format, WithFormatOption(format, options, maxBytes + QLatin1Char('=') + value));
}

} // namespace

JobOption ByteLimitOption()
{
    return {{QStringLiteral("--max-size"), QStringLiteral("SIZE"),
             BatchJob::Phrase::English("the largest file, such as 500kB; the best quality that is not larger is found. "
                                       "The format options minQuality and mayShrink say how far it may go"),
             BatchJob::Phrase::English("Output")},
            SetLimit,
            [](const ZTBatchDocument&) { return QStringList(); }}; // --format-option shows it.
}

} // namespace BatchHost
