// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <optional>

namespace BatchWorker {

/// What the numbers of a picture mean.
enum class ColourKind { Grey, Rgb, Cmyk };

/// The kind of picture that `profile`, an ICC profile, describes; nothing when it is no profile, or not one of
/// pictures.
std::optional<ColourKind> KindOfProfile(const QByteArray& profile);

/// Whether colours can be converted from `profile`, which has a kind.
bool IsReadable(const QByteArray& profile);

/// Whether `profile` shows the colours that sRGB shows. Its name does not matter: that of linear light in the primaries
/// of sRGB says "sRGB", too.
bool IsSrgb(const QByteArray& profile);

/// Whether `profile`, of RGB, shows equal values of red, green and blue as a grey, or as what a camera makes of one.
bool HasNeutralGreys(const QByteArray& profile);

/// The profiles for pictures that carry none.
QByteArray BuiltInSrgb();
QByteArray BuiltInCmyk();

} // namespace BatchWorker
