// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunJournal.h"

#include "OwnFile.h"

#include "job/values/FileIdentity.h"
#include "job/values/TimeText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace BatchJob {

namespace {

using Kind = JournalState::Result::Kind;

constexpr int version = 1;

/// A header begins like this, then a digit, so that an incomplete journal can be marked on a full disk: a byte is
/// changed in its place.
constexpr char headerBegin[] = "{\"complete\":";
constexpr qint64 markPosition = sizeof(headerBegin) - 1;

QString Key(const char* name)
{
    return QString::fromLatin1(name);
}

bool ReadHeader(const QJsonObject& line, JournalState& state)
{
    const QJsonArray policies = line.value(Key("policies")).toArray();
    if (line.value(Key("journal")).toInt() != version || policies.size() != int(state.policies.size())) {
        return false;
    }
    state.isComplete = line.value(Key("complete")).toInt(1) != 0;
    state.beganAt = line.value(Key("since")).toString().toLongLong();
    state.document = line.value(Key("document")).toString();
    state.isInPlace = line.value(Key("inPlace")).toInt() == 1;
    for (std::size_t i = 0; i < state.policies.size(); ++i) {
        state.policies[i] = policies.at(int(i)).toInt();
    }
    return true;
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

int ReadNumber(const QJsonValue& value)
{
    return value.toInt(-1);
}

QSize ReadSize(const QJsonValue& value)
{
    const QJsonArray sides = value.toArray();
    return {ReadNumber(sides.at(0)), ReadNumber(sides.at(1))};
}

PictureFacts ReadFacts(const QJsonObject& line)
{
    constexpr double largestExact = 9007199254740992.0; // 2^53
    const double bytes = line.value(Key("bytes")).toDouble(-1);
    PictureFacts facts;
    facts.inputSize = ReadSize(line.value(Key("from")));
    facts.outputSize = ReadSize(line.value(Key("to")));
    facts.outputBytes = bytes >= 0 && bytes <= largestExact ? qint64(bytes) : -1;
    facts.quality = ReadNumber(line.value(Key("quality")));
    facts.milliseconds = ReadNumber(line.value(Key("milliseconds")));
    return PossibleFacts(facts);
}

void InsertSize(QJsonObject& line, const QString& key, const QSize& size)
{
    if (!size.isEmpty()) {
        line.insert(key, QJsonArray{size.width(), size.height()});
    }
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

void ReadLine(const QJsonObject& line, JournalState& state)
{
    const QString output = line.value(Key("output")).toString();
    for (const Kind kind : {Kind::Written, Kind::Skipped, Kind::Failed}) {
        const int index = line.value(ResultWord(kind)).toInt(-1);
        if (index >= 0) {
            state.results.insert(index,
                                 {kind, output, line.value(Key("code")).toInt(), line.value(Key("reason")).toString(),
                                  ReadWarnings(line.value(Key("warnings")).toArray()), ReadFacts(line),
                                  TimeOfText(line.value(Key("finished")).toString())});
            state.begun.remove(index);
            state.losses.remove(index);
        }
    }
    const int begun = line.value(Key("begin")).toInt(-1);
    if (begun >= 0 && !state.results.contains(begun)) {
        state.begun.insert(begun, {output, line.value(Key("before")).toString()});
    }
    const int answer = line.value(Key("answer")).toInt(-1);
    if (answer >= 0 && answer < int(state.policies.size())) {
        state.answers.insert(answer, line.value(Key("value")).toInt());
    }
    for (const QJsonValue again : line.value(Key("retry")).toArray()) {
        const auto result = state.results.constFind(again.toInt(-1));
        if (result != state.results.constEnd() && result->kind != Kind::Written) {
            state.results.erase(result);
        }
    }
    for (const QJsonValue lost : line.value(Key("lost")).toArray()) {
        const int index = lost.toInt(-1);
        if (index >= 0 && !state.results.contains(index)) {
            ++state.losses[index];
        }
    }
}

} // namespace

std::optional<JournalState> ReadJournal(const QString& path)
{
    QFile file;
    QString problem;
    if (path.isEmpty() || !OpenOwnFile(file, path, OwnFileUse::Read, problem)) {
        return std::nullopt;
    }
    JournalState state;
    bool hasHeader = false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        const QJsonDocument document = QJsonDocument::fromJson(line);
        const bool isWhole = line.endsWith('\n') && document.isObject();
        if (!hasHeader) {
            if (!isWhole || !ReadHeader(document.object(), state)) {
                return std::nullopt;
            }
            hasHeader = true;
        } else if (isWhole) {
            ReadLine(document.object(), state);
        }
    }
    return hasHeader ? std::optional(state) : std::nullopt;
}

bool HasJournalBegun(const QString& path)
{
    QFile file;
    QString problem;
    return OpenOwnFile(file, path, OwnFileUse::Read, problem) && file.readLine().endsWith('\n');
}

bool RunJournal::Create(const QString& newPath, const QString& document, const std::array<int, 5>& policies,
                        bool isInPlace)
{
    auto created = std::make_unique<QFile>();
    if (!CreateOwnFile(*created, newPath, problem)) {
        return false;
    }
    QJsonArray values;
    for (const int policy : policies) {
        values.append(policy);
    }
    QJsonObject object{{Key("journal"), version},
                       {Key("since"), QString::number(ChangeTimeOf(newPath).value_or(0))},
                       {Key("document"), document},
                       {Key("policies"), values}};
    if (isInPlace) {
        object.insert(Key("inPlace"), 1);
    }
    const QByteArray rest = QJsonDocument(object).toJson(QJsonDocument::Compact);
    const QByteArray header = headerBegin + QByteArray("1,") + rest.mid(1) + '\n';
    if (created->write(header) != header.size()) {
        problem = created->errorString();
        created.reset();
        QFile::remove(newPath);
        return false;
    }
    file = std::move(created);
    path = newPath;
    return true;
}

bool RunJournal::Open(const QString& existingPath)
{
    auto opened = std::make_unique<QFile>();
    // For appending: host and server write in turn.
    if (!OpenOwnFile(*opened, existingPath, OwnFileUse::Append, problem)) {
        return false;
    }
    // A truncated line must not swallow the next one.
    opened->seek(std::max<qint64>(0, opened->size() - 1));
    isWithinLine = opened->read(1) != "\n";
    file = std::move(opened);
    path = existingPath;
    return true;
}

void RunJournal::Begin(int index, const JournalState::Beginning& beginning)
{
    QJsonObject line{{Key("begin"), index}, {Key("output"), beginning.output}};
    if (!beginning.before.isEmpty()) {
        line.insert(Key("before"), beginning.before);
    }
    Write(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

void RunJournal::Settle(int index, const JournalState::Result& result)
{
    QJsonObject line{{ResultWord(result.kind), index}, {Key("output"), result.output}};
    if (result.kind != Kind::Written) {
        line.insert(Key("code"), result.errorCode);
        line.insert(Key("reason"), result.reason);
    }
    if (!result.warnings.isEmpty()) {
        line.insert(Key("warnings"), JsonOf(result.warnings));
    }
    Insert(line, result.facts);
    if (result.finished.isValid()) {
        line.insert(Key("finished"), TimeText(result.finished));
    }
    Write(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

void RunJournal::Answer(int policy, int value)
{
    Write(QJsonDocument(QJsonObject{{Key("answer"), policy}, {Key("value"), value}}).toJson(QJsonDocument::Compact));
}

void RunJournal::Lose(const QVector<int>& indexes)
{
    WriteList("lost", indexes);
}

void RunJournal::Retry(const QVector<int>& indexes)
{
    WriteList("retry", indexes);
}

void RunJournal::WriteList(const char* key, const QVector<int>& indexes)
{
    QJsonArray list;
    for (const int index : indexes) {
        list.append(index);
    }
    Write(QJsonDocument(QJsonObject{{Key(key), list}}).toJson(QJsonDocument::Compact));
}

void RunJournal::Write(const QByteArray& line)
{
    if (!file) {
        return;
    }
    pending += line + '\n';
    if (WritePending()) {
        if (std::exchange(isMarked, false)) {
            Mark(true);
        }
        return;
    }
    if (!std::exchange(isMarked, true)) {
        Mark(false);
    }
    if (!std::exchange(isFailureKnown, true) && onFailure) {
        onFailure(problem);
    }
}

/// Repeats whole lines where an earlier attempt ended within them, which changes nothing for their reader.
bool RunJournal::WritePending()
{
    const QByteArray bytes = isWithinLine ? '\n' + pending : pending;
    const qint64 written = file->write(bytes);
    if (written == bytes.size()) {
        pending.clear();
        isWithinLine = false;
        return true;
    }
    problem = file->errorString();
    isWithinLine = isWithinLine || written > 0;
    return false;
}

void RunJournal::Mark(bool isComplete)
{
    QFile marked;
    QString ignored;
    // The header of another host may begin differently.
    if (OpenOwnFile(marked, path, OwnFileUse::Change, ignored) && marked.read(markPosition) == headerBegin) {
        marked.write(isComplete ? "1" : "0");
    }
}

} // namespace BatchJob
