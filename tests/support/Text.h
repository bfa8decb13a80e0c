// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Tests have many short texts of ASCII characters.
inline QString Text(const char* text)
{
    return QString::fromLatin1(text);
}
