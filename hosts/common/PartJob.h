// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PartJournals.h"
#include "RunInputs.h"

#include "job/parts/PartPlan.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class ZTBatchDocument;

namespace BatchHost {

class JournaledJob;

/// Folders that this machine knows under other names than the one that has made the plan.
class FolderNames
{
public:
    FolderNames() = default;

    /// Texts such as "FROM=TO". Throws RequestError for others.
    explicit FolderNames(const QStringList& texts);

    /// The name of `path` on this machine.
    QString Here(const QString& path) const;

private:
    QVector<QPair<QString, QString>> names;
};

/// The plan in the file `path`. Throws RequestError if it cannot be used.
BatchJob::PartPlan PlanIn(const QString& path);

/// Gives the files of the part `number`, from 1, to `visit` one after the other. Throws RequestError if they cannot be
/// read, perhaps after the last of them: then nothing counts that was given.
void VisitPart(const QString& path, const BatchJob::PartPlan& plan, int number,
               const std::function<void(const BatchJob::PlannedFile&)>& visit);

/// The files of the part `number`, from 1. Throws RequestError if they cannot be read.
QVector<BatchJob::PlannedFile> FilesOfPart(const QString& path, const BatchJob::PartPlan& plan, int number);

/// What is different here from what has made `plan`, for users; empty if nothing is.
QString DifferenceOfMakers(const BatchJob::PartPlan& plan, const BatchJob::Versions& here);

/// This program, of `version`, and the libraries of its worker. Throws RequestError if the worker does not name them.
BatchJob::Versions MakersHere(const QString& version);

/// The variants that a run of `plan` makes of each picture.
QVector<RunVariant> VariantsOf(const BatchJob::PartPlan& plan, const FolderNames& names);

/// A part of a job that was split, on this machine.
class PartJob
{
public:
    /// The part `number`, from 1, of the plan in the file `path`. Throws RequestError.
    PartJob(const QString& path, const BatchJob::PartPlan& plan, int number, const FolderNames& names);

    /// Throws RequestError if a file of the part is missing, or is not as it was when the job was split. Files whose
    /// results are done do not count.
    void CheckFiles() const;

    /// Makes `job` the part, or the first of its jobs, and begins a journal that knows all names and what other runs
    /// of the part have done. `makers` is what makes the pictures here. Throws RequestError.
    JournaledJob Begin(ZTBatchDocument& job, const BatchJob::Versions& makers) const;

private:
    QString TextFor(ZTBatchDocument& job) const;
    QVector<BatchJob::FixedName> NamesOfResults() const;
    QVector<QPair<int, BatchJob::JournalState::Result>> SettledResults() const;
    bool IsWritten(int result) const;
    QString Output(int result) const;
    const BatchJob::PlannedResult& Planned(int result) const;
    int ResultCount() const { return files.size() * plan.jobs.size(); }

    const QString path;
    const BatchJob::PartPlan plan;
    const int number;
    const FolderNames names;
    const QString folder;
    QVector<BatchJob::PlannedFile> files;
    const PartJournals journals;
    const PartJournals::Known known;
};

} // namespace BatchHost
