// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

class ZTBatchDocument;

namespace BatchHost {

/// Sets the defaults of a new job: each result in its input's format under its input's name, all in one folder.
void SetJobDefaults(ZTBatchDocument& job);

} // namespace BatchHost
