#include "ResultKind.h"

namespace BatchJob {

QString ResultWord(ResultKind kind)
{
    switch (kind) {
    case ResultKind::Written:
        return QStringLiteral("written");
    case ResultKind::Skipped:
        return QStringLiteral("skipped");
    case ResultKind::Failed:
        return QStringLiteral("failed");
    }
    return {};
}

} // namespace BatchJob
