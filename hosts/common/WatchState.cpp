// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WatchState.h"

#include "RequestError.h"

#include "job/journal/Lines.h"
#include "job/journal/LockFiles.h"
#include "job/journal/OwnFile.h"
#include "job/journal/RunJournal.h"
#include "job/settings/NamePart.h"
#include "job/values/Phrase.h"

#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <limits>

using namespace BatchJob;

namespace BatchHost {

namespace {

constexpr int version = 1;
constexpr std::array parts{ZTBatchOutputSettings::PartPrefix, ZTBatchOutputSettings::PartMiddle,
                           ZTBatchOutputSettings::PartSuffix};

const QString ofVersion = QStringLiteral("watch");
const QString ofBatch = QStringLiteral("batch");
const QString ofNumbers = QStringLiteral("next");
const QString ofFiles = QStringLiteral("files");
const QString ofStep = QStringLiteral("step");
const QString begun = QStringLiteral("begun");
const QString done = QStringLiteral("done");
const QString dropped = QStringLiteral("dropped");

QString PathOfLock(const QString& outputFolder)
{
    return QDir(outputFolder).filePath(WatchState::FileName() + QStringLiteral(".lock"));
}

QByteArray Line(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

// Numbers of 64 bits as text: JSON's are less exact.
QJsonArray FieldsOf(const SeenFile& file, const QDir& folder)
{
    return {folder.relativeFilePath(file.path), QString::number(file.facts.bytes),
            QString::number(file.facts.modified)};
}

SeenFile FileOf(const QJsonArray& fields, const QDir& folder)
{
    return {QDir::cleanPath(folder.filePath(fields.at(0).toString())),
            {fields.at(1).toString().toLongLong(), fields.at(2).toString().toLongLong()}};
}

} // namespace

WatchState::WatchState(const QString& outputFolder, const QString& folder)
    : outputFolder(outputFolder)
    , folder(folder)
    , lock(PathOfLock(outputFolder))
{
    if (!QDir().mkpath(outputFolder)) {
        throw RequestError{Phrase::English("the output folder %1 cannot be made").arg(outputFolder)};
    }
    const QString ofLock = WhyNotOwnLock(PathOfLock(outputFolder));
    if (!ofLock.isEmpty()) {
        throw RequestError{QStringLiteral("%1: %2").arg(PathOfLock(outputFolder), ofLock)};
    }
    constexpr int timeout = 5'000; // ms; a server that is just being started holds what its killed host has held
    lock.setStaleLockTime(0);
    if (!TakeLock(lock, PathOfLock(outputFolder), timeout)) {
        if (lock.error() == QLockFile::LockFailedError) {
            throw RequestError{Phrase::English("another process watches a folder for %1 already").arg(outputFolder),
                               RequestError::Kind::AlreadyRunning};
        }
        throw RequestError{Phrase::English("the output folder %1 cannot be written").arg(outputFolder)};
    }
    const QString path = QDir(outputFolder).filePath(FileName());
    QString problem;
    const bool exists = QFileInfo::exists(path) || QFileInfo(path).isSymLink();
    if (exists ? !OpenOwnFile(file, path, OwnFileUse::Append, problem) : !CreateOwnFile(file, path, problem)) {
        Refuse(problem);
    }
    Read();
}

QString WatchState::FileName()
{
    return QStringLiteral(".velkora-batch-watch");
}

void WatchState::Read()
{
    file.seek(0);
    qint64 whole = 0;
    bool isFirst = true;
    Lines lines(file);
    while (!lines.IsAtEnd()) {
        const QByteArray line = lines.Next();
        if (!line.endsWith('\n')) {
            break; // The process was killed over it.
        }
        whole += line.size();
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (isFirst && object.value(ofVersion).toInt() != version) {
            Refuse(Phrase::English("it is no record of a watched folder that this version reads"));
        }
        isFirst = false;
        ReadLine(line);
    }
    if (whole < file.size() && !file.resize(whole)) {
        Refuse(file.errorString());
    }
    file.seek(whole);
    if (whole == 0) {
        Write(Line({{ofVersion, version}}));
    }
    // The pictures of a batch may have been made up to its journal's first line.
    const bool isAtJournal = open && HasJournalBegun(QDir(outputFolder).filePath(open->journal));
    if (open && !isAtJournal) {
        // Without a journal it was never begun, or finished by someone else.
        hasBegun ? NoteDone() : Drop();
    }
}

void WatchState::ReadLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString step = object.value(ofStep).toString();
    if (object.contains(ofBatch)) {
        Batch batch;
        batch.journal = QFileInfo(object.value(ofBatch).toString()).fileName();
        for (std::size_t i = 0; i < batch.next.size(); ++i) {
            batch.next[i] = std::max(0, object.value(ofNumbers).toArray().at(int(i)).toInt());
        }
        const QJsonArray files = object.value(ofFiles).toArray();
        for (const QJsonValue& each : files) {
            batch.files.append(FileOf(each.toArray(), QDir(folder)));
        }
        open = batch;
        hasBegun = false;
    } else if (open && step == begun) {
        hasBegun = true;
    } else if (open && step == done) {
        taken += open->files;
        next = open->next;
        open.reset();
    } else if (step == dropped) {
        open.reset();
    }
}

void WatchState::Continue(ZTBatchOutputSettings& output) const
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        NamePart named = NamePartOf(output, parts[i]);
        named.startNumber = std::max(named.startNumber, next[i]);
        SetNamePart(output, parts[i], named);
    }
}

WatchState::Numbers WatchState::Behind(const ZTBatchOutputSettings& output, int count)
{
    Numbers numbers{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const qint64 number = qint64(NamePartOf(output, parts[i]).startNumber) + count;
        numbers[i] = int(std::min<qint64>(number, std::numeric_limits<int>::max()));
    }
    return numbers;
}

void WatchState::Begin(const Batch& batch)
{
    QJsonArray files;
    for (const SeenFile& each : batch.files) {
        files.append(FieldsOf(each, QDir(folder)));
    }
    const QJsonArray numbers{batch.next[0], batch.next[1], batch.next[2]};
    Write(Line({{ofBatch, QFileInfo(batch.journal).fileName()}, {ofNumbers, numbers}, {ofFiles, files}}));
    open = batch;
    hasBegun = false;
}

void WatchState::NoteBegun()
{
    Write(Line({{ofStep, begun}}));
    hasBegun = true;
}

void WatchState::NoteDone()
{
    Write(Line({{ofStep, done}}));
    taken += open->files;
    next = open->next;
    open.reset();
}

void WatchState::Drop()
{
    Write(Line({{ofStep, dropped}}));
    open.reset();
}

void WatchState::Write(const QByteArray& line)
{
    const qint64 place = file.size();
    if (file.write(line) != line.size() || !file.flush()) {
        const QString problem = file.errorString();
        file.resize(place);
        Refuse(problem);
    }
}

void WatchState::Refuse(const QString& problem) const
{
    throw RequestError{Phrase::English("what was watched before cannot be read and written: %1: %2")
                           .arg(QDir(outputFolder).filePath(FileName()), problem)};
}

} // namespace BatchHost
