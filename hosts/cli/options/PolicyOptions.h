#pragma once

#include "CommandLine.h"
#include "OptionInfo.h"

#include "job/values/PolicyValues.h"

/// The five exception policies on the command line.
namespace BatchCli {

/// "--on-input-error" and so on.
QString PolicyOption(BatchJob::PolicyKind kind);

QVector<OptionInfo> PolicyOptionInfos();

/// Changes `values` where `arguments` say something else. Throws RequestError.
void ApplyPolicies(const ParsedArguments& arguments, BatchJob::PolicyValues& values);

/// The value of a word. Throws RequestError.
int PolicyValue(BatchJob::PolicyKind kind, const QString& word);

} // namespace BatchCli
