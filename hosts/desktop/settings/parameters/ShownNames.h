// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Names of the catalogues in words for people, in their language.
namespace BatchDesktop {

/// An effect, a parameter, an option or a choice: "auto-levels" is "Automatic levels". A name that nobody has put into
/// words yet is shown in English, in its own words.
QString ShownName(const QString& name);

/// The same for a parameter, where it is not what a choice of the same name is.
QString ShownParameter(const QString& name);

/// Whether the name has words that are translated.
bool HasShownName(const QString& name);

/// A unit as it stands behind a number: "pixels" is "px".
QString ShownUnit(const QString& unit);

} // namespace BatchDesktop
