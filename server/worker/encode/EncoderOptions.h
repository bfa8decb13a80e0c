// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

#include <vips/vips8>

/// Options of a job, which are complete, as arguments of encoders.
namespace BatchWorker {

int IntegerOption(const QJsonObject& options, const char* name);
bool TruthOption(const QJsonObject& options, const char* name);
QString ChoiceOption(const QJsonObject& options, const char* name);

VipsForeignSubsample Subsampling(const QJsonObject& options);

/// The option "effort", 0 to 9, on the scale of an encoder.
int Effort(const QJsonObject& options, int least, int most);

} // namespace BatchWorker
