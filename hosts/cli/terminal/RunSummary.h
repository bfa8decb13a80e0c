#pragma once

#include "hosts/common/RunObserver.h"

namespace BatchCli {

/// The table at the end of a run, on standard error: what was written, skipped and failed, and why.
class RunSummary : public BatchHost::RunObserver
{
public:
    void OnEarlierResult(const BatchHost::FileResult& result) override;
    void OnResult(const BatchHost::FileResult& result, int done, int files) override;
    void OnEnd(const BatchHost::RunEnd& end) override;

private:
    void Write(BatchHost::FileResult::Kind kind, int count) const;

    QVector<BatchHost::FileResult> unwritten;
    QStringList gone; ///< results of an earlier part of the run that somebody has taken away
};

} // namespace BatchCli
