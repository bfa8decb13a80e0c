// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OutputPlan.h"

#include "job/formats/InputFormat.h"
#include "job/values/Shares.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <vector>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

QString WithoutExtension(const QString& name)
{
    return name.left(name.lastIndexOf(QLatin1Char('.')));
}

QString Numbered(int number)
{
    return QStringLiteral(" (%1)").arg(number);
}

} // namespace

OutputPlan::OutputPlan(const QVector<JobFile>& files, const JobSettings& settings)
    : OutputPlan(files, QVector<JobSettings>{settings}, settings.outputFolder)
{
}

OutputPlan::OutputPlan(const QVector<JobFile>& files, const QVector<JobSettings>& jobs, const QString& folder)
    : outputFolder(folder)
{
    QVector<const FormatSchema*> formats;
    bool needsFolders = false;
    for (const JobSettings& settings : jobs) {
        const QString subFolder = QDir(folder).relativeFilePath(settings.outputFolder);
        const bool keepsFormats = settings.format == Settings::GetOriginalFormat();
        this->jobs.append({subFolder == QLatin1String(".") ? QString() : subFolder, settings.folderStructure,
                           settings.naming, keepsFormats});
        formats.append(keepsFormats ? nullptr : FindFormat(settings.format));
        needsFolders = needsFolders || settings.folderStructure == Settings::StructureAsInput;
        sharedSources += FilesOfSettings(settings);
    }
    entries.reserve(files.size() * jobs.size());
    jobFolders.reserve(needsFolders ? files.size() : 0);
    for (const JobFile& file : files) {
        for (const FormatSchema* format : qAsConst(formats)) {
            Entry entry;
            entry.input = file.path;
            entry.format = format;
            entries.append(entry);
        }
        if (needsFolders) {
            jobFolders.append(file.folder);
        }
    }
}

bool OutputPlan::ReadInputs(const Cancelled& isCancelled)
{
    if (std::none_of(jobs.begin(), jobs.end(), [](const Job& job) { return job.keepsFormats; })) {
        return true;
    }
    std::atomic<bool> isDone{true};
    Entry* const results = entries.data(); // Threads write to them.
    InShares(entries.size() / jobs.size(), [&](int begin, int end) {
        for (int file = begin; file < end && isDone; ++file) {
            if (isCancelled && isCancelled()) {
                isDone = false;
            } else {
                ReadInput(results + qptrdiff(file) * jobs.size());
            }
        }
    });
    return isDone;
}

/// The format of the input of the results from `first` on, one for each job.
void OutputPlan::ReadInput(Entry* first) const
{
    const QString format = FormatOfFileAt(first->input);
    for (int i = 0; i < jobs.size(); ++i) {
        if (jobs.at(i).keepsFormats && !first[i].hasFixedFormat) {
            first[i].inputFormat = format;
            first[i].format = FindFormat(format);
        }
    }
}

QVector<int> OutputPlan::FilesToProbe() const
{
    QVector<int> files;
    for (int i = 0; i < entries.size(); ++i) {
        if (NeedsProbe(i) && (files.isEmpty() || FileOf(files.last()) != FileOf(i))) {
            files.append(i);
        }
    }
    return files;
}

QVector<int> OutputPlan::ResultsToProbe(int index) const
{
    const int first = FileOf(index) * jobs.size();
    QVector<int> results;
    for (int i = first; i < first + jobs.size(); ++i) {
        if (i == index || NeedsProbe(i)) {
            results.append(i);
        }
    }
    return results;
}

bool OutputPlan::NeedsProbe(int index) const
{
    const Job& job = jobs[JobOf(index)];
    const Entry& entry = entries[index];
    const bool needsPicture = job.naming.NeedsPicture() || job.structure == Settings::StructureByCaptureDate;
    return !entry.isKept && (needsPicture || (job.keepsFormats && entry.inputFormat.isEmpty()));
}

void OutputPlan::SetProbe(int index, const QDateTime& captured, const QString& inputFormat)
{
    Entry& entry = entries[index];
    entry.captured = captured;
    if (jobs[JobOf(index)].keepsFormats && !inputFormat.isEmpty()) {
        entry.inputFormat = inputFormat;
        entry.format = FindFormat(inputFormat);
    }
}

void OutputPlan::SetPicture(int index, const QSize& size, const PictureTexts& texts)
{
    if (jobs[JobOf(index)].naming.NeedsPicture()) {
        pictures.insert(index, {{}, size, texts});
    }
}

void OutputPlan::KeepResult(int index, const QString& path)
{
    entries[index].isKept = true;
    entries[index].name = path;
    keptPaths.insert(path);
}

