// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderOrder.h"

#include <QDir>
#include <QHash>

#include <algorithm>

namespace {
QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

const QHash<QString, QStringList>& Parts()
{
    static const QHash<QString, QStringList> parts = [] {
        const QString include = Text("include");
        const QString protocol = Text("server/protocol");
        const QString common = Text("hosts/common");
        const QString desktopJob = Text("hosts/desktop/job");
        const QString desktopWindow = Text("hosts/desktop/window");
        return QHash<QString, QStringList>{
            {Text("platform/core"), {}},
            {Text("platform/stylecore"), {}},
            {Text("platform/utils"), {}},
            {include, {Text("platform/core"), Text("platform/stylecore"), Text("platform/utils")}},
            {Text("src"), {include}},
            {Text("examples"), {include}},
            {Text("job"), {include}},
            {protocol, {Text("job")}},
            {Text("server/supervisor"), {protocol}},
            {Text("server/worker"), {protocol}},
            {Text("server/reference"), {Text("server/worker")}},
            {common, {protocol}},
            {Text("hosts/cli"), {common}},
            {desktopJob, {common}},
            {Text("hosts/desktop/jobs"), {desktopJob}},
            {Text("hosts/desktop/pictures"), {desktopJob}},
            {Text("hosts/desktop/preview"), {desktopJob}},
            {Text("hosts/desktop/run"), {desktopJob}},
            {Text("hosts/desktop/settings"), {desktopJob}},
            {desktopWindow,
             {Text("hosts/desktop/jobs"), Text("hosts/desktop/pictures"), Text("hosts/desktop/preview"),
              Text("hosts/desktop/run"), Text("hosts/desktop/settings")}},
            {Text("hosts/desktop"), {desktopWindow}},
        };
    }();
    return parts;
}

bool StartsWithOneOf(const QString& text, const QStringList& starts)
{
    return std::any_of(starts.cbegin(), starts.cend(), [&](const QString& start) { return text.startsWith(start); });
}
} // namespace

QStringList FolderOrder::TopFolders()
{
    return {Text("platform"), Text("include"), Text("src"),  Text("examples"),
            Text("job"),      Text("server"),  Text("hosts")};
}

QStringList FolderOrder::HeaderFolders(const QString& root)
{
    QStringList folders{Text("include"), Text("src/private")};
    const QStringList libraries = QDir(root + Text("/platform")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& library : libraries)
        folders.append(Text("platform/") + library + Text("/include"));
    return folders;
}

QString FolderOrder::PartOf(const QString& path)
{
    for (QString folder = path; !folder.isEmpty(); folder.truncate(std::max(0, folder.lastIndexOf(u'/')))) {
        if (Parts().contains(folder))
            return folder;
    }
    return {};
}

bool FolderOrder::MayUse(const QString& part, const QString& usedPart)
{
    if (part == usedPart)
        return true;
    const QStringList direct = Parts().value(part);
    return std::any_of(direct.cbegin(), direct.cend(), [&](const QString& next) { return MayUse(next, usedPart); });
}

bool FolderOrder::IsImagingHeader(const QString& include)
{
    return StartsWithOneOf(include, {Text("vips/"), Text("libraw/"), Text("exiv2/"), Text("lcms2"), Text("openjpeg")});
}

bool FolderOrder::IsImagingTarget(const QString& target)
{
    return StartsWithOneOf(target, {Text("PkgConfig::vips"), Text("PkgConfig::libraw"), Text("PkgConfig::exiv2"),
                                    Text("PkgConfig::lcms2"), Text("PkgConfig::openjpeg")});
}

bool FolderOrder::MayUseImaging(const QString& part)
{
    return MayUse(part, Text("server/worker"));
}

bool FolderOrder::MayLinkOtherLibraries(const QString& part)
{
    return part != Text("job");
}
