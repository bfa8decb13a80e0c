#include "RunJournal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace BatchJob {

namespace {

using Kind = JournalState::Result::Kind;

constexpr int version = 1;

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
    state.document = line.value(Key("document")).toString();
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

void ReadLine(const QJsonObject& line, JournalState& state)
{
    const QString output = line.value(Key("output")).toString();
    for (const Kind kind : {Kind::Written, Kind::Skipped, Kind::Failed}) {
        const int index = line.value(ResultWord(kind)).toInt(-1);
        if (index >= 0) {
            state.results.insert(index,
                                 {kind, output, line.value(Key("code")).toInt(), line.value(Key("reason")).toString(),
                                  ReadWarnings(line.value(Key("warnings")).toArray())});
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
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
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
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readLine().endsWith('\n');
}

bool RunJournal::Create(const QString& path, const QString& document, const std::array<int, 5>& policies)
{
    file.setFileName(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        return false;
    }
    QJsonArray values;
    for (const int policy : policies) {
        values.append(policy);
    }
    Write(QJsonDocument(QJsonObject{{Key("journal"), version}, {Key("document"), document}, {Key("policies"), values}})
              .toJson(QJsonDocument::Compact));
    return file.error() == QFileDevice::NoError;
}

bool RunJournal::Open(const QString& path)
{
    file.setFileName(path);
    // For appending: host and server write in turn.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered | QIODevice::ExistingOnly)) {
        return false;
    }
    // A truncated line must not swallow the next one.
    file.seek(std::max<qint64>(0, file.size() - 1));
    if (file.read(1) != "\n") {
        file.write("\n");
    }
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
    Write(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

void RunJournal::Answer(int policy, int value)
{
    Write(QJsonDocument(QJsonObject{{Key("answer"), policy}, {Key("value"), value}}).toJson(QJsonDocument::Compact));
}

void RunJournal::Lose(const QVector<int>& indexes)
{
    QJsonArray lost;
    for (const int index : indexes) {
        lost.append(index);
    }
    Write(QJsonDocument(QJsonObject{{Key("lost"), lost}}).toJson(QJsonDocument::Compact));
}

void RunJournal::Write(const QByteArray& line)
{
    if (file.isOpen()) {
        file.write(line + '\n');
    }
}

} // namespace BatchJob