void OutputPlan::UseName(int index, const QString& path, const QString& format, qint64 number)
{
    const FormatSchema* const schema = FindFormat(format);
    if (schema) {
        entries[index].format = schema;
        entries[index].hasFixedFormat = true;
        fixedNumbers.insert(index, number);
        KeepResult(index, path);
    }
}

bool OutputPlan::MakeNames(const Cancelled& isCancelled)
{
    takers.reserve(entries.size());
    for (int i = 0; i < entries.size(); ++i) {
        if (isCancelled && isCancelled()) {
            return false;
        }
        Entry& entry = entries[i];
        if (entry.isKept) {
            PlaceKeptResult(i);
            continue;
        }
        entry.folder = FolderOf(SubFolder(i));
        OutputNaming::Picture picture = pictures.value(i);
        picture.captured = entry.captured;
        entry.stem = jobs[JobOf(i)].naming.Stem(entry.input, FileOf(i), picture);
        if (entry.format) {
            SetName(i, {});
            FindClash(i);
        }
    }
    return true;
}

qint64 OutputPlan::NumberOf(int index) const
{
    const auto fixed = fixedNumbers.constFind(index);
    return fixed != fixedNumbers.constEnd() ? *fixed : jobs[JobOf(index)].naming.NumberOf(FileOf(index));
}

QString OutputPlan::Folder(int index) const
{
    return folders[entries[index].folder].path;
}

QString OutputPlan::OutputName(int index) const
{
    return entries[index].name;
}

QString OutputPlan::Output(int index) const
{
    const Entry& entry = entries[index];
    return entry.name.isEmpty() ? QString() : Folder(index) + QLatin1Char('/') + entry.name;
}

bool OutputPlan::IsSource(int index)
{
    return sourcePlaces.contains(PlaceOf(index)) || SourceAt(OnDiskPath(index)).count > 0;
}

bool OutputPlan::IsAnothersSource(int index)
{
    const auto place = sourcePlaces.constFind(PlaceOf(index));
    if (place != sourcePlaces.constEnd()) {
        return *place != index; // The result of its owner may have replaced it meanwhile.
    }
    const QString path = OnDiskPath(index);
    const int own = IdentityOf(path) == IdentityOf(entries[index].input) ? 1 : 0;
    return SourceAt(path).count > own;
}

void OutputPlan::ChangeFormat(int index, const FormatSchema& format)
{
    Entry& entry = entries[index];
    if (!entry.name.isEmpty()) {
        // The number that made the name a free one stays.
        entry.stem = WithoutExtension(entry.name);
    }
    entry.format = &format;
    SetName(index, {});
    FindClash(index);
}

void OutputPlan::Rename(int index)
{
    Entry& entry = entries[index];
    const int folder = folders[entry.folder].keyId;
    int& next = nextAdditions[{folder, FileName(entry.stem, {}, entry.format->extensions.first())}];
    next = std::max(next, 2);
    do {
        SetName(index, Numbered(next++));
    } while (IsTaken(entry.folder, NameKey(entry.name)));
    entry.clash = Clash::None;
    entry.other = -1;
    takers.insert({folder, NameKey(entry.name)}, index);
}

QString OutputPlan::SubFolder(int index) const
{
    const QString ofJob = jobs[JobOf(index)].subFolder;
    const QString ofStructure = StructureFolder(index);
    return ofJob.isEmpty() || ofStructure.isEmpty() ? ofJob + ofStructure : ofJob + QLatin1Char('/') + ofStructure;
}

QString OutputPlan::StructureFolder(int index) const
{
    switch (jobs[JobOf(index)].structure) {
    case Settings::StructureAsInput:
        return jobFolders[FileOf(index)];
    case Settings::StructureByCaptureDate: {
        const QDateTime& captured = entries[index].captured;
        return captured.isValid() ? captured.toString(QStringLiteral("yyyy/yyyy-MM-dd"))
                                  : QStringLiteral("0000/0000-00-00");
    }
    case Settings::StructureFlat:
        break;
    }
    return {};
}

int OutputPlan::FolderOf(const QString& subFolder)
{
    const auto known = folderIds.constFind(subFolder);
    if (known != folderIds.constEnd()) {
        return *known;
    }
    TargetFolder folder;
    folder.path = subFolder.isEmpty() ? outputFolder : QDir(outputFolder).filePath(subFolder);
    const QString key = NameKey(subFolder);
    folder.keyId = folderKeyIds.value(key, folderKeyIds.size());
    folderKeyIds.insert(key, folder.keyId);
    folders.append(folder);
    folderIds.insert(subFolder, folders.size() - 1);
    return folders.size() - 1;
}

