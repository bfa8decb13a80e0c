// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/formats/FormatCatalog.h"
#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"
#include "job/settings/OutputNaming.h"
#include "job/values/FileIdentity.h"

#include <QDateTime>
#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

namespace BatchJob {

/// Where every result of a job goes. The names are made before the first picture is touched. Numbers and names follow
/// the document's order, so that neither failures nor parallel work shift them.
///
/// Several jobs may share their files: then each file has one result of each job, and results are counted picture by
/// picture, all of the first file before those of the second. Each gets the number and the name that its job alone
/// would give it.
///
/// Two names are equal if any file system could treat them as equal: letter case and the composition of characters do
/// not count. A plan reads folders and the first bytes of inputs, and writes nothing. It may move between threads; use
/// it on one at a time.
///
///     OutputPlan plan(FilesOfJob(input), settings);
///     plan.ReadInputs();
///     for (const int index : plan.FilesToProbe()) {
///         plan.SetProbe(index, ...);
///     }
///     plan.MakeNames();
class OutputPlan
{
public:
    /// What already has the planned name.
    enum class Clash {
        None,
        Disk,   ///< a file or folder on the disk
        Source, ///< a file that the job reads: an input, even the file itself, or a file of an effect or the framing
        Result  ///< the result of another file that got its name earlier
    };

    /// Returns true to cancel the work. Called between files, by ReadInputs() on several threads.
    using Cancelled = std::function<bool()>;

    OutputPlan() = default;

    /// A plan for the files of a job that was accepted.
    OutputPlan(const QVector<JobFile>& files, const JobSettings& settings);

    /// A plan for the same files of several jobs that were accepted, whose output folders are in `folder` or below.
    OutputPlan(const QVector<JobFile>& files, const QVector<JobSettings>& jobs, const QString& folder);

    /// How many results there are. Results are counted from 0.
    int Count() const { return entries.size(); }

    int JobCount() const { return jobs.size(); }
    int JobOf(int index) const { return index % jobs.size(); }  ///< the place of a result's job
    int FileOf(int index) const { return index / jobs.size(); } ///< the place of a result's file

    /// Reads the formats of the inputs, if results keep them; otherwise does nothing. A file that cannot be read has no
    /// format. False when it was cancelled.
    bool ReadInputs(const Cancelled& isCancelled = {});

    /// The files that a worker has to examine before MakeNames(): all files, if names or folders are made of what
    /// pictures say; the files of unknown format, if results keep their inputs' formats. None that KeepResult() has
    /// settled. Each file once, by the first of its results that needs it.
    QVector<int> FilesToProbe() const;

    /// The result `index` and the others of its file that need its probe.
    QVector<int> ResultsToProbe(int index) const;

    /// Enters what a probe has found. An invalid time and an empty format change nothing.
    void SetProbe(int index, const QDateTime& captured, const QString& inputFormat);

    /// Enters what a probe has found beyond that. It is kept as far as names need it.
    void SetPicture(int index, const QSize& size, const PictureTexts& texts);

    /// An earlier part of this run has written the result of the file to `path`: it keeps this name, does not clash
    /// with itself and needs no probe. To be called before MakeNames().
    void KeepResult(int index, const QString& path);

    /// Files in the folders of results that have changed since `time`, a ChangeTimeOf(), are not in the way: an earlier
    /// part of this run has written them, which nothing else tells. To be called before MakeNames().
    void ExpectResultsSince(qint64 time) { newResultsSince = time; }

    /// Files that earlier runs have written and nobody has changed since: they are not in the way, unless this job
    /// reads them. To be called before MakeNames().
    void ReplaceOwnResults(const QSet<QString>& paths) { ownResults = paths; }

    /// The name of the result was made elsewhere, for a greater job of which this one is a part: it is the file `path`,
    /// in the format `format`, and its file has the number `number`. Nothing changes it, nothing is in its way, and it
    /// needs no probe. To be called before ReadInputs(). Nothing happens if there is no such format.
    void UseName(int index, const QString& path, const QString& format, qint64 number);

    bool IsKept(int index) const { return entries[index].isKept; }

    /// Names the results of all files whose format is known, and finds their clashes. False when it was cancelled.
    bool MakeNames(const Cancelled& isCancelled = {});

    QString Input(int index) const { return entries[index].input; }

    /// The number of the file in texts of its result; see OutputNaming::NumberOf().
    qint64 NumberOf(int index) const;

