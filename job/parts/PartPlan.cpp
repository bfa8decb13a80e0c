// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartPlan.h"

#include "job/journal/PictureJson.h"
#include "job/values/Phrase.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>
#include <numeric>

namespace BatchJob {

namespace {

constexpr int version = 1;
constexpr qint64 longestLine = 256 << 20; // The header holds the settings of up to a hundred jobs.
constexpr int idDigits = 16;

QString Key(const char* name)
{
    return QString::fromLatin1(name);
}

QByteArray HashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QByteArray LineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject JsonOf(const PlannedResult& result)
{
    QJsonObject object{{Key("to"), result.name.output}};
    if (result.code != 0) {
        object.insert(Key("code"), result.code);
        object.insert(Key("reason"), result.reason);
        return object;
    }
    object.insert(Key("format"), result.name.format);
    object.insert(Key("number"), double(result.name.number));
    if (result.name.isRenamed) {
        object.insert(Key("renamed"), 1);
    }
    if (result.name.isOverwriting) {
        object.insert(Key("overwriting"), 1);
    }
    if (result.name.hasOtherFormat) {
        object.insert(Key("otherFormat"), 1);
    }
    return object;
}

PlannedResult ResultOf(const QJsonObject& object)
{
    PlannedResult result;
    result.name.output = object.value(Key("to")).toString();
    result.name.format = object.value(Key("format")).toString();
    result.name.number = qint64(object.value(Key("number")).toDouble(1));
    result.name.isRenamed = object.contains(Key("renamed"));
    result.name.isOverwriting = object.contains(Key("overwriting"));
    result.name.hasOtherFormat = object.contains(Key("otherFormat"));
    result.code = object.value(Key("code")).toInt();
    result.reason = object.value(Key("reason")).toString();
    return result;
}

/// The lines of `count` files from `first` on. A folder is written with the first of its files only.
QByteArray LinesOf(const QVector<PlannedFile>& files, int first, int count)
{
    QByteArray lines;
    QString folder;
    for (int i = first; i < first + count; ++i) {
        const PlannedFile& file = files.at(i);
        const int slash = file.input.lastIndexOf(QLatin1Char('/'));
        QJsonObject object{{Key("input"), file.input.mid(slash + 1)}};
        if (i == first || file.input.left(slash) != folder) {
            folder = file.input.left(slash);
            object.insert(Key("in"), folder);
        }
        if (file.stamp.bytes >= 0) {
            object.insert(Key("bytes"), double(file.stamp.bytes));
            object.insert(Key("modified"), QString::number(file.stamp.modified));
        }
        QJsonArray results;
        for (const PlannedResult& result : file.results) {
            results.append(JsonOf(result));
        }
        object.insert(Key("results"), results);
        lines += LineOf(object);
    }
    return lines;
}

QJsonObject HeaderOf(const PartPlan& plan)
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
    return {{Key("folder"), plan.folder},
            {Key("said"), said},
            {Key("jobs"), jobs},
            {Key("parts"), parts},
            {Key("policies"), policies},
            {Key("sources"), sources},
            {Key("makers"), BatchJob::JsonOf(plan.makers)}};
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

QVector<int> CutIntoParts(const QVector<PlannedFile>& files, int count)
{
    constexpr qint64 leastWeight = 1000; // Opening a file and writing its result takes time, too.
    const auto weight = [&](const PlannedFile& file) { return std::max(leastWeight, file.stamp.bytes); };
    const qint64 all = std::accumulate(files.begin(), files.end(), qint64(0),
                                       [&](qint64 sum, const PlannedFile& file) { return sum + weight(file); });
    QVector<int> counts;
    qint64 taken = 0;
    int next = 0;
    for (int part = 1; part <= count; ++part) {
        const int first = next;
        const int last = files.size() - (count - part); // Each of the later parts needs a file.
        const auto end = qint64(double(all) / count * part);
        while (next < last && (next == first || part == count || taken + weight(files.at(next)) / 2 <= end)) {
            taken += weight(files.at(next++));
        }
        counts.append(next - first);
    }
    return counts;
}

bool WritePlan(const QString& path, PartPlan& plan, const QVector<PlannedFile>& files, const QVector<int>& counts,
               QString& problem)
{
    QByteArray lines;
    plan.parts.clear();
    int first = 0;
    for (const int count : counts) {
        const QByteArray ofPart = LinesOf(files, first, count);
        PartPlan::Part part{count, 0, 0, ofPart.size(), HashOf(ofPart)};
        for (int i = first; i < first + count; ++i) {
            part.inputBytes += std::max<qint64>(0, files.at(i).stamp.bytes);
        }
        plan.parts.append(part);
        lines += ofPart;
        first += count;
    }
    const QByteArray header = LineOf(HeaderOf(plan));
    const QByteArray hash = HashOf(header);
    plan.id = QString::fromLatin1(hash.left(idDigits));
    const QByteArray start = LineOf({{Key("plan"), version}, {Key("sha256"), QString::fromLatin1(hash)}});
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(start) == start.size() &&
                           file.write(header) == header.size() && file.write(lines) == lines.size() && file.commit();
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

std::optional<QVector<PlannedFile>> ReadPart(const QString& path, const PartPlan& plan, int index)
{
    const PartPlan::Part& part = plan.parts.at(index);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(part.offset)) {
        return std::nullopt;
    }
    const QByteArray lines = file.read(part.size);
    if (HashOf(lines) != part.checksum) {
        return std::nullopt;
    }
    QVector<PlannedFile> files;
    QString folder;
    for (int begin = 0; begin < lines.size();) {
        const int end = lines.indexOf('\n', begin);
        if (end < 0) {
            return std::nullopt; // Whoever has made it knew the checksum.
        }
        const QJsonObject line =
            QJsonDocument::fromJson(QByteArray::fromRawData(lines.constData() + begin, end - begin)).object();
        begin = end + 1;
        folder = line.value(Key("in")).toString(folder);
        PlannedFile planned;
        planned.input = folder + QLatin1Char('/') + line.value(Key("input")).toString();
        if (line.contains(Key("bytes"))) {
            planned.stamp.bytes = qint64(line.value(Key("bytes")).toDouble());
            planned.stamp.modified = line.value(Key("modified")).toString().toLongLong();
        }
        for (const QJsonValue result : line.value(Key("results")).toArray()) {
            planned.results.append(ResultOf(result.toObject()));
        }
        files.append(planned);
    }
    return files;
}

} // namespace BatchJob
