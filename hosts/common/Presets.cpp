// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Presets.h"

#include "JobDefaults.h"
#include "JobFile.h"
#include "JobRequirements.h"
#include "RequestError.h"

#include "job/settings/OutputNaming.h"
#include "job/values/ParameterSchema.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

using namespace BatchJob;

namespace BatchHost {

namespace {

const QString extension = QStringLiteral(".xml");

QVector<Preset> PresetsIn(const QString& folder, bool comeAlong)
{
    QVector<Preset> presets;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QLatin1Char('*') + extension}, QDir::Files)) {
        presets.append({file.completeBaseName(), file.filePath(), comeAlong, {}, {}});
    }
    return presets;
}

// In the build folder the presets have the place that they have by default when installed.
QVector<Preset> PresetsOfProgram()
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : {VELKORA_BATCH_PRESETS, "../share/velkora-batch/presets"}) {
        const QVector<Preset> presets = PresetsIn(QDir::cleanPath(program.filePath(QLatin1String(folder))), true);
        if (!presets.isEmpty()) {
            return presets;
        }
    }
    return {};
}

// The exact name counts first: some systems have files whose names differ only in letter case.
const Preset* FindIn(const QVector<Preset>& presets, const QString& name)
{
    const QString key = NameKey(name);
    const auto exact =
        std::find_if(presets.begin(), presets.end(), [&name](const Preset& preset) { return preset.name == name; });
    const auto found =
        exact != presets.end() ? exact : std::find_if(presets.begin(), presets.end(), [&](const Preset& preset) {
            return NameKey(preset.name) == key;
        });
    return found == presets.end() ? nullptr : &*found;
}

RequestError NoSuchPreset(const QString& name, const QVector<Preset>& presets)
{
    if (name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\'))) {
        return {Phrase::English("\"%1\" is a path, but the name of a preset is needed").arg(name)};
    }
    QStringList names;
    for (const Preset& preset : presets) {
        names.append(preset.name);
    }
    const QString nearest = NearestWord(name, names);
    QString text = Phrase::English("there is no preset \"%1\"").arg(name);
    text += names.isEmpty() ? QString() : Phrase::English("; known are %1").arg(names.join(QStringLiteral(", ")));
    text += nearest.isEmpty() ? QString() : Phrase::English("; did you mean \"%1\"?").arg(nearest);
    return {text};
}

void RequireName(const QString& name)
{
    if (name.isEmpty()) {
        throw RequestError{Phrase::English("the name of the preset is empty")};
    }
    if (name.startsWith(QLatin1Char('.'))) {
        throw RequestError{Phrase::English("\"%1\" begins with a dot, which the name of a preset must not").arg(name)};
    }
    if (name.endsWith(extension, Qt::CaseInsensitive)) {
        throw RequestError{
            Phrase::English("the name of a preset has no extension: use \"%1\"").arg(name.chopped(extension.size()))};
    }
    const QString clean = CleanName(name);
    if (clean != name) {
        throw RequestError{
            Phrase::English("\"%1\" is no name for a file on every system; \"%2\" would be one").arg(name, clean)};
    }
    const int longest = longestName - extension.size();
    if (name.toUtf8().size() > longest) {
        throw RequestError{Phrase::English("the name of the preset is longer than %1 bytes").arg(longest)};
    }
}

QStringList Read(ZTBatchDocument& job, const QString& file)
{
    const QStringList warnings = LoadJob(job, file);
    job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    job.SetFileName(QString());
    return warnings;
}

void Inspect(Preset& preset)
{
    try {
        ZTBatchDocument job;
        SetJobDefaults(job);
        Read(job, preset.file);
        preset.title = job.GetDocumentName();
        RequireUsableSettingsButFolder(job);
    } catch (const RequestError& error) {
        preset.problem = error.text;
    }
}

} // namespace

Presets::Presets(const QString& settingsFolder)
    : folder(QDir(settingsFolder).filePath(QStringLiteral("presets")))
{
}

QVector<Preset> Presets::OfUser() const
{
    return PresetsIn(folder, false);
}

QVector<Preset> Presets::Files() const
{
    QVector<Preset> files = OfUser();
    for (const Preset& preset : PresetsOfProgram()) {
        if (FindIn(files, preset.name) == nullptr) {
            files.append(preset);
        }
    }
    std::sort(files.begin(), files.end(), [](const Preset& left, const Preset& right) {
        const QString leftKey = NameKey(left.name);
        const QString rightKey = NameKey(right.name);
        return leftKey != rightKey ? leftKey < rightKey : left.name < right.name;
    });
    return files;
}

QVector<Preset> Presets::All() const
{
    QVector<Preset> presets = Files();
    for (Preset& preset : presets) {
        Inspect(preset);
    }
    return presets;
}

Preset Presets::Find(const QString& name) const
{
    const QVector<Preset> files = Files();
    const Preset* const found = FindIn(files, name);
    if (found == nullptr) {
        throw NoSuchPreset(name, files);
    }
    return *found;
}

QStringList Presets::Load(ZTBatchDocument& job, const QString& name) const
{
    const Preset preset = Find(name);
    try {
        return Read(job, preset.file);
    } catch (const RequestError& error) {
        throw error.In(Phrase::English("the preset %1").arg(preset.name));
    }
}

QString Presets::Save(const ZTBatchDocument& job, const QString& name, bool replaceExisting) const
{
    RequireName(name);
    const QVector<Preset> ofUser = OfUser();
    const Preset* const existing = FindIn(ofUser, name);
    if (!QDir().mkpath(folder)) {
        throw RequestError{Phrase::English("the folder %1 cannot be made").arg(folder)};
    }
    const QString file = existing != nullptr ? existing->file : QDir(folder).filePath(name + extension);
    SaveJob(job, file, replaceExisting);
    return file;
}

Preset Presets::FindOwn(const QString& name) const
{
    const Preset preset = Find(name);
    if (preset.comesAlong) {
        throw RequestError{Phrase::English("the preset %1 comes with the program and cannot be removed; a preset of "
                                           "yours with that name is used instead of it")
                               .arg(preset.name)};
    }
    return preset;
}

QString Presets::Rename(const QString& name, const QString& newName, bool replaceExisting) const
{
    const Preset preset = FindOwn(name);
    RequireName(newName);
    if (NameKey(newName) == NameKey(name)) {
        const QString file = QFileInfo(preset.file).dir().filePath(newName + extension);
        QFile old(preset.file);
        if (file != preset.file && !old.rename(file)) {
            throw RequestError{Phrase::English("%1 cannot be written: %2").arg(file, old.errorString())};
        }
        return file;
    }
    ZTBatchDocument job;
    SetJobDefaults(job);
    Load(job, name);
    job.SetDocumentName(newName);
    const QString file = Save(job, newName, replaceExisting);
    Remove(name);
    return file;
}

void Presets::Remove(const QString& name) const
{
    QFile file(FindOwn(name).file);
    if (!file.remove()) {
        throw RequestError{Phrase::English("%1 cannot be removed: %2").arg(file.fileName(), file.errorString())};
    }
}

void Presets::Restore(const QString& name, const QByteArray& content) const
{
    const QString path = QDir(folder).filePath(name + extension);
    if (QFileInfo::exists(path)) {
        throw RequestError{Phrase::English("%1 exists").arg(path), RequestError::Kind::FileExists};
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        throw RequestError{Phrase::English("%1 cannot be written: %2").arg(path, file.errorString())};
    }
}

} // namespace BatchHost
