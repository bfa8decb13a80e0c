// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/FileStamp.h"
#include "job/values/PictureFacts.h"
#include "job/values/Versions.h"
#include "job/values/Warning.h"

#include <QJsonArray>
#include <QJsonObject>

/// What is known of a picture that was written, as fields of a line of JSON: journals and records of results share
/// them.
namespace BatchJob {

/// What is known of a picture: "from", "to", "bytes", "quality", "milliseconds". Impossible values are left out.
PictureFacts ReadFacts(const QJsonObject& line);
void Insert(QJsonObject& line, const PictureFacts& facts);

/// Objects of "kind" and "text".
Warnings ReadWarnings(const QJsonArray& array);
QJsonArray JsonOf(const Warnings& warnings);

/// "bytes", "modified" and, unless it is 0, "number". The last two are texts: they do not fit into numbers of JSON.
FileStamp ReadStamp(const QJsonObject& object);
QJsonObject JsonOf(const FileStamp& stamp);

/// Texts by the names of what has these versions. Empty texts are left out.
Versions ReadVersions(const QJsonObject& object);
QJsonObject JsonOf(const Versions& versions);

} // namespace BatchJob
