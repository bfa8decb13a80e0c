#pragma once

class ZTBatchDocument;

namespace BatchHost {

/// Throws RequestError for a job whose output settings or effects the server would refuse.
void RequireUsableSettings(const ZTBatchDocument& job);

/// The same, and for a job without pictures.
void RequireRunnableJob(const ZTBatchDocument& job);

} // namespace BatchHost
