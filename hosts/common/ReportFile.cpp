// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ReportFile.h"

#include "job/values/Phrase.h"

#include "RequestError.h"
#include "ResultFields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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

/// Most numbers are whole, and much faster to write then.
QString TextOf(double number)
{
    constexpr double largestWhole = 1e15;
    constexpr int precision = 15; // As many digits as a whole number of bytes may have.
    const bool isWhole = number >= 0 && number < largestWhole && double(qint64(number)) == number;
    return isWhole ? QString::number(qint64(number)) : QString::number(number, 'g', precision);
}

/// The columns of FactFieldNames(); empty where a field is not known.
QString FactColumnsOf(const FileResult& result)
{
    const QJsonObject fields = FactFieldsOf(result);
    QStringList columns;
    for (const QString& name : FactFieldNames()) {
        const QJsonValue value = fields.value(name);
        columns.append(value.isDouble() ? TextOf(value.toDouble()) : value.toString());
    }
    return columns.join(QLatin1Char(','));
}

QJsonArray ArrayOf(const Warnings& warnings)
{
    QJsonArray array;
    for (const Warning& warning : warnings) {
        array.append(
            QJsonObject{{QStringLiteral("kind"), WarningWord(warning.kind)}, {QStringLiteral("text"), warning.text}});
    }
    return array;
}

} // namespace

ReportFile::ReportFile(const QString& path)
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

void ReportFile::Begin(bool withPresets)
{
    hasPresets = withPresets;
    if (isJson) {
        file.write("[\n");
        return;
    }
    const QString facts = FactFieldNames().join(QLatin1Char(','));
    file.write(QStringLiteral("input,output,result,code,reason,warnings,%1%2\r\n")
                   .arg(facts, hasPresets ? QStringLiteral(",preset") : QString())
                   .toUtf8());
}

void ReportFile::Add(const FileResult& result, const QString& word)
{
    if (isJson && !isEmpty) {
        file.write(",\n");
    }
    isEmpty = false;
    file.write(isJson ? JsonOf(result, word) : CsvOf(result, word));
}

void ReportFile::Commit()
{
    if (isJson) {
        file.write(isEmpty ? "]\n" : "\n]\n");
    }
    if (!file.commit()) {
        error = Phrase::English("the report %1 cannot be written: %2").arg(file.fileName(), file.errorString());
    }
}

QByteArray ReportFile::CsvOf(const FileResult& result, const QString& word) const
{
    return QStringLiteral("%1,%2,%3,%4,%5,%6,%7%8\r\n")
        .arg(Quoted(result.input), Quoted(result.output), Quoted(word), QString::number(result.errorCode),
             Quoted(result.reason), Quoted(TextOf(result.warnings)), FactColumnsOf(result),
             hasPresets ? QLatin1Char(',') + Quoted(result.preset) : QString())
        .toUtf8();
}

/// As an entry of an indented array.
QByteArray ReportFile::JsonOf(const FileResult& result, const QString& word) const
{
    QJsonObject object = FactFieldsOf(result);
    object.insert(QStringLiteral("input"), result.input);
    object.insert(QStringLiteral("output"), result.output);
    object.insert(QStringLiteral("result"), word);
    object.insert(QStringLiteral("code"), result.errorCode);
    object.insert(QStringLiteral("reason"), result.reason);
    object.insert(QStringLiteral("warnings"), ArrayOf(result.warnings));
    if (!result.preset.isEmpty()) {
        object.insert(QStringLiteral("preset"), result.preset);
    }
    constexpr char indent[] = "    ";
    QByteArray text = indent + QJsonDocument(object).toJson(QJsonDocument::Indented).chopped(1);
    return text.replace('\n', QByteArray("\n") + indent);
}

} // namespace BatchHost
