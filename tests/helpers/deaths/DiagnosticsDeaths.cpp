// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"

#include "ZTDiagnostics_p.h"

namespace {

constexpr ZTDiagnostics diagnostics("src\\private\\Example_p");

const DeathCase failedAssert("diagnostics-assert", [] { diagnostics.Assert(false, 42); });

const DeathCase passedAssert("diagnostics-passed-assert", [] { diagnostics.Assert(true, 42); });

const DeathCase pastHandlers("diagnostics-past-handlers", [] {
    try {
        diagnostics.Assert(false, 43);
    } catch (...) {
        diagnostics.Log(QStringLiteral("caught"), 44);
    }
});

const DeathCase loggedAssert("diagnostics-logged-assert", [] { diagnostics.LogFailedAssert(45); });

} // namespace
