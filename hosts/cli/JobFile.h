#pragma once

#include <QString>

class ZTBatchDocument;

/// Jobs as files. Everything here throws UsageError.
namespace BatchCli {

void LoadJob(ZTBatchDocument& job, const QString& path);

/// Writes `job` whole or not at all; to standard output when `path` is "-". A file that exists is replaced only when
/// `replaceExisting` is true.
void SaveJob(const ZTBatchDocument& job, const QString& path, bool replaceExisting);

} // namespace BatchCli
