#pragma once

#include "Policies.h"

#include "job/plan/OutputPlan.h"

#include <QHash>

#include <vector>

namespace BatchSupervisor {

/// Something that keeps a file from being written as it was planned.
struct Trouble
{
    BatchProtocol::Case kind = BatchProtocol::Case::None;
    int code = ZTBatchMessage::NoError; ///< a ZTBatchMessage::Error
    QString reason;                     ///< for the log
    QString nearestFormat;              ///< for WriteToFormat: what could hold the picture; may be empty
    bool isFromWorker = false;          ///< found out at work, not by the plan
};

/// The plan of a run with what was decided about its files. Use it on one thread at a time.
class RunPlan
{
public:
    RunPlan() = default;
    explicit RunPlan(const BatchJob::OutputPlan& plan);

    int Count() const { return plan.Count(); }
    const BatchJob::OutputPlan& Names() const { return plan; }

    bool ReadInputs(const BatchJob::OutputPlan::Cancelled& isCancelled) { return plan.ReadInputs(isCancelled); }

    /// See OutputPlan::Keep().
    void Keep(int file, const QString& path) { plan.Keep(file, path); }

    /// The file has come to its end without a result, under this name or, when it is empty, under none: no policy of
    /// now gives it another one.
    void Leave(int file, const QString& path) { left.insert(file, path); }

    /// What the probe of a file has found.
    void TakeProbe(int file, const BatchProtocol::Report& report);

    /// A file that cannot be probed will not become a picture either.
    void TakeProbe(int file, const Trouble& trouble) { failedProbes.insert(file, trouble); }

    /// Makes the names and settles what the policies decide without asking.
    bool MakeNames(const Policies& policies, const BatchJob::OutputPlan::Cancelled& isCancelled);

    /// Settles the names of the files from `first` on where the policies for naming and format decide without asking.
    /// Always done for all of them at a time, in their order: so no name depends on how fast a worker is.
    void Settle(int first, const Policies& policies);

    /// The same for one file.
    void SettleFile(int file, const Policies& policies);

    /// What stands in the way of a file before it is touched; Case::None when nothing does.
    Trouble TroubleOf(int file) const;

    /// Whether overwriting would take another input of the job away.
    bool IsAnothersSource(int file) { return plan.IsAnothersSource(file); }

    void Rename(int file);
    void Overwrite(int file) { marks[std::size_t(file)].isOverwriting = true; }

    /// Takes the format for a file. False when that has been done before, or there is no such format.
    bool ChangeFormat(int file, const QString& format);

    bool IsRenamed(int file) const { return marks[std::size_t(file)].isRenamed; }
    bool IsOverwriting(int file) const { return marks[std::size_t(file)].isOverwriting; }
    bool HasOtherFormat(int file) const { return marks[std::size_t(file)].hasOtherFormat; }

    /// Every folder that results go to, once each.
    QStringList Folders() const;

private:
    struct Marks
    {
        bool isRenamed = false;
        bool isOverwriting = false;
        bool hasOtherFormat = false;
    };

    QString NearestFormat(int file) const;
    bool HasItsLastName(int file) const;

    BatchJob::OutputPlan plan;
    std::vector<Marks> marks;
    QHash<int, QString> nearestFormats; ///< from probes
    QHash<int, Trouble> failedProbes;
    QHash<int, QString> left; ///< files that an earlier part of the run has given up
};

} // namespace BatchSupervisor
