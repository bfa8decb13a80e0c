// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Writes to `folder` pictures of every format that is read, each made of the JPEG file `photo`.
void WriteInputs(const QString& photo, const QString& folder);
