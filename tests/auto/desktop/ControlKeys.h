// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRandomGenerator>
#include <QString>

class QWidget;

/// Keys that a user presses in a control of any kind.
namespace ControlKeys {

/// Whether `control` is one that PressSome() knows.
bool IsControl(const QWidget& control);

/// Presses keys that change what `control` shows.
void PressSome(QWidget& control, QRandomGenerator& random);

} // namespace ControlKeys
