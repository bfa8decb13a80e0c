#pragma once

#include "RunObserver.h"

namespace BatchCli {

/// The table at the end of a run, on standard error: what was written, skipped and failed, and why.
class RunSummary : public RunObserver
{
public:
    void OnEarlierResult(const FileResult& result) override;
    void OnResult(const FileResult& result, int done, int files) override;
    void OnEnd(const RunEnd& end) override;

private:
    void Write(FileResult::Kind kind, int count) const;

    QVector<FileResult> unwritten;
    QStringList gone; ///< results of an earlier part of the run that somebody has taken away
};

} // namespace BatchCli
