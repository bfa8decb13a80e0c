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
    // With no exception in flight this calls std::terminate, past every handler on the way up.
    throw;
}
