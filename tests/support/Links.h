// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Makes a symbolic link at `path` that leads to `target`. Returns false where the system makes none.
bool MakeLink(const QString& target, const QString& path);

/// Gives the file `path` a second name.
bool MakeHardLink(const QString& path, const QString& name);
