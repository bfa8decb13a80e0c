// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunDecisions.h"

using namespace BatchJob;

namespace BatchSupervisor {

RunDecisions::RunDecisions(const Policies& policies)
    : policies(policies)
{
}

bool RunDecisions::MustWait(const RunPlan& plan, int file, const Trouble& trouble) const
{
    switch (policies.Of(trouble.kind)) {
    case Decision::Ask:
    case Decision::Nearest:
    case Decision::Rename:
        return true;
    case Decision::Overwrite:
        return trouble.isFromWorker || plan.Names().ClashOf(file) == OutputPlan::Clash::Result;
    case Decision::Skip:
    case Decision::Stop:
        break;
    }
    return false;
}

std::optional<RunDecisions::FileTrouble> RunDecisions::TakeNext()
{
    if (question || waiting.isEmpty() || waiting.firstKey() != FirstNotDone()) {
        return std::nullopt;
    }
    const int file = waiting.firstKey();
    return FileTrouble{file, waiting.take(file)};
}

QVector<RunDecisions::FileTrouble> RunDecisions::TakeAll()
{
    if (question) {
        Wait(question->file, question->trouble);
        question.reset();
    }
    QVector<FileTrouble> all;
    for (auto it = waiting.constBegin(); it != waiting.constEnd(); ++it) {
        all.append({it.key(), *it});
    }
    waiting.clear();
    return all;
}

RunDecisions::Answer RunDecisions::TakeAnswer(ZTBatchMessage::Message message, int value)
{
    if (!question || Policies::Question(question->trouble.kind) != message) {
        return {};
    }
    const PolicyKind policy = question->trouble.kind;
    const std::optional<Decision> decision = Policies::Meaning(policy, value);
    if (!decision || *decision == Decision::Ask) {
        return {Answer::Meaning::Invalid, policy, {}, {}};
    }
    const Answer answer{Answer::Meaning::Decision, policy, *question, *decision};
    question.reset();
    return answer;
}

int RunDecisions::FirstNotDone()
{
    while (firstNotDone < int(done.size()) && done[std::size_t(firstNotDone)]) {
        ++firstNotDone;
    }
    return firstNotDone;
}

} // namespace BatchSupervisor
