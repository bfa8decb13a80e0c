// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// Before a function with plain loops over many samples: it is compiled once for every processor and once for those
/// with wide vector registers, and the loader takes the one that fits. Both round alike after each operation, without
/// fused multiplication and addition, so a result does not depend on the processor. What the function calls has to be
/// inline, and templates are clones like others.
#if defined(__x86_64__) && defined(__ELF__) && defined(__GNUC__) && !defined(__clang__)
#define BATCH_VECTOR_CODE __attribute__((target_clones("avx2", "default")))
#else
#define BATCH_VECTOR_CODE
#endif
