// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/BackgroundWork.h"
#include "hosts/desktop/job/EditedJob.h"

#include <QHash>
#include <QTimer>

#include <memory>

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

    /// `job` must outlive this object.
    explicit NamePlan(EditedJob& job, QObject* parent = nullptr);
    ~NamePlan() override;

    /// Empty for a file that was not planned yet.
    Entry Of(const QString& input) const;

    /// How many files have troubles.
    int TroubleCount() const { return plan ? plan->troubles : 0; }

    /// Whether the plan shows the job as it is now.
    bool IsCurrent() const { return isCurrent; }

Q_SIGNALS:
    void Planned();

private:
    struct Plan
    {
        QHash<QString, Entry> entries; ///< by input
        int troubles = 0;
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
