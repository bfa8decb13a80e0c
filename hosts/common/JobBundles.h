// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/settings/JobBundle.h"

#include <QString>
#include <QVector>

class ZTBatchDocument;

namespace BatchHost {

/// A job and the name that it is known by: that of its preset, or of its file.
struct NamedJob
{
    QString name;
    ZTBatchDocument* job = nullptr;
};

/// The name of the saved job in the file `path`: that of the file, without ".xml".
QString NameOfJobFile(const QString& path);

/// Makes `job` the job in `text`, or the first one of a bundle, which has the inputs. Returns how many jobs there are;
/// 0 if the text is neither.
int ReadFirstJob(ZTBatchDocument& job, const QString& text);

/// The bundle of `jobs`, at least two. Each gets a folder of its own in `folder` for its results, by its name; the
/// inputs are those of the first one, and others lose theirs. The document of the first part is left empty: with many
/// inputs it is long, and not everybody needs it. Throws RequestError when two jobs would have one folder,
/// or the settings of one cannot be used.
BatchJob::JobBundle BundleOf(const QVector<NamedJob>& jobs, const QString& folder);

} // namespace BatchHost
