// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchJob_p.h"

class QDomDocument;

/// Reads jobs from their XML form. Accepts any document: a section is the first element with its name at any depth, and
/// missing or invalid values take fixed defaults.
namespace ZTBatchJobReader {

/// The job in `document`. Top-level nodes whose path exists get a bookmark.
ZTBatchJob Read(const QDomDocument& document);

} // namespace ZTBatchJobReader
