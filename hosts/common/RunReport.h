// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ReportFile.h"
#include "RunObserver.h"

#include <QMultiHash>
#include <QPair>
#include <QVector>

namespace BatchHost {

/// Writes a CSV or JSON file with one entry for each input of the job, or for each of its results if there are several,
/// in the job's order, and then one for each file that was left out.
class RunReport : public RunObserver
{
public:
    /// Throws RequestError when the file cannot be written, or its name ends with neither .csv nor .json.
    explicit RunReport(const QString& path)
        : file(path)
    {
    }

    void OnStart(const RunInputs& inputs, const QString& outputFolder) override;
    void OnEarlierResult(const FileResult& result) override { OnResult(result, 0, 0); }
    void OnResult(const FileResult& result, int done, int files) override;
    void OnEnd(const RunEnd& end) override;

    /// After the run: why the report could not be written; empty when it was.
    QString Error() const { return file.Error(); }

private:
    struct Entry
    {
        FileResult result;
        QString word = WordOfUnprocessed(); ///< what became of the file
    };

    ReportFile file;
    QVector<Entry> entries;
    QMultiHash<QPair<QString, QString>, int> open; ///< the entries that are not done, by input and preset
    bool hasPresets = false;
};

} // namespace BatchHost
