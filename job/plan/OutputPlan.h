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

namespace BatchJob {

/// Where every result of a job goes, settled before the first picture is touched: numbers and names follow the
/// document's order, so that neither failures nor parallel work shift them.
///
/// Two names are the same when a file system could take them for the same: letter case and composition of characters
/// make no difference. A plan reads folders and the first bytes of inputs, and writes nothing. Use it on one thread at
/// a time; it may be handed from thread to thread.
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
    /// What has the planned name already.
    enum class Clash {
        None,
        Disk,   ///< a file or folder on the disk
        Source, ///< a source of this job, a file that an effect or the framing reads too; it may be the file's own
        Result  ///< the result of another file, one that stands earlier in the document or got its name earlier
    };

    /// Returns true when the work is to be given up; asked between files.
    using Cancelled = std::function<bool()>;

    OutputPlan() = default;

    /// A plan for the files of a job that was accepted.
    OutputPlan(const QVector<JobFile>& files, const JobSettings& settings);

    int Count() const { return entries.size(); }

    /// When results keep their inputs' formats: reads what these are. A file that cannot be read has none. Needless,
    /// but harmless, for other jobs. False when it was given up.
    bool ReadInputs(const Cancelled& isCancelled = {});

    /// The files of which the plan needs to know more than it can see by itself: all when names or folders hold capture
    /// times; those whose format no result can have, or that is unknown, when results keep their inputs' formats.
    QVector<int> FilesToProbe() const;

    /// What a probe has found out. An invalid time and an empty format change nothing.
    void SetProbe(int index, const QDateTime& captured, const QString& inputFormat);

    /// Settles the result of a file at `path`, where an earlier part of this run has put it. It is then not in its own
    /// way, needs no probe, and keeps its name. To be called before MakeNames().
    void KeepResult(int index, const QString& path);

    bool IsKept(int index) const { return entries[index].isKept; }

    /// Gives every file whose format is known its name and finds out what has it already. False when it was given up.
    bool MakeNames(const Cancelled& isCancelled = {});

    QString Input(int index) const { return entries[index].input; }

    /// The format of the input as FormatOfFile() names it. Empty when it is not known, or needs not be known.
    QString InputFormat(int index) const { return entries[index].inputFormat; }

    /// The format of the result; null when the input's own format was asked for and cannot be written. Then there is no
    /// name either, until ChangeFormat() gives both.
    const FormatSchema* Format(int index) const { return entries[index].format; }

    QString Folder(int index) const;     ///< where the result goes; absolute
    QString OutputName(int index) const; ///< empty as long as there is no format
    QString Output(int index) const;     ///< both together; empty as long as there is no format

    Clash ClashOf(int index) const { return entries[index].clash; }

    /// For Clash::Result: the file whose result has the name.
    int ClashesWith(int index) const { return entries[index].other; }

    /// For Clash::Source: whether the planned name belongs to a source other than the file's own, as well or only. Its
    /// loss would be the loss of another input of the job.
    bool IsAnothersSource(int index);

    /// Gives a file another format, and its name the extension of that. The new name may clash.
    void ChangeFormat(int index, const FormatSchema& format);

    /// Gives a file a free name: with " (2)", " (3)" and so on behind the stem.
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
    };

    struct TargetFolder
    {
        QString path;
        int keyId = -1; ///< the same for folders whose paths are the same but for letter case and composition
        bool isListed = false;
        QHash<QString, QString> onDisk; ///< key of a name, the name
    };

    using Place = QPair<int, QString>; ///< key of a folder, key of a name

    QString SubFolder(int index) const;
    int FolderOf(const QString& subFolder);
    void SetName(int index, const QString& addition);
    void TakeKept(int index);
    void FindClash(int index);
    bool IsTaken(int folder, const QString& key);
    const QHash<QString, QString>& OnDisk(int folder);
    QString OnDiskPath(int index);
    int SourcesWith(const QString& path);
    void NoteSources();

    QString outputFolder;
    ZTBatchOutputSettings::FolderStructure structure = ZTBatchOutputSettings::StructureFlat;
    OutputNaming naming;
    bool keepsFormats = false;
    QVector<QString> jobFolders; ///< JobFile::folder of each file
    QVector<Entry> entries;
    QVector<TargetFolder> folders;
    QHash<QString, int> folderIds;
    QHash<QString, int> folderKeyIds;
    QHash<Place, int> takers;        ///< which file has a name
    QSet<QString> keptPaths;         ///< what stands there came from this run
    QHash<Place, int> nextAdditions; ///< the number behind a stem from which on names may be free
    QStringList sharedSources;
    bool areSourcesNoted = false;
    QHash<FileIdentity, int> sourceCounts; ///< how many inputs of the job, and shared sources, are one file
};

} // namespace BatchJob
