// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlanLines.h"

#include "job/values/JsonKey.h"
#include "job/values/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace BatchJob {

namespace {

void AppendResult(QByteArray& line, const PlannedResult& result)
{
    JsonObjectText object(line);
    if (result.IsLeftOut()) {
        object.Add("code", result.code);
        object.Add("reason", result.reason);
    } else {
        object.Add("format", result.name.format);
        object.Add("number", result.name.number);
        for (const auto& [isTrue, key] :
             {std::pair(result.name.hasOtherFormat, "otherFormat"), std::pair(result.name.isOverwriting, "overwriting"),
              std::pair(result.name.isRenamed, "renamed")}) {
            if (isTrue) {
                object.Add(key, 1);
            }
        }
    }
    object.Add("to", result.name.output);
}

} // namespace

void AppendLine(QByteArray& lines, const PlannedFile& file, std::optional<QString>& folder)
{
    const int slash = file.input.lastIndexOf(QLatin1Char('/'));
    {
        JsonObjectText object(lines);
        if (file.stamp.bytes >= 0) {
            object.Add("bytes", file.stamp.bytes);
        }
        if (!folder || file.input.leftRef(slash) != *folder) {
            folder = file.input.left(slash);
            object.Add("in", *folder);
        }
        object.Add("input", file.input.mid(slash + 1));
        if (file.stamp.bytes >= 0) {
            object.Add("modified", QString::number(file.stamp.modified));
        }
        object.BeginList("results");
        for (const PlannedResult& result : file.results) {
            object.NextInList();
            AppendResult(lines, result);
        }
        object.EndList();
    }
    lines += '\n';
}

PlannedFile PlanLineReader::Read(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    folder = object.value(Key("in")).toString(folder);
    PlannedFile planned;
    planned.input = folder + QLatin1Char('/') + object.value(Key("input")).toString();
    if (object.contains(Key("bytes"))) {
        planned.stamp.bytes = qint64(object.value(Key("bytes")).toDouble());
        planned.stamp.modified = object.value(Key("modified")).toString().toLongLong();
    }
    for (const QJsonValue result : object.value(Key("results")).toArray()) {
        planned.results.append(ResultOf(result.toObject()));
    }
    return planned;
}

PlannedResult PlanLineReader::ResultOf(const QJsonObject& object)
{
    const QString ownFormat = object.value(Key("format")).toString();
    format = ownFormat == format ? format : ownFormat;
    PlannedResult result;
    result.name.output = object.value(Key("to")).toString();
    result.name.format = format;
    result.name.number = qint64(object.value(Key("number")).toDouble(1));
    result.name.isRenamed = object.contains(Key("renamed"));
    result.name.isOverwriting = object.contains(Key("overwriting"));
    result.name.hasOtherFormat = object.contains(Key("otherFormat"));
    result.code = object.value(Key("code")).toInt();
    result.reason = object.value(Key("reason")).toString();
    return result;
}

} // namespace BatchJob
