// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchWorker {

/// Has libraries generate no code: a confined worker cannot execute it. To be called before the imaging library starts.
void ForbidGeneratedCode();

/// Has libraries load now what they would load while pictures are made: a confined worker cannot load code. To be
/// called after the imaging library has started.
void LoadWhatWorkNeeds();

} // namespace BatchWorker
