// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "StructureCheck.h"

#include "FolderGraph.h"
#include "FolderOrder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

namespace {
QString FolderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/'));
}

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class Checker
{
public:
    explicit Checker(const QString& root)
        : root(root)
        , headerFolders(FolderOrder::HeaderFolders(root))
    {
    }

    StructureReport Run();

private:
    QStringList Files(const QStringList& patterns) const;
    void CheckSource(const QString& path);
    void CheckInclude(const QString& name, bool quoted);
    QString Resolve(const QString& name, bool quoted) const;
    void CollectTargets(const QString& path);
    void CheckLinks(const QString& path);
    void CheckLink(QString target);
    void Report(const QString& text);

    const QString root;
    const QStringList headerFolders;
    QHash<QString, QString> partOfTarget;
    FolderGraph graph;
    StructureReport report;

    // The file and line that is being read.
    QString file;
    QString part;
    int line = 0;
};

StructureReport Checker::Run()
{
    const QStringList sources = Files({QStringLiteral("*.h"), QStringLiteral("*.cpp")});
    for (const QString& path : sources)
        CheckSource(path);
    const QStringList lists = Files({QStringLiteral("CMakeLists.txt")});
    for (const QString& path : lists)
        CollectTargets(path);
    for (const QString& path : lists)
        CheckLinks(path);
    const QStringList circles = graph.Circles();
    for (const QString& circle : circles)
        report.findings.append(QStringLiteral("circle between folders: ") + circle);
    return report;
}

QStringList Checker::Files(const QStringList& patterns) const
{
    QStringList found;
    const QStringList tops = FolderOrder::TopFolders();
    for (const QString& top : tops) {
        QDirIterator files(root + u'/' + top, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            found.append(QDir(root).relativeFilePath(files.next()));
    }
    found.sort();
    return found;
}

void Checker::CheckSource(const QString& path)
{
    static const QRegularExpression includeLine(QStringLiteral("^\\s*#\\s*include\\s*([<\"])([^>\"]+)"));
    ++report.sources;
    file = path;
    part = FolderOrder::PartOf(path);
    line = 1;
    if (part.isEmpty()) {
        Report(QStringLiteral("%1 has no place in the order of the folders").arg(FolderOf(path)));
        return;
    }
    const QStringList lines = ReadText(root + u'/' + path).split(u'\n');
    for (line = 1; line <= lines.size(); ++line) {
        const QRegularExpressionMatch match = includeLine.match(lines[line - 1]);
        if (match.hasMatch())
            CheckInclude(match.captured(2), match.captured(1) == QStringLiteral("\""));
    }
}

void Checker::CheckInclude(const QString& name, bool quoted)
{
    static const QRegularExpression generated(QStringLiteral("(^|/)(moc_|ui_)[^/]*$|\\.moc$"));
    ++report.includes;
    if (name.contains(generated)) {
        Report(QStringLiteral("a generated file, which checks without a build cannot read: %1").arg(name));
        return;
    }
    if (FolderOrder::IsImagingHeader(name)) {
        if (!FolderOrder::MayUseImaging(part))
            Report(QStringLiteral("%1 may not use an imaging library: %2").arg(part, name));
        return;
    }
    const QString used = Resolve(name, quoted);
    if (used.isEmpty()) {
        if (quoted)
            Report(QStringLiteral("no such file beside the source, below the root or among the libraries' headers: %1")
                       .arg(name));
        return;
    }
    graph.Add(FolderOf(file), FolderOf(used), QStringLiteral("%1:%2").arg(file).arg(line));
    const QString usedPart = FolderOrder::PartOf(used);
    if (!FolderOrder::MayUse(part, usedPart))
        Report(QStringLiteral("%1 may not use %2: %3").arg(part, usedPart.isEmpty() ? FolderOf(used) : usedPart, name));
}

// The path of the project's file that an include means, relative to the root; empty if it means none.
QString Checker::Resolve(const QString& name, bool quoted) const
{
    QStringList folders;
    if (quoted)
        folders.append(FolderOf(file) + u'/');
    folders.append(QString());
    for (const QString& folder : headerFolders)
        folders.append(folder + u'/');
    for (const QString& folder : qAsConst(folders)) {
        const QString path = QDir::cleanPath(folder + name);
        if (QFileInfo(root + u'/' + path).isFile())
            return path;
    }
    return {};
}

void Checker::CollectTargets(const QString& path)
{
    static const QRegularExpression definition(QStringLiteral("\\badd_(?:library|executable)\\s*\\(\\s*(\\w+)"));
    const QString definingPart = FolderOrder::PartOf(path);
    QRegularExpressionMatchIterator matches = definition.globalMatch(ReadText(root + u'/' + path));
    while (matches.hasNext())
        partOfTarget.insert(matches.next().captured(1), definingPart);
    // Whoever links the library uses its exported headers.
    partOfTarget.insert(QStringLiteral("batchcore"), QStringLiteral("include"));
}

void Checker::CheckLinks(const QString& path)
{
    static const QRegularExpression comment(QStringLiteral("#[^\n]*"));
    static const QRegularExpression call(QStringLiteral("\\btarget_link_libraries\\s*\\(\\s*\\S+([^)]*)\\)"));
    static const QRegularExpression word(QStringLiteral("[^\\s\"]+"));
    file = path;
    part = FolderOrder::PartOf(path);
    if (part.isEmpty())
        return;
    const QString text = ReadText(root + u'/' + path).remove(comment);
    QRegularExpressionMatchIterator calls = call.globalMatch(text);
    while (calls.hasNext()) {
        const QRegularExpressionMatch found = calls.next();
        QRegularExpressionMatchIterator words = word.globalMatch(found.captured(1));
        while (words.hasNext()) {
            const QRegularExpressionMatch target = words.next();
            line = 1 + text.leftRef(found.capturedStart(1) + target.capturedStart()).count(u'\n');
            CheckLink(target.captured());
        }
    }
}

void Checker::CheckLink(QString target)
{
    static const QStringList keywords{QStringLiteral("PUBLIC"), QStringLiteral("PRIVATE"), QStringLiteral("INTERFACE")};
    if (keywords.contains(target) || target.startsWith(u'$'))
        return;
    ++report.links;
    target.remove(QStringLiteral("Velkora::"));
    if (partOfTarget.contains(target)) {
        const QString usedPart = partOfTarget.value(target);
        if (!FolderOrder::MayUse(part, usedPart)) {
            const QString used = usedPart.isEmpty() ? QStringLiteral("a folder without a place") : usedPart;
            Report(QStringLiteral("%1 may not link %2: %3").arg(part, used, target));
        }
    } else if (FolderOrder::IsImagingTarget(target) && !FolderOrder::MayUseImaging(part)) {
        Report(QStringLiteral("%1 may not link an imaging library: %2").arg(part, target));
    } else if (!target.startsWith(QStringLiteral("Qt5::")) && !FolderOrder::MayLinkOtherLibraries(part)) {
        Report(QStringLiteral("%1 may link Qt and other parts only: %2").arg(part, target));
    }
}

void Checker::Report(const QString& text)
{
    report.findings.append(QStringLiteral("%1:%2: %3").arg(file).arg(line).arg(text));
}
} // namespace

StructureReport CheckStructure(const QString& root)
{
    return Checker(root).Run();
}
