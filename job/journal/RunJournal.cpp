// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunJournal.h"

#include "Lines.h"
#include "OwnFile.h"
#include "PictureJson.h"

#include "job/values/FileIdentity.h"
#include "job/values/JsonKey.h"
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

// How a plan came to a name.
constexpr char renamed[] = "renamed";
constexpr char overwriting[] = "overwriting";
constexpr char otherFormat[] = "format";

constexpr char byTimes[] = "times";
constexpr char byContents[] = "contents";

std::optional<Update> ReadUpdate(const QString& word)
{
    if (word == QLatin1String(byContents)) {
        return Update{true};
    }
    return word == QLatin1String(byTimes) ? std::optional(Update{}) : std::nullopt;
}

bool ReadHeader(const QJsonObject& line, JournalUse use, JournalState& state)
{
    const QJsonArray policies = line.value(Key("policies")).toArray();
    if (line.value(Key("journal")).toInt() != version || policies.size() != int(state.policies.size())) {
        return false;
    }
    state.isComplete = line.value(Key("complete")).toInt(1) != 0;
    state.beganAt = line.value(Key("since")).toString().toLongLong();
    if (use != JournalUse::Results) {
        state.document = line.value(Key("document")).toString();
    }
    state.isInPlace = line.value(Key("inPlace")).toInt() == 1;
    state.update = ReadUpdate(line.value(Key("update")).toString());
    for (std::size_t i = 0; i < state.policies.size(); ++i) {
        state.policies[i] = policies.at(int(i)).toInt();
    }
    return true;
}

void ReadName(const QJsonObject& line, JournalUse use, JournalState& state)
{
    const int index = line.value(Key("named")).toInt(-1);
    if (index < 0 || use == JournalUse::Results) {
        return;
    }
    const QStringList how = line.value(Key("how")).toString().split(QLatin1Char(' '));
    state.names.insert(index, {line.value(Key("output")).toString(), line.value(Key("format")).toString(),
                               qint64(line.value(Key("number")).toDouble(1)), how.contains(Key(renamed)),
                               how.contains(Key(overwriting)), how.contains(Key(otherFormat))});
}

