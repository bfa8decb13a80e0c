// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliRun.h"
#include "FolderContent.h"

#include <QByteArray>
#include <QMap>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A folder with pictures for jobs that are cut into parts, and velkora-batch at work in it.
class PartStage
{
public:
    static constexpr int partCount = 4;

    /// A new folder with two folders of pictures, whose results have the same names in one output folder.
    void Reset();

    QString Path(const QString& name) const { return root->filePath(name); }
    void Write(const QString& name, const QByteArray& content) const;
    QByteArray Content(const QString& name) const;
    QStringList NamesLike(const QString& wildcard) const;

    CliRun Run(const QString& arguments) const;
    CliRun RunPart(int part, const QString& options = {}) const;
    CliRun Split(const QString& options = {}) const;
    std::unique_ptr<QProcess> Start(int part, const QString& options = {}) const;

    /// Runs all parts at once, each twice. Returns what a run said that failed; empty if none did.
    QByteArray RunAllTwice() const;

    /// What one run of the job makes, in the folder "one".
    Files OneRun() const;

    /// Changes the header of the plan, as another program would have written it.
    void EditHeader(const QByteArray& from, const QByteArray& to) const;

    std::unique_ptr<QTemporaryDir> root;
    QProcessEnvironment environment;
    QString job; ///< inputs and options

private:
    QStringList Arguments(const QString& text) const;
};
