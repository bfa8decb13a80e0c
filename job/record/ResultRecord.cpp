// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultRecord.h"

#include "job/journal/Lines.h"
#include "job/journal/OwnFile.h"
#include "job/journal/PictureJson.h"
#include "job/values/JsonKey.h"
#include "job/values/Phrase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>

namespace BatchJob {

namespace {

constexpr int version = 1;

QByteArray LineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray LineOf(const QString& path, const RecordedResult& recorded)
{
    QJsonObject source = JsonOf(recorded.inputStamp);
    QJsonObject result = JsonOf(recorded.stamp);
    if (!recorded.inputChecksum.isEmpty()) {
        source.insert(Key("sha256"), QString::fromLatin1(recorded.inputChecksum));
    }
    if (!recorded.checksum.isEmpty()) {
        result.insert(Key("sha256"), QString::fromLatin1(recorded.checksum));
    }
    QJsonObject line{{Key("path"), path},
                     {Key("input"), recorded.input},
                     {Key("source"), source},
                     {Key("result"), result},
                     {Key("recipe"), recorded.recipe}};
    Insert(line, recorded.facts);
    if (!recorded.warnings.isEmpty()) {
        line.insert(Key("warnings"), JsonOf(recorded.warnings));
    }
    return LineOf(line);
}

RecordedResult ReadResult(const QJsonObject& line)
{
    const QJsonObject source = line.value(Key("source")).toObject();
    const QJsonObject result = line.value(Key("result")).toObject();
    RecordedResult recorded;
    recorded.input = line.value(Key("input")).toString();
    recorded.inputStamp = ReadStamp(source);
    recorded.inputChecksum = source.value(Key("sha256")).toString().toLatin1();
    recorded.stamp = ReadStamp(result);
    recorded.checksum = result.value(Key("sha256")).toString().toLatin1();
    recorded.recipe = line.value(Key("recipe")).toString();
    recorded.warnings = ReadWarnings(line.value(Key("warnings")).toArray());
    recorded.facts = ReadFacts(line);
    return recorded;
}

/// Whether `path` leads to a place below its folder.
bool IsBelow(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    return !path.isEmpty() && QDir::isRelativePath(path) && clean == path && clean != QLatin1String(".") &&
           clean != QLatin1String("..") && !clean.startsWith(QLatin1String("../"));
}

/// How many results a record with the line `header` has; -1 if that line does not begin a record
/// of this version.
int CountIn(const QByteArray& header)
{
    const QJsonObject line = QJsonDocument::fromJson(header).object();
    return line.value(Key("record")).toInt() == version ? line.value(Key("results")).toInt(-1) : -1;
}

bool ReadLines(QFile& file, ResultRecord& record)
{
    Lines lines(file);
    const int count = CountIn(lines.Next());
    if (count < 0) {
        return false;
    }
    while (!lines.IsAtEnd()) {
        const QByteArray bytes = lines.Next();
        const QJsonObject line = QJsonDocument::fromJson(bytes).object();
        const QString path = line.value(Key("path")).toString();
        if (!bytes.endsWith('\n') || !IsBelow(path)) {
            return false;
        }
        record.insert(path, ReadResult(line));
    }
    return record.size() == count;
}

} // namespace

QString RecordPath(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral(".velkora-batch-results"));
}

ResultRecord ReadRecord(const QString& folder, QString& problem)
{
    problem.clear();
    const QString path = RecordPath(folder);
    if (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink()) {
        return {};
    }
    QFile file;
    if (!OpenOwnFile(file, path, OwnFileUse::Read, problem)) {
        return {};
    }
    ResultRecord record;
    if (!ReadLines(file, record)) {
        problem = Phrase::English("it is damaged, or of another version");
        return {};
    }
    return record;
}

int RecordedCount(const QString& folder)
{
    constexpr qint64 longestHeader = 1000;
    QFile file;
    QString problem;
    return OpenOwnFile(file, RecordPath(folder), OwnFileUse::Read, problem) ? CountIn(file.readLine(longestHeader))
                                                                            : -1;
}

bool WriteRecord(const QString& folder, const ResultRecord& record, QString& problem)
{
    const QString path = RecordPath(folder);
    QFile present;
    const bool isThere = QFileInfo::exists(path) || QFileInfo(path).isSymLink();
    if (isThere && !OpenOwnFile(present, path, OwnFileUse::Read, problem)) {
        return false;
    }
    present.close();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        problem = file.errorString();
        return false;
    }
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.write(LineOf({{Key("record"), version}, {Key("results"), record.size()}}));
    QStringList paths = record.keys();
    std::sort(paths.begin(), paths.end());
    for (const QString& one : qAsConst(paths)) {
        file.write(LineOf(one, record[one]));
    }
    if (!file.commit()) {
        problem = file.errorString();
        return false;
    }
    return true;
}

} // namespace BatchJob
