// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/RunObserver.h"

#include <QMap>

namespace BatchCli {

/// "14 files with other extensions were left out ..."
QString LeftOutText(int count);

/// Writes a table to standard error at the end of a run: how many files were written, skipped and failed, and why; what
/// was warned of, and how many files were left out.
class RunSummary : public BatchHost::RunObserver
{
public:
    void OnStart(const BatchHost::RunInputs& inputs, const QString& outputFolder) override;
    void OnEarlierResult(const BatchHost::FileResult& result) override;
    void OnResult(const BatchHost::FileResult& result, int done, int files) override;
    void OnEnd(const BatchHost::RunEnd& end) override;

private:
    void Write(BatchHost::FileResult::Kind kind, int count) const;
    void WriteWarnings(const BatchHost::RunEnd& end) const;

    QVector<BatchHost::FileResult> unwritten;
    QMap<BatchJob::WarningKind, QString> examples; ///< the first warning of each kind, with its file
    int leftOut = 0;
    QStringList gone; ///< results from before the interruption that no longer exist
};

} // namespace BatchCli
