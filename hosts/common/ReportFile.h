// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunResults.h"

#include <QSaveFile>
#include <QString>

namespace BatchHost {

/// What a report says of a file without result.
inline QString WordOfUnprocessed()
{
    return QStringLiteral("not processed");
}

/// A CSV or JSON file with one entry for each result, which are written as they come. The file is whole or absent.
class ReportFile
{
public:
    /// Throws RequestError when the file cannot be written, or its name ends with neither .csv nor .json.
    explicit ReportFile(const QString& path);

    /// To be called before the first entry. Each entry says its preset, if `withPresets`.
    void Begin(bool withPresets);

    /// `word` says what became of the file: a ResultWord(), or another one.
    void Add(const FileResult& result, const QString& word);

    /// To be called after the last entry.
    void Commit();

    /// After that: why the report could not be written; empty when it was.
    QString Error() const { return error; }

private:
    QByteArray CsvOf(const FileResult& result, const QString& word) const;
    QByteArray JsonOf(const FileResult& result, const QString& word) const;

    QSaveFile file;
    bool isJson = false;
    bool hasPresets = false;
    bool isEmpty = true;
    QString error;
};

} // namespace BatchHost
