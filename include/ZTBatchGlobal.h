// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#ifdef BATCHCORE_LIBRARY
#define BATCHCORE_EXPORT Q_DECL_EXPORT
#else
#define BATCHCORE_EXPORT Q_DECL_IMPORT
#endif
