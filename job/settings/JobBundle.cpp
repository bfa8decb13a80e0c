// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobBundle.h"

#include "job/values/Phrase.h"

#include <QDir>
#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace BatchJob {

namespace {

const QString rootName = QStringLiteral("BatchJobs");
const QString jobName = QStringLiteral("Job");
const QString nameOfPart = QStringLiteral("name");
const QString folderOfResults = QStringLiteral("folder");

/// Why `bundle` cannot be used; empty if it can.
QString ProblemOf(const JobBundle& bundle)
{
    if (bundle.IsEmpty()) {
        return Phrase::English("it holds no job");
    }
    if (!QDir::isAbsolutePath(bundle.folder)) {
        return Phrase::English("its output folder is \"%1\", but has to be an absolute path").arg(bundle.folder);
    }
    QSet<QString> names;
    for (const JobBundle::Part& part : bundle.parts) {
        if (part.name.isEmpty()) {
            return Phrase::English("a job has no name");
        }
        if (names.contains(part.name)) {
            return Phrase::English("two jobs have the name \"%1\"").arg(part.name);
        }
        names.insert(part.name);
        if (!IsWithin(part.outputFolder, bundle.folder)) {
            return Phrase::English("the job \"%1\" writes to \"%2\", which is not in the output folder, \"%3\"")
                .arg(part.name, part.outputFolder, bundle.folder);
        }
    }
    return {};
}

} // namespace

QString JobBundle::Text() const
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeStartElement(rootName);
    writer.writeAttribute(folderOfResults, folder);
    for (const Part& part : parts) {
        writer.writeStartElement(jobName);
        writer.writeAttribute(nameOfPart, part.name);
        writer.writeAttribute(folderOfResults, part.outputFolder);
        writer.writeCDATA(part.document);
        writer.writeEndElement();
    }
    writer.writeEndElement();
    return text;
}

bool JobBundle::IsIn(const QString& text)
{
    constexpr int headSize = 4096;
    QXmlStreamReader reader(text.left(headSize));
    return reader.readNextStartElement() && reader.name() == rootName;
}

JobBundle JobBundle::Read(const QString& text, QString& problem)
{
    JobBundle bundle;
    QXmlStreamReader reader(text);
    if (reader.readNextStartElement() && reader.name() == rootName) {
        bundle.folder = reader.attributes().value(folderOfResults).toString();
        while (reader.readNextStartElement()) {
            if (reader.name() != jobName) {
                reader.skipCurrentElement();
                continue;
            }
            if (bundle.parts.size() == mostParts) {
                problem = Phrase::English("it holds more than %1 jobs").arg(mostParts);
                return {};
            }
            const QXmlStreamAttributes attributes = reader.attributes();
            Part part{attributes.value(nameOfPart).toString(), {}, attributes.value(folderOfResults).toString()};
            part.document = reader.readElementText();
            bundle.parts.append(part);
        }
    } else if (!reader.hasError()) {
        problem = Phrase::English("it is no bundle of jobs");
        return {};
    }
    // What follows the last element belongs to the text too.
    while (!reader.atEnd() && !reader.hasError()) {
        reader.readNext();
    }
    problem = reader.hasError() ? Phrase::English("line %1, column %2: %3")
                                      .arg(reader.lineNumber())
                                      .arg(reader.columnNumber())
                                      .arg(reader.errorString())
                                : ProblemOf(bundle);
    return problem.isEmpty() ? bundle : JobBundle();
}

bool IsWithin(const QString& folder, const QString& root)
{
    const QString inner = QDir::cleanPath(folder);
    const QString outer = QDir::cleanPath(root);
    return inner == outer || inner.startsWith(outer.endsWith(QLatin1Char('/')) ? outer : outer + QLatin1Char('/'));
}

} // namespace BatchJob
