// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunReport.h"

#include "job/values/Phrase.h"

#include "RequestError.h"
#include "ResultFields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace BatchJob;

namespace BatchHost {

namespace {

QString Quoted(const QString& text)
{
    QString doubled = text;
    doubled.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + doubled + QLatin1Char('"');
}

QString TextOf(const Warnings& warnings)
{
    QStringList texts;
    for (const Warning& warning : warnings) {
        texts.append(QStringLiteral("%1: %2").arg(WarningWord(warning.kind), warning.text));
    }
    return texts.join(QStringLiteral("; "));
}

/// The columns of FactFieldNames(); empty where a field is not known.
QString FactColumnsOf(const FileResult& result)
{
    constexpr int precision = 15; // As many digits as a whole number of bytes may have.
    const QJsonObject fields = FactFieldsOf(result);
    QStringList columns;
    for (const QString& name : FactFieldNames()) {
        const QJsonValue value = fields.value(name);
        columns.append(value.isDouble() ? QString::number(value.toDouble(), 'g', precision) : value.toString());
    }
    return columns.join(QLatin1Char(','));
}

QJsonArray JsonOf(const Warnings& warnings)
{
    QJsonArray array;
    for (const Warning& warning : warnings) {
        array.append(
            QJsonObject{{QStringLiteral("kind"), WarningWord(warning.kind)}, {QStringLiteral("text"), warning.text}});
    }
    return array;
}

} // namespace

RunReport::RunReport(const QString& path)
    : file(path)
    , isJson(path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive))
{
    if (!isJson && !path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) {
        throw RequestError{Phrase::English("the name \"%1\" must end with .csv or .json").arg(path)};
    }
    if (!file.open(QIODevice::WriteOnly)) {
        throw RequestError{Phrase::English("%1 cannot be written: %2").arg(path, file.errorString())};
    }
}

void RunReport::OnStart(const RunInputs& inputs, const QString&)
{
    hasPresets = !inputs.variants.isEmpty();
    for (const QString& input : inputs.files) {
        Entry entry;
        entry.result.input = input;
        entry.result.inputBytes = inputs.bytes.at(entries.size());
        entry.result.preset = inputs.VariantAt(entries.size());
        entries.append(entry);
    }
    for (int i = entries.size() - 1; i >= 0; --i) {
        open.insert({inputs.files.at(i), inputs.VariantAt(i)}, i); // find() gives the one that was inserted last.
    }
    for (const LeftOutFile& leftOut : inputs.leftOut) {
        Entry entry;
        entry.result.input = leftOut.path;
        entry.result.reason =
            Phrase::English("it begins like a %1 file, but its extension is not known").arg(leftOut.format);
        entry.word = QStringLiteral("left out");
        entries.append(entry);
    }
}

void RunReport::OnResult(const FileResult& result, int, int)
{
    const auto entry = open.find({result.input, result.preset});
    if (entry != open.end()) {
        entries[*entry] = {result, ResultWord(result.kind)};
        open.erase(entry);
    }
}

void RunReport::OnEnd(const RunEnd&)
{
    const QByteArray bytes = isJson ? Json() : Csv();
    if (file.write(bytes) != bytes.size() || !file.commit()) {
        error = Phrase::English("the report %1 cannot be written: %2").arg(file.fileName(), file.errorString());
    }
}

QByteArray RunReport::Csv() const
{
    const QString facts = FactFieldNames().join(QLatin1Char(','));
    QString text = QStringLiteral("input,output,result,code,reason,warnings,%1%2\r\n")
                       .arg(facts, hasPresets ? QStringLiteral(",preset") : QString());
    for (const Entry& entry : entries) {
        const FileResult& result = entry.result;
        text += QStringLiteral("%1,%2,%3,%4,%5,%6,%7%8\r\n")
                    .arg(Quoted(result.input), Quoted(result.output), Quoted(entry.word),
                         QString::number(result.errorCode), Quoted(result.reason), Quoted(TextOf(result.warnings)),
                         FactColumnsOf(result), hasPresets ? QLatin1Char(',') + Quoted(result.preset) : QString());
    }
    return text.toUtf8();
}

QByteArray RunReport::Json() const
{
    QJsonArray array;
    for (const Entry& entry : entries) {
        const FileResult& result = entry.result;
        QJsonObject object = FactFieldsOf(result);
        object.insert(QStringLiteral("input"), result.input);
        object.insert(QStringLiteral("output"), result.output);
        object.insert(QStringLiteral("result"), entry.word);
        object.insert(QStringLiteral("code"), result.errorCode);
        object.insert(QStringLiteral("reason"), result.reason);
        object.insert(QStringLiteral("warnings"), JsonOf(result.warnings));
        if (!result.preset.isEmpty()) {
            object.insert(QStringLiteral("preset"), result.preset);
        }
        array.append(object);
    }
    return QJsonDocument(array).toJson(QJsonDocument::Indented);
}

} // namespace BatchHost
