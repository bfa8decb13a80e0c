// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormatSchema.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/// The formats that results are written in and that files are read from, as data. Everything here is safe on any
/// thread.
namespace BatchJob {

/// Every format that results can be written in. "Original" is not among them: it stands for the format of each input.
const QVector<FormatSchema>& Formats();

/// Every format that files are read from: those of Formats() and the read-only ones.
const QVector<FormatSchema>& ReadableFormats();

/// The record of `id`.
const FormatSchema& FormatOf(FormatId id);

/// The format named `name` that results can be written in; null when there is none. Names differ in letter case.
const FormatSchema* FindFormat(const QString& name);

/// The same among the formats that files are read from.
const FormatSchema* FindReadableFormat(const QString& name);

/// The format whose files have this extension, in any letter case and without dot; null when results are never
/// written with it.
const FormatSchema* FindFormatByExtension(const QString& extension);

/// How many of its first bytes tell the format of a file.
constexpr int formatHeadSize = 64;

/// The name of the format of a file whose first bytes are `head`, such as "JPEG" or "RAW"; empty when the server reads
/// no such files. The first formatHeadSize bytes are enough. The bytes decide; the extension counts only where formats
/// begin alike, as TIFF and many camera RAW files do.
QString FormatOfFile(const QByteArray& head, const QString& extension);

/// The extensions, lower case and without dot, of all files that the server reads.
const QStringList& ReadableExtensions();

} // namespace BatchJob
