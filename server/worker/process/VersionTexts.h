// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// How libraries say their versions.
namespace BatchWorker {

/// The first number with points in `text`, such as 1.15.1; the whole text if it has no such number.
QString NumberIn(const char* text);

/// The parts of the number `packed`, each but the first less than `base`: 7001 is 0.7.1 with a base of 1000.
QString Unpacked(unsigned packed, unsigned base, int parts);

} // namespace BatchWorker