    /// The format of the input as FormatOfFile() names it. Empty when it is unknown or not needed.
    QString InputFormat(int index) const { return entries[index].inputFormat; }

    /// The format of the result. Null if it is to be the input's format and that cannot be written: the file then has
    /// neither format nor name until ChangeFormat().
    const FormatSchema* Format(int index) const { return entries[index].format; }

    QString OutputFolder() const { return outputFolder; } ///< results go there and below it
    QString Folder(int index) const;                      ///< where the result goes; absolute
    QString OutputName(int index) const;                  ///< empty as long as there is no format
    QString Output(int index) const;                      ///< folder and name; empty as long as there is no format

    Clash ClashOf(int index) const { return entries[index].clash; }

    /// For Clash::Result: the file whose result has the name.
    int ClashesWith(int index) const { return entries[index].other; }

    /// Whether the planned name is that of a source of the job: it was when the names were made, or it is now.
    bool IsSource(int index);

    /// The same of a source other than the file itself, even if it is that of the file too. Overwriting would then
    /// destroy another source of the job, or the result that has taken its place.
    bool IsAnothersSource(int index);

    /// The only input that had the planned name when the names were made, if no effect and no framing reads it; else
    /// -1.
    int OwnerOfName(int index) const { return sourcePlaces.value(PlaceOf(index), -1); }

    /// Gives a file another format, and its name the extension of that format. The new name may clash.
    void ChangeFormat(int index, const FormatSchema& format);

    /// Gives a file a free name by appending " (2)", " (3)" and so on to its stem.
    void Rename(int index);

private:
    struct Entry
    {
        QString input;
        QString stem;
        QString name;
        QString inputFormat;
        const FormatSchema* format = nullptr;
        QDateTime captured;
        int folder = -1;
        int other = -1;
        Clash clash = Clash::None;
        bool isKept = false; ///< `name` holds the path until MakeNames()
        bool hasFixedFormat = false;
    };

    /// What the names of a job's results depend on.
    struct Job
    {
        QString subFolder; ///< of the output folder; empty for that itself
        ZTBatchOutputSettings::FolderStructure structure = ZTBatchOutputSettings::StructureFlat;
        OutputNaming naming;
        bool keepsFormats = false;
    };

    struct TargetFolder
    {
        QString path;
        int keyId = -1; ///< equal for folders whose paths differ only in letter case and composition
        bool isListed = false;
        QHash<QString, QString> onDisk; ///< key of a name, the name
    };

    using Place = QPair<int, QString>; ///< key of a folder, key of a name

    /// A file that the job reads.
    struct Source
    {
        int count = 0;  ///< of inputs and shared sources that are this file
        int input = -1; ///< the last of the inputs
    };

    void ReadInput(Entry* first) const;
    bool NeedsProbe(int index) const;
    QString SubFolder(int index) const;
    QString StructureFolder(int index) const;
    int FolderOf(const QString& subFolder);
    void SetName(int index, const QString& addition);
    void PlaceKeptResult(int index);
    void FindClash(int index);
    bool IsNewResult(const QString& path) const;
    bool IsReplaceable(const QString& path);
    bool IsTaken(int folder, const QString& key);
    const QHash<QString, QString>& OnDisk(int folder);
    QString OnDiskPath(int index);
    Source SourceAt(const QString& path);
    void NoteSources();
    Place PlaceOf(int index) const;

    QString outputFolder;
    QVector<Job> jobs;
    QVector<QString> jobFolders;                ///< JobFile::folder of each file, for StructureAsInput
    QVector<Entry> entries;                     ///< results
    QHash<int, qint64> fixedNumbers;            ///< with the names that were made elsewhere
    QHash<int, OutputNaming::Picture> pictures; ///< if names need them; without the time, which entries have
    QVector<TargetFolder> folders;
    QHash<QString, int> folderIds;
    QHash<QString, int> folderKeyIds;
    QHash<Place, int> takers;       ///< the file that has a name
    QHash<Place, int> sourcePlaces; ///< names that sources had when the names were made, with OwnerOfName()
    QSet<QString> keptPaths;        ///< files that an earlier part of this run has written
    QSet<QString> ownResults;       ///< of earlier runs
    std::optional<qint64> newResultsSince;
    QHash<Place, int> nextAdditions; ///< the first number that may be free, by the name without one as it is spelled
    QStringList sharedSources;
    bool areSourcesNoted = false;
    QHash<FileIdentity, Source> sources;
};

} // namespace BatchJob
