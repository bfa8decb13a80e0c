// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchJob {

/// The longest beginning of `text` that has at most `bytes` bytes of UTF-8 and does not split a user-visible character.
QString CutToBytes(const QString& text, int bytes);

} // namespace BatchJob
