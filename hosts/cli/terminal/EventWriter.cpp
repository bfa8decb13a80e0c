// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EventWriter.h"

#include "Console.h"

#include "hosts/common/ResultFields.h"
#include "hosts/common/options/PolicyOptions.h"
#include "job/values/JsonKey.h"
#include "job/values/TimeText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

constexpr int schemaVersion = 1;

void Write(const char* event, QJsonObject object)
{
    object.insert(Key("event"), Key(event));
    object.insert(Key("time"), TimeText(QDateTime::currentDateTimeUtc()));
    WriteJson(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
}

void InsertPreset(QJsonObject& object, const FileResult& result)
{
    if (!result.preset.isEmpty()) {
        object.insert(Key("preset"), result.preset);
    }
}

/// The warnings about a picture, as events of their own. `isEarlier` as in OnEarlierResult().
void WriteWarnings(const FileResult& result, bool isEarlier)
{
    for (const Warning& warning : result.warnings) {
        QJsonObject object{
            {Key("input"), result.input}, {Key("kind"), WarningWord(warning.kind)}, {Key("text"), warning.text}};
        InsertPreset(object, result);
        if (isEarlier) {
            object.insert(Key("earlier"), true);
        }
        Write("warning", object);
    }
}

QJsonObject CountsOf(const QMap<WarningKind, int>& warnings)
{
    QJsonObject object;
    for (auto it = warnings.begin(); it != warnings.end(); ++it) {
        object.insert(WarningWord(it.key()), *it);
    }
    return object;
}

QJsonObject ResultObject(const FileResult& result)
{
    QJsonObject object = FactFieldsOf(result);
    object.insert(Key("input"), result.input);
    InsertPreset(object, result);
    if (!result.output.isEmpty()) {
        object.insert(Key("output"), result.output);
    }
    if (!HasResult(result.kind)) {
        object.insert(Key("code"), result.errorCode);
        object.insert(Key("reason"), result.reason);
    }
    return object;
}

QString PolicyName(PolicyKind kind)
{
    return PolicyOption(kind).mid(2);
}

} // namespace

void EventWriter::TellWatching(const QString& folder, const QString& outputFolder)
{
    Write("watching", {{Key("version"), schemaVersion}, {Key("folder"), folder}, {Key("output"), outputFolder}});
}

void EventWriter::OnStart(const RunInputs& inputs, const QString& outputFolder)
{
    QJsonObject object{{Key("version"), schemaVersion},
                       {Key("files"), inputs.files.size()},
                       {Key("bytes"), double(inputs.allBytes)},
                       {Key("output"), outputFolder},
                       {Key("leftOut"), inputs.leftOut.size()}};
    QJsonArray presets;
    for (const RunVariant& variant : inputs.variants) {
        presets.append(variant.name);
    }
    if (!presets.isEmpty()) {
        object.insert(Key("presets"), presets);
    }
    Write("start", object);
}

void EventWriter::OnEarlierResult(const FileResult& result)
{
    WriteWarnings(result, true);
    QJsonObject object = ResultObject(result);
    object.insert(Key("earlier"), true);
    Write(qPrintable(ResultWord(result.kind)), object);
}

void EventWriter::OnInWork(const QStringList&, const QString& begun)
{
    Write("begin", {{Key("input"), begun}});
}

void EventWriter::OnResult(const FileResult& result, int done, int files)
{
    WriteWarnings(result, false);
    QJsonObject object = ResultObject(result);
    object.insert(Key("done"), done);
    object.insert(Key("files"), files);
    Write(qPrintable(ResultWord(result.kind)), object);
}

void EventWriter::OnNote(const QString& input, const QString& output, const QString& what, const QString& text)
{
    Write("note", {{Key("input"), input}, {Key("output"), output}, {Key("what"), what}, {Key("text"), text}});
}

void EventWriter::OnLog(const QString& text)
{
    Write("log", {{Key("text"), text}});
}

void EventWriter::OnQuestion(PolicyKind kind, const QString& input, const QString& reason)
{
    Write("question", {{Key("policy"), PolicyName(kind)}, {Key("input"), input}, {Key("reason"), reason}});
}

void EventWriter::OnAnswer(PolicyKind kind, const QString& word, bool isForTheRest)
{
    Write("answer", {{Key("policy"), PolicyName(kind)}, {Key("word"), word}, {Key("rest"), isForTheRest}});
}

void EventWriter::OnServerLost(const QStringList& inWork, bool goesOn)
{
    Write("server-lost", {{Key("inWork"), QJsonArray::fromStringList(inWork)}, {Key("goesOn"), goesOn}});
}

void EventWriter::OnCancelling()
{
    Write("cancelling", {});
}

void EventWriter::OnEnd(const RunEnd& end)
{
    QJsonObject object{{Key("written"), end.written},
                       {Key("unchanged"), end.unchanged},
                       {Key("skipped"), end.skipped},
                       {Key("failed"), end.failed},
                       {Key("notProcessed"), end.NotProcessed()},
                       {Key("seconds"), end.seconds},
                       {Key("cancelled"), end.isCancelled},
                       {Key("serverLost"), end.isServerLost},
                       {Key("warnings"), CountsOf(end.warnings)}};
    if (end.jobErrorCode != 0) {
        object.insert(Key("code"), end.jobErrorCode);
        object.insert(Key("reason"), end.jobError);
    }
    Write("end", object);
}

} // namespace BatchCli
