// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#ifdef VELKORA_STYLECORE_LIBRARY
#define VELKORA_STYLECORE_EXPORT Q_DECL_EXPORT
#else
#define VELKORA_STYLECORE_EXPORT Q_DECL_IMPORT
#endif
