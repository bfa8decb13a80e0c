#include "SharedNames.h"

#include <QStringList>

namespace BatchJob {

Refusal RefusalOfSharedNames(const RunPlan& plan)
{
    constexpr int mostExamples = 3;
    const QVector<RunPlan::SharedName> shared = plan.SharedNames();
    if (shared.isEmpty()) {
        return {};
    }
    const OutputPlan& names = plan.Names();
    QStringList examples;
    for (const RunPlan::SharedName& one : shared.mid(0, mostExamples)) {
        examples.append(QStringLiteral("\"%1\" and \"%2\" would both be \"%3\"")
                            .arg(names.Input(one.first), names.Input(one.second), names.Output(one.second)));
    }
    if (shared.size() > mostExamples) {
        examples.append(QStringLiteral("and so on"));
    }
    const QString count = shared.size() == 1
                              ? QStringLiteral("1 result would get the name of another")
                              : QStringLiteral("%1 results would get the names of others").arg(shared.size());
    return {ZTBatchMessage::FileNameAlreadyExists,
            QStringLiteral("%1: %2").arg(count, examples.join(QStringLiteral("; ")))};
}

} // namespace BatchJob
