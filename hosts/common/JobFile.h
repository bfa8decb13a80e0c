// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

class ZTBatchDocument;

/// Jobs as files.
namespace BatchHost {

/// Whether a saved job can hold `text`. Its parser refuses U+FFFE and U+FFFF, and UTF-8 has no lone surrogates.
bool CanBeSaved(const QString& text);

/// Whether the file `path` holds a saved job, by its first bytes. False for what is no file or cannot be read.
bool IsSavedJob(const QString& path);

/// Reads the job in the file `path`. Returns what of it this version does not know, as sentences for the user, at most
/// eleven. Throws RequestError.
QStringList LoadJob(ZTBatchDocument& job, const QString& path);

/// Writes `job` whole or not at all. A file that exists is replaced only when `replaceExisting` is true. Throws
/// RequestError.
void SaveJob(const ZTBatchDocument& job, const QString& path, bool replaceExisting);

} // namespace BatchHost
