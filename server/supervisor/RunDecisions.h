// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/plan/RunPlan.h"

#include <QMap>
#include <QVector>

#include <optional>
#include <vector>

namespace BatchSupervisor {

/// The troubles of a run that are not decided yet: which is decided next, which question is open, what an answer means.
///
/// Troubles that need an answer or an order are decided one at a time in the document's order, each when every file
/// before it is done. So nothing depends on which worker is faster.
class RunDecisions
{
public:
    struct FileTrouble
    {
        int file = -1;
        BatchJob::Trouble trouble;
    };

    struct Answer
    {
        enum class Meaning { NoQuestion, Invalid, Decision };

        Meaning meaning = Meaning::NoQuestion;
        BatchJob::PolicyKind policy = BatchJob::PolicyKind::None; ///< that of the question, if there is one
        FileTrouble about;                                        ///< for Decision: what the question was about
        BatchJob::Decision decision = BatchJob::Decision::Skip;   ///< for Decision
    };

    explicit RunDecisions(const BatchJob::Policies& policies);

    const BatchJob::Policies& CurrentPolicies() const { return policies; }

    /// Changes a policy for the rest of the run.
    void SetPolicy(BatchJob::PolicyKind kind, BatchJob::Decision decision) { policies.Set(kind, decision); }

    /// The run has files 0 to `count` - 1, none of them done.
    void SetFiles(int count) { done.assign(std::size_t(count), false); }

    void SetDone(int file) { done[std::size_t(file)] = true; }
    bool IsDone(int file) const { return done[std::size_t(file)]; }

    /// Whether a trouble has to wait for its turn: the user is asked, the decision may give the file another name, or
    /// it has to find the result of an earlier file in place.
    bool MustWait(const BatchJob::RunPlan& plan, int file, const BatchJob::Trouble& trouble) const;

    void Wait(int file, const BatchJob::Trouble& trouble) { waiting.insert(file, trouble); }
    bool HasWaiting() const { return !waiting.isEmpty(); }

    /// The trouble that is decided next. Nothing while a question is open, and while a file before it is not done.
    std::optional<FileTrouble> TakeNext();

    /// All that is undecided, the open question included, in the document's order.
    QVector<FileTrouble> TakeAll();

    void Ask(const FileTrouble& about) { question = about; }
    bool IsAsking() const { return question.has_value(); }
    bool IsAskingAbout(BatchJob::PolicyKind kind) const { return question && question->trouble.kind == kind; }
    void DropQuestion() { question.reset(); }

    /// Takes an answer to the question `message`. A decision closes the question.
    Answer TakeAnswer(ZTBatchMessage::Message message, int value);

private:
    int FirstNotDone();

    BatchJob::Policies policies;
    QMap<int, BatchJob::Trouble> waiting;
    std::optional<FileTrouble> question;
    std::vector<bool> done;
    int firstNotDone = 0; ///< a lower bound; it never decreases
};

} // namespace BatchSupervisor
