// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CommandLine.h"

#include <QMap>

/// The options of jobs that are cut into parts: of "split", "run --plan" and "collect".
namespace BatchCli {

QVector<OptionInfo> SplitOptionInfos();
QVector<OptionInfo> PartOptionInfos();
QVector<OptionInfo> CollectOptionInfos();

/// `arguments` with the policies that the command which has split the job has named.
ParsedArguments WithPolicies(const ParsedArguments& arguments, const QMap<QString, QString>& said);

/// Throws RequestError for options of "run" that contradict --plan, or that need it.
void CheckPartOptions(const ParsedArguments& arguments);

} // namespace BatchCli
