// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// What is wrong with a file that a library cannot read.
enum class DamageKind {
    Damaged,
    CutOff,      ///< it ends too early
    NotSupported ///< the library does not know what the file uses
};

/// The kind of damage that `libraryText`, the message of a library, is about.
DamageKind DamageKindOf(const QString& libraryText);

/// What is wrong, in a photographer's words. `percent` of the picture, from its top, could be read.
QString DamageText(DamageKind kind, int percent = 0);

/// The same for a file whose header cannot be read.
QString HeaderDamageText(DamageKind kind);

} // namespace BatchWorker
