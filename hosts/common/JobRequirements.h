// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

class ZTBatchDocument;

namespace BatchHost {

/// Throws RequestError for a job whose output settings or effects the server would refuse.
void RequireUsableSettings(const ZTBatchDocument& job);

/// The same for a job whose output folder may be absent, or relative to where the job is run.
void RequireUsableSettingsButFolder(ZTBatchDocument& job);

/// Throws RequestError for a job without pictures, or whose settings the server would refuse.
void RequireRunnableJob(const ZTBatchDocument& job);

} // namespace BatchHost
