#pragma once

#include "hosts/common/RunObserver.h"

namespace BatchCli {

/// Writes a table to standard error at the end of a run: how many files were written, skipped and failed, and why.
class RunSummary : public BatchHost::RunObserver
{
public:
    void OnEarlierResult(const BatchHost::FileResult& result) override;
    void OnResult(const BatchHost::FileResult& result, int done, int files) override;
    void OnEnd(const BatchHost::RunEnd& end) override;

private:
    void Write(BatchHost::FileResult::Kind kind, int count) const;

    QVector<BatchHost::FileResult> unwritten;
    QStringList gone; ///< results from before the interruption that no longer exist
};

} // namespace BatchCli
