// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/BackgroundWork.h"
#include "hosts/desktop/job/EditedJob.h"

#include <QHash>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <optional>

namespace BatchJob {
struct JobFile;
struct JobSettings;
} // namespace BatchJob

namespace BatchDesktop {

/// What a run of the edited job would call the results. Planned anew, on another thread, when the inputs or settings
/// have not changed for a moment; until then the last plan counts.
class NamePlan : public QObject
{
    Q_OBJECT

public:
    struct Entry
    {
        QString name;             ///< below the output folder; empty as long as it is not known
        QString trouble;          ///< why it cannot be written so, in English; empty if it can
        bool isNameTaken = false; ///< what the trouble is
    };

    struct Counts
    {
        int newNames = 0; ///< of results, renamed ones too
        int takenNames = 0;
        int replaced = 0;   ///< files that exist
        int unwritable = 0; ///< for other reasons

        int Troubles() const { return takenNames + unwritable; }
    };

    /// `job` must outlive this object.
    explicit NamePlan(EditedJob& job, QObject* parent = nullptr);
    ~NamePlan() override;

    /// Empty for a file that was not planned yet.
    Entry Of(const QString& input) const;

    /// Of the last plan; nothing as long as the settings cannot be used.
    std::optional<Counts> Numbers() const { return plan ? plan->counts : std::nullopt; }

    /// The inputs whose results a run would write without a question.
    QStringList Writable() const { return plan ? plan->writable : QStringList(); }

    /// How many files have troubles.
    int TroubleCount() const { return plan && plan->counts ? plan->counts->Troubles() : 0; }

    /// Plans anew, for files that have changed on the disk.
    void Renew() { Outdate(); }

    /// Whether the plan shows the job as it is now.
    bool IsCurrent() const { return isCurrent; }

Q_SIGNALS:
    void Planned();

private:
    struct Plan
    {
        QHash<QString, Entry> entries; ///< by input
        QStringList writable;
        std::optional<Counts> counts;
    };

    static Plan Make(const QVector<BatchJob::JobFile>& files, const BatchJob::JobSettings& settings,
                     const BatchJob::PolicyValues& policies, const BackgroundWork::Cancelled& isCancelled);

    void Outdate();
    void Begin();

    EditedJob& job;
    QTimer delay;
    std::shared_ptr<Plan> plan;
    std::shared_ptr<Plan> next; ///< filled by the thread
    bool isCurrent = false;
    BackgroundWork work; ///< destroyed first
};

} // namespace BatchDesktop
