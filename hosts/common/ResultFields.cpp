// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultFields.h"

#include "job/values/TimeText.h"

namespace BatchHost {

namespace {

const QString inputWidth = QStringLiteral("inputWidth");
const QString inputHeight = QStringLiteral("inputHeight");
const QString inputBytes = QStringLiteral("inputBytes");
const QString outputWidth = QStringLiteral("width");
const QString outputHeight = QStringLiteral("height");
const QString outputBytes = QStringLiteral("bytes");
const QString quality = QStringLiteral("quality");
const QString seconds = QStringLiteral("seconds");
const QString finished = QStringLiteral("finished");

void InsertSize(QJsonObject& fields, const QString& width, const QString& height, const QSize& size)
{
    if (!size.isEmpty()) {
        fields.insert(width, size.width());
        fields.insert(height, size.height());
    }
}

} // namespace

const QStringList& FactFieldNames()
{
    static const QStringList names{inputWidth,  inputHeight, inputBytes, outputWidth, outputHeight,
                                   outputBytes, quality,     seconds,    finished};
    return names;
}

QJsonObject FactFieldsOf(const FileResult& result)
{
    QJsonObject fields;
    InsertSize(fields, inputWidth, inputHeight, result.facts.inputSize);
    if (result.inputBytes >= 0) {
        fields.insert(inputBytes, double(result.inputBytes));
    }
    InsertSize(fields, outputWidth, outputHeight, result.facts.outputSize);
    if (result.facts.outputBytes >= 0) {
        fields.insert(outputBytes, double(result.facts.outputBytes));
    }
    if (result.facts.quality > 0) {
        fields.insert(quality, result.facts.quality);
    }
    if (result.facts.milliseconds >= 0) {
        fields.insert(seconds, result.facts.milliseconds / 1000.0);
    }
    if (result.finished.isValid()) {
        fields.insert(finished, BatchJob::TimeText(result.finished));
    }
    return fields;
}

} // namespace BatchHost
