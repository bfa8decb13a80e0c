// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartPlan.h"

#include "PlanLines.h"

#include "job/journal/PictureJson.h"
#include "job/values/JsonKey.h"
#include "job/values/Phrase.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <numeric>

namespace BatchJob {

namespace {

constexpr int version = 1;
constexpr qint64 longestLine = 256 << 20; // The header holds the settings of up to a hundred jobs.
constexpr int idDigits = 16;

QByteArray HashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray LineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray HeaderOf(const PartPlan& plan)
{
    QJsonArray jobs;
    for (const PartPlan::Job& job : plan.jobs) {
        jobs.append(
            QJsonObject{{Key("name"), job.name}, {Key("document"), job.document}, {Key("folder"), job.outputFolder}});
    }
    QJsonArray parts;
    for (const PartPlan::Part& part : plan.parts) {
        parts.append(QJsonObject{{Key("files"), part.files},
                                 {Key("inputBytes"), double(part.inputBytes)},
                                 {Key("bytes"), double(part.size)},
                                 {Key("sha256"), QString::fromLatin1(part.checksum)}});
    }
    QJsonArray policies;
    for (const int policy : plan.policies) {
        policies.append(policy);
    }
    QJsonArray sources;
    for (const auto& [path, stamp] : plan.sources) {
        sources.append(QJsonObject{{Key("path"), path}, {Key("stamp"), JsonOf(stamp)}});
    }
    QJsonObject said;
    for (auto it = plan.said.begin(); it != plan.said.end(); ++it) {
        said.insert(it.key(), it.value());
    }
    return LineOf({{Key("folder"), plan.folder},
                   {Key("said"), said},
                   {Key("jobs"), jobs},
                   {Key("parts"), parts},
                   {Key("policies"), policies},
                   {Key("sources"), sources},
                   {Key("makers"), BatchJob::JsonOf(plan.makers)}});
}

QByteArray StartOf(const QByteArray& checksum)
{
    return LineOf({{Key("plan"), version}, {Key("sha256"), QString::fromLatin1(checksum)}});
}

bool ReadHeader(const QJsonObject& header, PartPlan& plan)
{
    plan.folder = header.value(Key("folder")).toString();
    plan.makers = ReadVersions(header.value(Key("makers")).toObject());
    for (const QJsonValue value : header.value(Key("jobs")).toArray()) {
        const QJsonObject job = value.toObject();
        plan.jobs.append({job.value(Key("name")).toString(), job.value(Key("document")).toString(),
                          job.value(Key("folder")).toString()});
    }
    qint64 offset = 0;
    for (const QJsonValue value : header.value(Key("parts")).toArray()) {
        const QJsonObject part = value.toObject();
        const auto size = qint64(part.value(Key("bytes")).toDouble());
        plan.parts.append({part.value(Key("files")).toInt(), qint64(part.value(Key("inputBytes")).toDouble()), offset,
                           size, part.value(Key("sha256")).toString().toLatin1()});
        offset += size;
    }
    for (const QJsonValue value : header.value(Key("sources")).toArray()) {
        const QJsonObject source = value.toObject();
        plan.sources.append({source.value(Key("path")).toString(), ReadStamp(source.value(Key("stamp")).toObject())});
    }
    const QJsonObject said = header.value(Key("said")).toObject();
    for (auto it = said.begin(); it != said.end(); ++it) {
        plan.said.insert(it.key(), it.value().toString());
    }
    const QJsonArray policies = header.value(Key("policies")).toArray();
    for (std::size_t i = 0; i < plan.policies.size(); ++i) {
        plan.policies[i] = policies.at(int(i)).toInt();
    }
    return policies.size() == policyCount && !plan.jobs.isEmpty() && !plan.parts.isEmpty();
}

} // namespace

int PartPlan::FileCount() const
{
    return std::accumulate(parts.begin(), parts.end(), 0, [](int sum, const Part& part) { return sum + part.files; });
}

QVector<int> CutIntoParts(const QVector<qint64>& bytes, int count)
{
    constexpr qint64 leastWeight = 1000; // Opening a file and writing its result takes time, too.
    const auto weight = [&](qint64 size) { return std::max(leastWeight, size); };
    const qint64 all = std::accumulate(bytes.begin(), bytes.end(), qint64(0),
                                       [&](qint64 sum, qint64 size) { return sum + weight(size); });
    QVector<int> counts;
    qint64 taken = 0;
    int next = 0;
    for (int part = 1; part <= count; ++part) {
        const int first = next;
        const int last = bytes.size() - (count - part); // Each of the later parts needs a file.
        const auto end = qint64(double(all) / count * part);
        while (next < last && (next == first || part == count || taken + weight(bytes.at(next)) / 2 <= end)) {
            taken += weight(bytes.at(next++));
        }
        counts.append(next - first);
    }
    return counts;
}

PlanWriter::PlanWriter(const QString& path, PartPlan& plan, const QVector<int>& counts)
    : file(path)
    , plan(plan)
    , hash(QCryptographicHash::Sha256)
{
    plan.parts.clear();
    for (const int count : counts) {
        plan.parts.append({count, 0, 0, 0, HashOf({})});
    }
    // The header says what the lines are, and comes before them.
    constexpr int longestNumber = 20;
    constexpr int numbers = 2;
    headerSize = HeaderOf(plan).size() + numbers * longestNumber * counts.size();
    if (file.open(QIODevice::WriteOnly)) {
        file.seek(StartOf(HashOf({})).size() + headerSize);
    }
}

void PlanWriter::Add(const PlannedFile& planned)
{
    PartPlan::Part& open = plan.parts[part];
    AppendLine(lines, planned, folder);
    open.inputBytes += std::max<qint64>(0, planned.stamp.bytes);
    const bool isLast = ++filesOfPart == open.files;
    constexpr int block = 1 << 16;
    if (isLast || lines.size() >= block) {
        hash.addData(lines);
        if (file.isOpen()) {
            file.write(lines);
        }
        open.size += lines.size();
        lines.clear();
    }
    if (isLast) {
        open.checksum = hash.result().toHex();
        hash.reset();
        folder.reset();
        filesOfPart = 0;
        ++part;
    }
}

bool PlanWriter::Commit(QString& problem)
{
    QByteArray header = HeaderOf(plan);
    header.insert(header.size() - 1, QByteArray(headerSize - header.size(), ' '));
    const QByteArray checksum = HashOf(header);
    plan.id = QString::fromLatin1(checksum.left(idDigits));
    const QByteArray start = StartOf(checksum) + header;
    const bool isWritten = file.isOpen() && file.seek(0) && file.write(start) == start.size() && file.commit();
    if (!isWritten) {
        problem = file.errorString();
    }
    return isWritten;
}

std::optional<PartPlan> ReadPlan(const QString& path, QString& problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = file.errorString();
        return std::nullopt;
    }
    constexpr qint64 longestStart = 1000;
    const QJsonObject start = QJsonDocument::fromJson(file.readLine(longestStart)).object();
    const int found = start.value(Key("plan")).toInt();
    if (found > version) {
        problem = Phrase::English("a newer version of the program has made it; use that version for all parts");
        return std::nullopt;
    }
    if (found != version) {
        problem = Phrase::English("it is no plan; \"velkora-batch split\" makes one");
        return std::nullopt;
    }
    const QByteArray header = file.readLine(longestLine);
    const QByteArray hash = HashOf(header);
    PartPlan plan;
    plan.id = QString::fromLatin1(hash.left(idDigits));
    if (start.value(Key("sha256")).toString().toLatin1() != hash ||
        !ReadHeader(QJsonDocument::fromJson(header).object(), plan)) {
        problem = Phrase::English("it is damaged; split the job again");
        return std::nullopt;
    }
    for (PartPlan::Part& part : plan.parts) {
        part.offset += file.pos();
    }
    return plan;
}

bool ReadPart(const QString& path, const PartPlan& plan, int index, const std::function<void(const PlannedFile&)>& take)
{
    const PartPlan::Part& part = plan.parts.at(index);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(part.offset)) {
        return false;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    PlanLineReader reader;
    for (qint64 left = part.size; left > 0;) {
        const QByteArray line = file.readLine(left + 1); // Qt keeps a byte of it.
        if (!line.endsWith('\n')) {
            return false;
        }
        hash.addData(line);
        left -= line.size();
        take(reader.Read(line));
    }
    return hash.result().toHex() == part.checksum;
}

} // namespace BatchJob
