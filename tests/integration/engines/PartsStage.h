// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliRun.h"

#include <QList>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// 480 pictures, what one undisturbed run makes of them, and the same job cut into eight parts.
class PartsStage
{
public:
    static constexpr int pictureCount = 480;
    static constexpr int partCount = 8;

    /// An empty folder, and the environment.
    PartsStage();

    /// Makes the pictures and runs the job undisturbed. Returns what went wrong; empty if nothing did.
    QString Prepare();

    QString Path(const QString& name) const { return root.filePath(name); }
    QString Plan() const { return Path(QStringLiteral("web.plan")); }

    /// That of all processes: velkora-batch is in the PATH, and no variable says which part to make.
    const QProcessEnvironment& Environment() const { return environment; }

    /// Is in the environment of all processes that do something for this stage, and of no others.
    QString Mark() const;

    /// Cuts the job into parts, anew. Whatever was made of another plan is gone.
    CliRun Split();

    /// How many results of a part, from 1, are there.
    int ResultsOf(int part) const;

    /// How many results a part has when it is done.
    int SizeOf(int part) const { return outputs.at(part - 1).size(); }

    /// How many times a part has been begun.
    int BeginningsOf(int part) const;

    /// Waits until some of the results of `part` are there, and then stops the workers whose environment has
    /// `variable`, which is so for that part only. False if the part was done before, or does not begin.
    bool HoldOnTheWay(int part, const QString& variable) const;
    void Continue(const QString& variable) const;

    /// What differs from the undisturbed run, or is left of the parts, or what collect says otherwise; empty if all is
    /// as it has to be. Collects the parts.
    QString DifferenceFromOneRun() const;

private:
    CliRun Run(const QStringList& arguments) const;
    void ReadPlan();

    QTemporaryDir root;
    QProcessEnvironment environment;
    QStringList job;
    QMap<QString, QByteArray> undisturbed;
    QVector<QStringList> outputs; ///< The results of each part.
};
