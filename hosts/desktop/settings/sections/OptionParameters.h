// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BoundParameter.h"

#include <QStringList>

namespace BatchDesktop {

/// The options of metadata; all other options are those of the format.
const QStringList& MetadataOptions();

/// The options that the format of `settings` takes: those of metadata, or the others.
QVector<BoundParameter> OptionParameters(const Settings& settings, bool ofMetadata);

/// What the job's checks say of these options.
QString OptionProblem(const Settings& settings, bool ofMetadata);

/// Changes the format, and drops the options that the new one does not take.
void ChangeFormat(Settings& settings, const QString& format);

} // namespace BatchDesktop
