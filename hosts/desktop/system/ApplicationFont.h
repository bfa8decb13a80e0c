// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchDesktop {

/// Gives the application the font that the system uses in its own windows, where Qt takes another.
void UseFontOfSystem();

} // namespace BatchDesktop
