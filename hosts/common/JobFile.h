#pragma once

#include <QString>

class ZTBatchDocument;

/// Jobs as files.
namespace BatchHost {

/// Whether a job can hold `text`. XML has no way to write most control characters.
bool CanBeSaved(const QString& text);

/// Reads the job in the file `path`. Throws RequestError.
void LoadJob(ZTBatchDocument& job, const QString& path);

/// Writes `job` whole or not at all. A file that exists is replaced only when `replaceExisting` is true. Throws
/// RequestError.
void SaveJob(const ZTBatchDocument& job, const QString& path, bool replaceExisting);

} // namespace BatchHost
