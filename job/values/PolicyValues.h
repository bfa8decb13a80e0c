#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// The five exception policies of a run as plain values and words.
namespace BatchJob {

enum class PolicyKind { Input, Output, Processing, Naming, WriteToFormat };

constexpr int policyCount = 5;

/// A value for each policy, in the order of PolicyKind; those of the library's enumerations.
using PolicyValues = std::array<int, policyCount>;

/// What is done without asking and loses nothing: skip.
constexpr int safePolicy = 0;

/// The words of the values that `kind` has, and the one of `value`.
QStringList PolicyWords(PolicyKind kind);
QString PolicyWord(PolicyKind kind, int value);

/// The value that stands for asking.
int AskingPolicy(PolicyKind kind);

} // namespace BatchJob
