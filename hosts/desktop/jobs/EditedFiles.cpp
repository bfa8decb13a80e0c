// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EditedFiles.h"

#include "hosts/common/JobDefaults.h"

#include "ZTBatchDocument.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

const QString policiesKey = QStringLiteral("policies");
const QString presetKey = QStringLiteral("preset");
const QString jobFileKey = QStringLiteral("jobFile");
const QString changedKey = QStringLiteral("changed");
const QString closedKey = QStringLiteral("closed");
const QString settingsKey = QStringLiteral("settings");
const QString nameKey = QStringLiteral("name");

constexpr auto streamVersion = QDataStream::Qt_5_15;
constexpr quint32 inputsMark = 0x56424901; ///< the last byte is the version of the file

BatchJob::PolicyValues PoliciesIn(const QJsonArray& array)
{
    BatchJob::PolicyValues policies = Settings::AskingPolicies();
    for (int i = 0; i < BatchJob::policyCount && i < array.size(); ++i) {
        const auto kind = BatchJob::PolicyKind(i);
        const int value = array.at(i).toInt(-1);
        if (BatchJob::PolicyWords(kind).contains(BatchJob::PolicyWord(kind, value))) {
            policies[std::size_t(i)] = value;
        }
    }
    return policies;
}

} // namespace

EditedFiles::EditedFiles(const QString& folder)
    : folder(QDir(folder).filePath(QStringLiteral("edited")))
{
}

QString EditedFiles::Path(const char* name) const
{
    return QDir(folder).filePath(QLatin1String(name));
}

bool EditedFiles::Write(const EditState& state) const
{
    ZTBatchDocument job;
    state.settings.ApplyTo(job);
    job.SetDocumentName(state.name);
    QJsonArray policies;
    for (const int value : state.settings.policies) {
        policies.append(value);
    }
    const QJsonObject object{{policiesKey, policies},     {presetKey, state.preset},
                             {jobFileKey, state.jobFile}, {changedKey, state.isChanged},
                             {closedKey, state.isClosed}, {settingsKey, job.Serialize(nullptr)},
                             {nameKey, state.name}};
    const QByteArray bytes = QJsonDocument(object).toJson();
    QSaveFile file(Path("state.json"));
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           file.commit();
}

bool EditedFiles::Write(const InputSnapshot& inputs) const
{
    QSaveFile file(Path("inputs.dat"));
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QDataStream stream(&file);
    stream.setVersion(streamVersion);
    stream << inputsMark;
    inputs.Save(stream);
    return stream.status() == QDataStream::Ok && file.commit();
}

std::optional<EditState> EditedFiles::ReadState() const
{
    QFile file(Path("state.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    ZTBatchDocument job;
    SetJobDefaults(job);
    if (!job.Deserialize(object.value(settingsKey).toString())) {
        return std::nullopt;
    }
    EditState state;
    state.name = object.value(nameKey).toString();
    state.settings = Settings::Of(job, PoliciesIn(object.value(policiesKey).toArray()));
    state.preset = object.value(presetKey).toString();
    state.jobFile = object.value(jobFileKey).toString();
    state.isChanged = object.value(changedKey).toBool();
    state.isClosed = object.value(closedKey).toBool();
    return state;
}

std::optional<InputSnapshot> EditedFiles::ReadInputs() const
{
    QFile file(Path("inputs.dat"));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QDataStream stream(&file);
    stream.setVersion(streamVersion);
    quint32 mark = 0;
    stream >> mark;
    return mark == inputsMark ? InputSnapshot::Load(stream) : std::nullopt;
}

} // namespace BatchDesktop
