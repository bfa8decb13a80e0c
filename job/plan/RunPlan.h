// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OutputPlan.h"
#include "Policies.h"
#include "Trouble.h"

#include "job/values/FixedName.h"

#include <QDateTime>
#include <QHash>
#include <QSize>

#include <vector>

namespace BatchJob {

/// What the probe of a file has found.
struct ProbeResult
{
    QDateTime captured;    ///< invalid when it is not known
    QString inputFormat;   ///< as FormatOfFile() names it; empty when it is not known
    QString nearestFormat; ///< a format that can hold the picture; empty when it is not known
    QSize size = {};       ///< in pixels, upright; empty when it is not known
    PictureTexts texts = {};
};

/// The plan of a run, with what was decided about its files. Where a run makes several results of each file, `file` is
/// one of the results that its OutputPlan counts. Use it on one thread at a time.
class RunPlan
{
public:
    RunPlan() = default;
    explicit RunPlan(const OutputPlan& plan);

    int Count() const { return plan.Count(); }
    const OutputPlan& Names() const { return plan; }

    bool ReadInputs(const OutputPlan::Cancelled& isCancelled = {}) { return plan.ReadInputs(isCancelled); }

    /// An earlier part of the run has written the result of the file to `path`; see OutputPlan::KeepResult().
    void KeepResult(int file, const QString& path) { plan.KeepResult(file, path); }

    /// An earlier part of the run has given the file up under the name `path`, which is empty if it had none yet. The
    /// policies leave it under that name.
    void KeepWithoutResult(int file, const QString& path) { givenUp.insert(file, path); }

    /// The name of the file's result was made elsewhere; see OutputPlan::UseName(). Nothing that happens to the file
    /// gives it another one.
    void UseName(int file, const FixedName& name);

    bool HasFixedName(int file) const { return marks[std::size_t(file)].hasFixedName; }

    /// Results take the places of their own originals, whatever the naming policy is. Without this, no result takes the
    /// place of a source of the job. To be called before MakeNames().
    void ReplaceOriginals() { replacesOriginals = true; }

    /// See OutputPlan::ExpectResultsSince().
    void ExpectResultsSince(qint64 time) { plan.ExpectResultsSince(time); }

    /// See OutputPlan::ReplaceOwnResults().
    void ReplaceOwnResults(const QSet<QString>& paths) { plan.ReplaceOwnResults(paths); }

    /// The probe serves all results of the file that need one.
    void SetProbe(int file, const ProbeResult& result);

    /// A file that cannot be probed cannot be processed either.
    void SetProbeFailure(int file, const Trouble& trouble);

    /// Makes the names and settles what the policies decide without asking. False when it was cancelled.
    bool MakeNames(const Policies& policies, const OutputPlan::Cancelled& isCancelled = {});

    /// Settles formats and names of the files from `first` on where the policies decide without asking. This is done
    /// for all files at once and in their order, so that no name depends on how fast a worker is.
    void Settle(int first, const Policies& policies);

    /// The two steps of Settle() for one file.
    void SettleFormat(int file, const Policies& policies);
    void SettleName(int file, const Policies& policies);

    /// The trouble with a file that is known before the file is touched; its kind is None when there is none.
    Trouble TroubleOf(int file) const;

    /// Overwrites or renames, as `decision` says, a file whose name is taken. An overwriting that would destroy a
    /// source of the job becomes a renaming. Returns what was done.
    Decision ResolveName(int file, Decision decision);

    /// Gives a file another format. False when that has been done before, or there is no such format.
    bool ChangeFormat(int file, const QString& format);

    bool IsRenamed(int file) const { return marks[std::size_t(file)].isRenamed; }
    bool IsOverwriting(int file) const { return marks[std::size_t(file)].isOverwriting; }
    bool HasOtherFormat(int file) const { return marks[std::size_t(file)].hasOtherFormat; }

    /// Whether the result is to take the place of its own original; see ReplaceOriginals().
    bool IsInPlace(int file) const { return marks[std::size_t(file)].isInPlace; }

    /// Two files whose results would have one name, about which nothing is decided.
    struct SharedName
    {
        int first = 0; ///< has the name
        int second = 0;
    };
    QVector<SharedName> SharedNames() const;

    /// Every folder of results, once.
    QStringList Folders() const;

private:
    struct Marks
    {
        bool isRenamed = false;
        bool isOverwriting = false;
        bool hasOtherFormat = false;
        bool isInPlace = false;
        bool hasFixedName = false;
    };

    void Rename(int file);
    Decision SafeDecision(int file, Decision decision);
    QString NearestFormat(int file) const;
    bool IsSettled(int file) const;
    bool WasGivenUpUnderItsName(int file) const;

    OutputPlan plan;
    std::vector<Marks> marks;
    bool replacesOriginals = false;
    QHash<int, QString> nearestFormats; ///< from probes
    QHash<int, Trouble> failedProbes;
    QHash<int, QString> givenUp; ///< by an earlier part of the run, and the names that the files had
};

} // namespace BatchJob
