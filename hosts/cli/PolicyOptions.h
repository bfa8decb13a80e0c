#pragma once

#include "CommandLine.h"
#include "OptionInfo.h"

#include <array>

/// The five exception policies on the command line.
namespace BatchCli {

enum class PolicyKind { Input, Output, Processing, Naming, Format };

constexpr int policyCount = 5;

/// A value for each policy, in the order of PolicyKind; those of the library's enumerations.
using PolicyValues = std::array<int, policyCount>;

/// What is done without asking and loses nothing: skip.
constexpr int safePolicy = 0;

/// "--on-input-error" and so on.
QString PolicyOption(PolicyKind kind);

QVector<OptionInfo> PolicyOptionInfos();

/// Changes `values` where `arguments` say something else. Throws UsageError.
void ApplyPolicies(const ParsedArguments& arguments, PolicyValues& values);

/// The words of the values that `kind` has, and the one of `value`.
QStringList PolicyWords(PolicyKind kind);
QString PolicyWord(PolicyKind kind, int value);

/// The value of a word. Throws UsageError.
int PolicyValue(PolicyKind kind, const QString& word);

/// The value that stands for asking.
int AskingPolicy(PolicyKind kind);

} // namespace BatchCli
