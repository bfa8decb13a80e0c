// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobFile.h"

#include "job/values/Phrase.h"

#include "RequestError.h"

#include "job/settings/UnknownParts.h"

#include "ZTBatchDocument.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace BatchHost {

namespace {

/// Why `text` is not a job, for the user.
QString Reason(const QString& text)
{
    QXmlStreamReader reader(text);
    bool hasType = false;
    while (!reader.atEnd()) {
        reader.readNext();
        hasType = hasType || (reader.isDTD() && reader.dtdName() == QLatin1String("batch"));
    }
    if (reader.hasError()) {
        return BatchJob::Phrase::English("line %1, column %2: %3")
            .arg(reader.lineNumber())
            .arg(reader.columnNumber())
            .arg(reader.errorString());
    }
    return hasType ? BatchJob::Phrase::English("its XML is nested too deeply, or declares what a job must not declare")
                   : BatchJob::Phrase::English("it does not begin with <!DOCTYPE batch>");
}

/// The name that the job carries. Reading a document does not set it.
QString NameOf(const QString& text)
{
    QXmlStreamReader reader(text);
    reader.readNextStartElement();
    return reader.attributes().value(QLatin1String("name")).toString();
}

QStringList WarningsAbout(const QString& text, const QString& path)
{
    constexpr int most = 10;
    const QVector<BatchJob::UnknownPart> parts = BatchJob::UnknownParts(text);
    QStringList warnings;
    for (const BatchJob::UnknownPart& part : parts.mid(0, most)) {
        warnings.append(BatchJob::Phrase::English("%1, line %2: this version does not know %3, and ignores it.")
                            .arg(path, QString::number(part.line), part.Text()));
    }
    if (parts.size() > most) {
        warnings.append(BatchJob::Phrase::English(
                            "%1: this version does not know %2 other elements and attributes, and ignores them.")
                            .arg(path, QString::number(parts.size() - most)));
    }
    return warnings;
}

} // namespace

bool CanBeSaved(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        if (character.isSurrogate() || character.unicode() >= 0xFFFE) {
            return false;
        }
    }
    return true;
}

bool IsSavedJob(const QString& path)
{
    constexpr qint64 headSize = 4096;
    QFile file(path);
    // Opening a named pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    QXmlStreamReader reader(file.read(headSize));
    while (!reader.atEnd() && !reader.isDTD() && !reader.isStartElement()) {
        reader.readNext();
    }
    return reader.isDTD() && reader.dtdName() == QLatin1String("batch");
}

QStringList LoadJob(ZTBatchDocument& job, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RequestError{BatchJob::Phrase::English("the job %1 cannot be read: %2").arg(path, file.errorString())};
    }
    constexpr qint64 largestJob = 512 << 20;
    if (file.size() > largestJob) {
        throw RequestError{
            BatchJob::Phrase::English("the job %1 is larger than %2 MiB").arg(path, QString::number(largestJob >> 20))};
    }
    QTextCodec::ConverterState state;
    const QByteArray bytes = file.readAll();
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0) {
        throw RequestError{BatchJob::Phrase::English("%1 is not a batch job: it is not UTF-8 text").arg(path)};
    }
    if (!job.Deserialize(text)) {
        throw RequestError{BatchJob::Phrase::English("%1 is not a batch job: %2").arg(path, Reason(text))};
    }
    job.SetDocumentName(NameOf(text));
    job.SetFileName(path);
    return WarningsAbout(text, path);
}

void SaveJob(const ZTBatchDocument& job, const QString& path, bool replaceExisting)
{
    const QString text = job.Serialize(nullptr);
    if (!replaceExisting && QFileInfo::exists(path)) {
        throw RequestError{BatchJob::Phrase::English("%1 exists").arg(path), RequestError::Kind::FileExists};
    }
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        throw RequestError{BatchJob::Phrase::English("%1 cannot be written: %2").arg(path, file.errorString())};
    }
}

} // namespace BatchHost
