// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Reads a file as a record of results, writes what it says, and cuts that off anywhere. What counts comes back as it
// was and leads to places below its folder only; a record that was cut off does not count.

#include "Require.h"

#include "job/record/ResultRecord.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>

using namespace BatchJob;

namespace {

bool AreEqual(const RecordedResult& a, const RecordedResult& b)
{
    return a.input == b.input && a.inputStamp == b.inputStamp && a.inputChecksum == b.inputChecksum &&
           a.stamp == b.stamp && a.checksum == b.checksum && a.recipe == b.recipe && a.warnings == b.warnings &&
           a.facts == b.facts;
}

void SetContent(const QString& path, const QByteArray& content)
{
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    Require(file.write(content) == content.size());
}

QByteArray Content(const QString& path)
{
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void RequireSense(const QString& folder, const ResultRecord& record)
{
    const QString start = folder + QLatin1Char('/');
    for (auto it = record.begin(); it != record.end(); ++it) {
        Require(!it.key().isEmpty() && QDir::cleanPath(start + it.key()) == start + it.key());
    }
}

/// Writes `record`. Returns what is read then.
ResultRecord RoundTrip(const QString& folder, const ResultRecord& record)
{
    QString problem;
    Require(WriteRecord(folder, record, problem));
    ResultRecord read = ReadRecord(folder, problem);
    Require(problem.isEmpty() && read.size() == record.size() && RecordedCount(folder) == record.size());
    return read;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QTemporaryDir temporary;
    const QString folder = temporary.path();
    SetContent(RecordPath(folder), QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    QString problem;
    const ResultRecord record = ReadRecord(folder, problem);
    Require(record.isEmpty() || problem.isEmpty());
    if (!problem.isEmpty()) {
        return 0;
    }
    RequireSense(folder, record);
    Require(RecordedCount(folder) == record.size());

    // A line may hold more than a record writes. After one round trip it does not.
    const ResultRecord once = RoundTrip(folder, record);
    const ResultRecord twice = RoundTrip(folder, once);
    for (auto it = once.begin(); it != once.end(); ++it) {
        const auto found = twice.find(it.key());
        Require(found != twice.end() && AreEqual(*found, *it));
    }

    const QByteArray whole = Content(RecordPath(folder));
    const int cut = static_cast<int>(qHashBits(data, size) & 0xFFFFFFU) % whole.size();
    SetContent(RecordPath(folder), whole.left(cut));
    const ResultRecord rest = ReadRecord(folder, problem);
    // The header alone can lack its line feed: it says how many lines follow.
    Require(rest.isEmpty() && (!problem.isEmpty() || record.isEmpty()));
    return 0;
}
