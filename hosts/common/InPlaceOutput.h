// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

class ZTBatchDocument;

namespace BatchHost {

/// Lets the results of `job` go to the folders of their originals: sets the output folder and the folder structure.
/// Changes nothing in a job without pictures. Throws RequestError if no output folder does that.
void SetOutputInPlace(ZTBatchDocument& job);

} // namespace BatchHost
