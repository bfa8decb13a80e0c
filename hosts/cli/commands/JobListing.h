// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class ZTBatchDocument;

namespace BatchCli {

/// A job as text for people: its inputs as a tree, and its settings and effects in the words of the options.
QString JobListing(const ZTBatchDocument& job);

} // namespace BatchCli