void ReadLine(const QJsonObject& line, JournalUse use, JournalState& state)
{
    ReadName(line, use, state);
    const QJsonObject makers = line.value(Key("makers")).toObject();
    if (!makers.isEmpty()) {
        state.makers = ReadVersions(makers);
    }
    const QString output = line.value(Key("output")).toString();
    for (const Kind kind : {Kind::Written, Kind::Unchanged, Kind::Skipped, Kind::Failed}) {
        const int index = line.value(ResultWord(kind)).toInt(-1);
        if (index >= 0) {
            state.results.insert(index,
                                 {kind, output, line.value(Key("code")).toInt(), line.value(Key("reason")).toString(),
                                  ReadWarnings(line.value(Key("warnings")).toArray()), ReadFacts(line),
                                  TimeOfText(line.value(Key("finished")).toString()),
                                  ReadStamp(line.value(Key("result")).toObject())});
            if (!state.makers.isEmpty()) {
                state.byMakers.insert(index);
            }
            state.begun.remove(index);
            state.losses.remove(index);
        }
    }
    const int begun = line.value(Key("begin")).toInt(-1);
    if (begun >= 0 && !state.results.contains(begun)) {
        state.begun.insert(begun, {output, line.value(Key("before")).toString()});
        if (line.contains(Key("recipe"))) {
            state.origins.insert(begun,
                                 {line.value(Key("input")).toString(), ReadStamp(line.value(Key("source")).toObject()),
                                  line.value(Key("recipe")).toString()});
        }
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

std::optional<JournalState> ReadJournal(const QString& path, JournalUse use)
{
    QFile file;
    QString problem;
    if (path.isEmpty() || !OpenOwnFile(file, path, OwnFileUse::Read, problem)) {
        return std::nullopt;
    }
    JournalState state;
    bool hasHeader = false;
    for (Lines lines(file); !lines.IsAtEnd();) {
        const QByteArray line = lines.Next();
        const QJsonDocument document = QJsonDocument::fromJson(line);
        const bool isWhole = line.endsWith('\n') && document.isObject();
        if (!hasHeader) {
            if (!isWhole || !ReadHeader(document.object(), use, state)) {
                return std::nullopt;
            }
            hasHeader = true;
        } else if (isWhole) {
            ReadLine(document.object(), use, state);
        }
    }
    return hasHeader ? std::optional(state) : std::nullopt;
}

bool HasJournalBegun(const QString& path)
{
    QFile file;
    QString problem;
    if (!OpenOwnFile(file, path, OwnFileUse::Read, problem)) {
        return false;
    }
    constexpr int block = 1 << 16;
    for (QByteArray bytes = file.read(block); !bytes.isEmpty(); bytes = file.read(block)) {
        if (bytes.contains('\n')) {
            return true;
        }
    }
    return false;
}

bool RunJournal::Create(const QString& newPath, const QString& document, const std::array<int, 5>& policies,
                        bool isInPlace, const std::optional<Update>& update)
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
    if (update) {
        object.insert(Key("update"), QLatin1String(update->comparesContents ? byContents : byTimes));
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

void RunJournal::Begin(int index, const JournalState::Beginning& beginning, const std::optional<ResultOrigin>& origin)
{
    QJsonObject line{{Key("begin"), index}, {Key("output"), beginning.output}};
    if (!beginning.before.isEmpty()) {
        line.insert(Key("before"), beginning.before);
    }
    if (origin) {
        line.insert(Key("input"), origin->input);
        line.insert(Key("source"), JsonOf(origin->stamp));
        line.insert(Key("recipe"), origin->recipe);
    }
    Write(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

void RunJournal::Settle(int index, const JournalState::Result& result)
{
    Write(LineOf(index, result));
}

void RunJournal::SettleAll(const QVector<QPair<int, JournalState::Result>>& results)
{
    QByteArray lines;
    for (const auto& [index, result] : results) {
        lines += LineOf(index, result) + '\n';
    }
    if (!lines.isEmpty()) {
        Write(lines.chopped(1));
    }
}

QByteArray RunJournal::LineOf(int index, const JournalState::Result& result)
{
    QJsonObject line{{ResultWord(result.kind), index}, {Key("output"), result.output}};
    if (!HasResult(result.kind)) {
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
    if (result.stamp.bytes >= 0) {
        line.insert(Key("result"), JsonOf(result.stamp));
    }
    return QJsonDocument(line).toJson(QJsonDocument::Compact);
}

void RunJournal::Answer(int policy, int value)
{
    Write(QJsonDocument(QJsonObject{{Key("answer"), policy}, {Key("value"), value}}).toJson(QJsonDocument::Compact));
}

void RunJournal::FixNames(const QVector<FixedName>& names)
{
    QByteArray lines;
    for (int i = 0; i < names.size(); ++i) {
        const FixedName& name = names.at(i);
        QJsonObject line{{Key("named"), i},
                         {Key("output"), name.output},
                         {Key("format"), name.format},
                         {Key("number"), double(name.number)}};
        QStringList how;
        for (const auto& [isTrue, word] :
             {std::pair(name.isRenamed, renamed), std::pair(name.isOverwriting, overwriting),
              std::pair(name.hasOtherFormat, otherFormat)}) {
            if (isTrue) {
                how.append(Key(word));
            }
        }
        if (!how.isEmpty()) {
            line.insert(Key("how"), how.join(QLatin1Char(' ')));
        }
        lines += QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    }
    if (!lines.isEmpty()) {
        Write(lines.chopped(1));
    }
}

void RunJournal::NoteMakers(const Versions& makers)
{
    Write(QJsonDocument(QJsonObject{{Key("makers"), JsonOf(makers)}}).toJson(QJsonDocument::Compact));
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
