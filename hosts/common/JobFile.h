#pragma once

#include <QString>

class ZTBatchDocument;

/// Jobs as files.
namespace BatchHost {

/// Whether a saved job can hold `text`. Its parser refuses U+FFFE and U+FFFF, and UTF-8 has no lone surrogates.
bool CanBeSaved(const QString& text);

/// Reads the job in the file `path`. Throws RequestError.
void LoadJob(ZTBatchDocument& job, const QString& path);

/// Writes `job` whole or not at all. A file that exists is replaced only when `replaceExisting` is true. Throws
/// RequestError.
void SaveJob(const ZTBatchDocument& job, const QString& path, bool replaceExisting);

} // namespace BatchHost
