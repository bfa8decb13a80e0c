// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/Presets.h"
#include "job/settings/JobBundle.h"

class ZTBatchDocument;

namespace BatchDesktop {

/// The jobs of a run that makes a result of each of the presets `names` from every picture of `edited`, in folders
/// below its output folder. `first` must be a new job; it becomes the first of them, which has the inputs. Throws
/// RequestError when a preset cannot be used.
BatchJob::JobBundle BundleOfPresets(const ZTBatchDocument& edited, const BatchHost::Presets& presets,
                                    const QStringList& names, ZTBatchDocument& first);

} // namespace BatchDesktop
