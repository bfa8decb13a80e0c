// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/FileStamp.h"
#include "job/values/PictureFacts.h"
#include "job/values/Warning.h"

#include <QHash>
#include <QString>

/// What the results in an output folder were made from. docs/reference/record.md describes the file.
namespace BatchJob {

/// A result as it was written.
struct RecordedResult
{
    QString input; ///< path
    FileStamp inputStamp;
    QByteArray inputChecksum; ///< empty if it is not known
    FileStamp stamp;          ///< of the result
    QByteArray checksum;      ///< of the result; empty if it is not known
    QString recipe;           ///< see Recipe
    Warnings warnings;
    PictureFacts facts;
};

/// The results by their paths below the output folder.
using ResultRecord = QHash<QString, RecordedResult>;

/// The path of the record in `folder`.
QString RecordPath(const QString& folder);

/// The record in `folder`; empty if there is none, or if it is damaged, of another version, or can have been written by
/// another user. In these cases `problem` says for users what is wrong.
ResultRecord ReadRecord(const QString& folder, QString& problem);

/// How many results the record in `folder` has by its own account, without reading them; -1 if that is not known.
int RecordedCount(const QString& folder);

/// Puts `record` in the place of the record in `folder`, whole or not at all. False when it cannot be written;
/// `problem` then says for users why. A file that another user can have written stays as it is.
bool WriteRecord(const QString& folder, const ResultRecord& record, QString& problem);

} // namespace BatchJob
