// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/ParameterSchema.h"
#include "job/values/Phrase.h"

#include <QVector>

/// The options that several formats have, each described once.
namespace BatchJob::OptionSchemas {

ParameterSchema Quality(int standard);
ParameterSchema Effort(int standard, const char* meaning = Phrase::Marked("higher is slower and smaller"));

/// `meaning` says what is kept: no two formats mean quite the same.
ParameterSchema Lossless(const char* meaning);

ParameterSchema Progressive();
ParameterSchema ChromaSubsampling();
ParameterSchema BitDepth(const QVector<int>& depths);

/// `own`, followed by those of a limit in bytes, for formats with a quality, see ByteLimit.
QVector<ParameterSchema> WithByteLimit(QVector<ParameterSchema> own);

/// `own`, followed by the options that every format takes.
QVector<ParameterSchema> WithCommonOptions(QVector<ParameterSchema> own);

} // namespace BatchJob::OptionSchemas
