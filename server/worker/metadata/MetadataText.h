// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <exiv2/exiv2.hpp>

#include <string>

/// Texts in metadata, whatever they are coded in.
namespace BatchWorker {

/// `bytes`, UTF-8 or Latin-1, as one line without blanks around it. The notices of photographer and editor have a zero
/// between them.
QString LineOf(const std::string& bytes);

/// Whether `bytes` are text in UTF-8.
bool IsUtf8(const std::string& bytes);

/// The value of `entry`: of a text in several languages the common one, or the first.
std::string TextIn(const Exiv2::Xmpdatum& entry);

} // namespace BatchWorker
