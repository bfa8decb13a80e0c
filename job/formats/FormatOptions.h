// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormatSchema.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

/// The options of formats, as jobs give them. Everything here is safe on any thread.
namespace BatchJob {

/// The options that a job with format `format` may give. For "Original" they are those of all formats, without
/// defaults, because each format has its own. Nothing for an unknown format.
QVector<ParameterSchema> OptionsTakenBy(const QString& format);

/// Checks the options of a job with format `format`. The format may be "Original": then every option that some format
/// takes is accepted, no default is filled in, and OptionsFor() picks those of each picture's format.
CheckedParameters CheckFormatOptions(const QString& format, const QByteArray& options);

/// The options among `accepted`, the checked options of a job, that apply to pictures written in `format`, complete
/// with the defaults of that format. A bit depth that the format does not have becomes the next lower one that it has.
QJsonObject OptionsFor(const FormatSchema& format, const QJsonObject& accepted);

/// The bits a channel, ascending, that files of `format` can have with `options`, which are checked.
QVector<int> BitDepthsFor(const FormatSchema& format, const QJsonObject& options);

/// The quality that pictures are written with by `complete`, options that are complete; 0 if their format has none, or
/// they are written without loss.
int QualityUsed(const QJsonObject& complete);

} // namespace BatchJob
