// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureJson.h"

namespace BatchJob {

namespace {

/// Where an object is read, nothing is allocated for a key.
QLatin1String Key(const char* name)
{
    return QLatin1String(name);
}

constexpr double largestExact = 9007199254740992.0; // 2^53

/// A number of bytes; -1 if it is none.
qint64 ReadBytes(const QJsonValue& value)
{
    const double bytes = value.toDouble(-1);
    return bytes >= 0 && bytes <= largestExact ? qint64(bytes) : -1;
}

int ReadNumber(const QJsonValue& value)
{
    return value.toInt(-1);
}

QSize ReadSize(const QJsonValue& value)
{
    const QJsonArray sides = value.toArray();
    return {ReadNumber(sides.at(0)), ReadNumber(sides.at(1))};
}

void InsertSize(QJsonObject& line, const QString& key, const QSize& size)
{
    if (!size.isEmpty()) {
        line.insert(key, QJsonArray{size.width(), size.height()});
    }
}

} // namespace

PictureFacts ReadFacts(const QJsonObject& line)
{
    PictureFacts facts;
    facts.inputSize = ReadSize(line.value(Key("from")));
    facts.outputSize = ReadSize(line.value(Key("to")));
    facts.outputBytes = ReadBytes(line.value(Key("bytes")));
    facts.quality = ReadNumber(line.value(Key("quality")));
    facts.milliseconds = ReadNumber(line.value(Key("milliseconds")));
    return PossibleFacts(facts);
}

void Insert(QJsonObject& line, const PictureFacts& facts)
{
    InsertSize(line, Key("from"), facts.inputSize);
    InsertSize(line, Key("to"), facts.outputSize);
    if (facts.outputBytes >= 0) {
        line.insert(Key("bytes"), double(facts.outputBytes));
    }
    if (facts.quality > 0) {
        line.insert(Key("quality"), facts.quality);
    }
    if (facts.milliseconds >= 0) {
        line.insert(Key("milliseconds"), facts.milliseconds);
    }
}

Warnings ReadWarnings(const QJsonArray& array)
{
    Warnings warnings;
    for (const QJsonValue value : array) {
        const QJsonObject warning = value.toObject();
        warnings.append({WarningKindOf(warning.value(Key("kind")).toString()), warning.value(Key("text")).toString()});
    }
    return warnings;
}

QJsonArray JsonOf(const Warnings& warnings)
{
    QJsonArray array;
    for (const Warning& warning : warnings) {
        array.append(QJsonObject{{Key("kind"), WarningWord(warning.kind)}, {Key("text"), warning.text}});
    }
    return array;
}

FileStamp ReadStamp(const QJsonObject& object)
{
    return {ReadBytes(object.value(Key("bytes"))), object.value(Key("modified")).toString().toLongLong(),
            object.value(Key("number")).toString().toULongLong()};
}

QJsonObject JsonOf(const FileStamp& stamp)
{
    QJsonObject object{{Key("bytes"), double(stamp.bytes)}, {Key("modified"), QString::number(stamp.modified)}};
    if (stamp.number != 0) {
        object.insert(Key("number"), QString::number(stamp.number));
    }
    return object;
}

} // namespace BatchJob
