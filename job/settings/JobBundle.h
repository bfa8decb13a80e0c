// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

namespace BatchJob {

/// Several jobs that one run does with the same inputs: each input gets one result of each job. As a text, a bundle
/// goes where the text of a job goes.
struct JobBundle
{
    struct Part
    {
        QString name;         ///< tells the job from the others, for users; none is empty or comes twice
        QString document;     ///< the text of the job; that of the first part has the inputs, others have none
        QString outputFolder; ///< of the job
    };

    /// How many jobs a bundle may have.
    static constexpr int mostParts = 100;

    QString folder; ///< absolute; the output folder of each job is below it, or it
    QVector<Part> parts;

    bool IsEmpty() const { return parts.isEmpty(); }

    QString Text() const;

    /// Whether `text` is meant to be a bundle, by its root.
    static bool IsIn(const QString& text);

    /// The bundle in `text`. It is empty if `text` is none; `problem` says why then, for users. The jobs are not
    /// checked, and their output folders are those that the bundle says.
    static JobBundle Read(const QString& text, QString& problem);
};

/// Whether `folder` is `root` or below it, by their names. Both are absolute.
bool IsWithin(const QString& folder, const QString& root);

} // namespace BatchJob
