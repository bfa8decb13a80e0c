// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SharedNames.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

const QString countEnd = QStringLiteral(": ");
const QString exampleEnd = QStringLiteral("; ");

} // namespace

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
        examples.append(Phrase::English("\"%1\" and \"%2\" would both be \"%3\"")
                            .arg(names.Input(one.first), names.Input(one.second), names.Output(one.second)));
    }
    if (shared.size() > mostExamples) {
        examples.append(Phrase::English("and so on"));
    }
    const QString count = shared.size() == 1
                              ? Phrase::English("1 result would get the name of another")
                              : Phrase::English("%1 results would get the names of others").arg(shared.size());
    return {ZTBatchMessage::FileNameAlreadyExists, count + countEnd + examples.join(exampleEnd)};
}

QStringList LinesOfSharedNames(const QString& message)
{
    const int end = message.indexOf(countEnd);
    if (end < 0) {
        return {message};
    }
    return QStringList{message.left(end)} + message.mid(end + countEnd.size()).split(exampleEnd);
}

} // namespace BatchJob
