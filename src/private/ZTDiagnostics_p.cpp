// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTDiagnostics_p.h"

#include <QMessageLogger>

void ZTDiagnostics::Log(const QString& text, int line) const
{
    QMessageLogger().debug("[%s:%d] %s", source, line, qUtf8Printable(text));
}

void ZTDiagnostics::LogFailedAssert(int line) const
{
    QMessageLogger().debug("[%s:%d] Assert failed", source, line);
}

void ZTDiagnostics::Fail(int line) const
{
    LogFailedAssert(line);
    // Without an active exception this calls std::terminate(), and no exception handler of a caller runs.
    throw;
}
