// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <array>

/// The five exception policies of a run as plain values and words.
namespace BatchJob {

/// Which policy decides about a trouble. The numbers from 0 on are the places in PolicyValues and in the journal.
enum class PolicyKind : qint32 { None = -1, Input, Output, Processing, Naming, WriteToFormat };

constexpr int policyCount = 5;

/// A value of the library's enumerations for each policy, in the order of PolicyKind.
using PolicyValues = std::array<int, policyCount>;

/// Skips the file: the value that neither asks nor loses anything.
constexpr int safePolicy = 0;

/// The words for all values of the policy `kind`, and the one for `value`.
QStringList PolicyWords(PolicyKind kind);
QString PolicyWord(PolicyKind kind, int value);

/// The value that means to ask.
int AskingPolicy(PolicyKind kind);

} // namespace BatchJob
