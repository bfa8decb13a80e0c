// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#ifdef VELKORA_UTILS_LIBRARY
#define VELKORA_UTILS_EXPORT Q_DECL_EXPORT
#else
#define VELKORA_UTILS_EXPORT Q_DECL_IMPORT
#endif