void OutputPlan::SetName(int index, const QString& addition)
{
    Entry& entry = entries[index];
    entry.name = FileName(entry.stem, addition, entry.format->extensions.first());
}

void OutputPlan::PlaceKeptResult(int index)
{
    Entry& entry = entries[index];
    const QFileInfo place(entry.name);
    const QString subFolder = QDir(outputFolder).relativeFilePath(place.path());
    entry.folder = FolderOf(subFolder == QLatin1String(".") ? QString() : subFolder);
    entry.name = place.fileName();
    entry.stem = WithoutExtension(entry.name);
    const Place taken(folders[entry.folder].keyId, NameKey(entry.name));
    if (!takers.contains(taken)) {
        takers.insert(taken, index);
    }
}

void OutputPlan::FindClash(int index)
{
    Entry& entry = entries[index];
    const Place place = PlaceOf(index);
    const auto taker = takers.constFind(place);
    entry.clash = Clash::None;
    entry.other = -1;
    if (taker != takers.constEnd() && *taker != index) {
        entry.clash = Clash::Result;
        entry.other = *taker;
        return;
    }
    takers.insert(place, index);
    if (!OnDisk(entry.folder).contains(place.second)) {
        return;
    }
    const Source source = SourceAt(OnDiskPath(index));
    entry.clash = source.count > 0 ? Clash::Source : Clash::Disk;
    if (source.count > 0) {
        sourcePlaces.insert(place, source.count == 1 ? source.input : -1);
    }
}

OutputPlan::Place OutputPlan::PlaceOf(int index) const
{
    const Entry& entry = entries[index];
    return {folders[entry.folder].keyId, NameKey(entry.name)};
}

bool OutputPlan::IsTaken(int folder, const QString& key)
{
    return takers.contains({folders[folder].keyId, key}) || OnDisk(folder).contains(key);
}

const QHash<QString, QString>& OutputPlan::OnDisk(int folder)
{
    TargetFolder& target = folders[folder];
    if (!target.isListed) {
        target.isListed = true;
        QDirIterator names(target.path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (names.hasNext()) {
            names.next();
            const QString path = target.path + QLatin1Char('/') + names.fileName();
            if (keptPaths.contains(path) || IsNewResult(path) || IsReplaceable(path)) {
                continue;
            }
            target.onDisk.insert(NameKey(names.fileName()), names.fileName());
        }
    }
    return target.onDisk;
}

bool OutputPlan::IsNewResult(const QString& path) const
{
    return newResultsSince && QFileInfo(path).isFile() && ChangeTimeOf(path).value_or(0) >= *newResultsSince;
}

/// An own result of an earlier run that is not an input of this one.
bool OutputPlan::IsReplaceable(const QString& path)
{
    return ownResults.contains(path) && SourceAt(path).count == 0;
}

/// The path of the file on the disk whose name equals that of the result; letter case may differ.
QString OutputPlan::OnDiskPath(int index)
{
    const Entry& entry = entries[index];
    const QString exact = Output(index);
    if (QFileInfo::exists(exact)) {
        return exact;
    }
    return Folder(index) + QLatin1Char('/') + OnDisk(entry.folder).value(NameKey(entry.name), entry.name);
}

OutputPlan::Source OutputPlan::SourceAt(const QString& path)
{
    const std::optional<FileIdentity> identity = IdentityOf(path);
    if (!identity) {
        return {};
    }
    NoteSources();
    return sources.value(*identity);
}

void OutputPlan::NoteSources()
{
    if (areSourcesNoted) {
        return;
    }
    areSourcesNoted = true;
    const auto note = [this](const std::optional<FileIdentity>& identity, int input) {
        if (identity) {
            Source& source = sources[*identity];
            ++source.count;
            source.input = input;
        }
    };
    std::vector<std::optional<FileIdentity>> identities(std::size_t(entries.size() / std::max(1, jobs.size())));
    InShares(int(identities.size()), [&](int begin, int end) {
        for (int file = begin; file < end; ++file) {
            identities[std::size_t(file)] = IdentityOf(qAsConst(entries)[file * jobs.size()].input);
        }
    });
    for (std::size_t file = 0; file < identities.size(); ++file) {
        note(identities[file], int(file) * jobs.size());
    }
    for (const QString& path : qAsConst(sharedSources)) {
        note(IdentityOf(path), -1);
    }
}

} // namespace BatchJob
