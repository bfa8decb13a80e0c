// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WildcardInputs.h"

#include "job/values/Phrase.h"

#include "FolderReader.h"
#include "InputCollector.h"
#include "NaturalNames.h"
#include "RequestError.h"
#include "Wildcard.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace BatchHost {

namespace {

const QString anyFolders = QStringLiteral("**");

/// Walks down the folders that one pattern without braces describes.
class Walk
{
public:
    Walk(const InputFilter& filter, ExpandedInputs& found)
        : isHiddenTaken(filter.hidden)
        , outputFolder(BatchJob::IdentityOf(filter.outputFolder))
        , found(found)
        , known(found.paths.begin(), found.paths.end())
    {
    }

    void Down(const QString& pattern)
    {
        parts.clear();
        const QStringList all = pattern.split(QLatin1Char('/'));
        for (const QString& part : all) {
            const bool isRepeated = part == anyFolders && !parts.isEmpty() && parts.last() == anyFolders;
            if (!isRepeated) {
                parts.append(part);
            }
        }
        isDeep = parts.contains(anyFolders);
        Enter(QString(), 0);
    }

private:
    /// Goes on from `folder`, which ends with "/" or is empty, with the part at `index`.
    void Enter(const QString& folder, int index)
    {
        // What needs no look into a folder.
        QString path = folder;
        while (index < parts.size() && parts.at(index) != anyFolders && !Wildcard::IsPattern(parts.at(index))) {
            path += parts.at(index);
            path += index + 1 < parts.size() ? QStringLiteral("/") : QString();
            ++index;
        }
        if (index == parts.size()) {
            Take(path);
        } else if (parts.at(index) == anyFolders) {
            EnterAll(path, index);
        } else {
            EnterMatching(path, index);
        }
    }

    void EnterAll(const QString& folder, int index)
    {
        if (index + 1 == parts.size()) {
            const QString name = folder.isEmpty() ? QStringLiteral(".") : folder;
            if (QFileInfo(name).isDir()) {
                Insert(name);
            }
            return;
        }
        QStringList folders{folder};
        for (int i = 0; i < folders.size(); ++i) {
            Enter(folders.at(i), index + 1);
            for (const FolderEntry& entry : EntriesOf(folders.at(i))) {
                const bool isHidden = entry.name.startsWith(QLatin1Char('.')) && !isHiddenTaken;
                if (entry.kind == FolderEntry::Kind::Folder && !entry.isLink && !isHidden && !IsOutput(entry) &&
                    IsUsable(entry, folders.at(i))) {
                    folders.append(folders.at(i) + entry.name + QLatin1Char('/'));
                }
            }
        }
    }

    void EnterMatching(const QString& folder, int index)
    {
        const QString& part = parts.at(index);
        const Wildcard wildcard(part);
        const bool isLast = index + 1 == parts.size();
        for (const FolderEntry& entry : EntriesOf(folder)) {
            const bool isHidden =
                entry.name.startsWith(QLatin1Char('.')) && !isHiddenTaken && !part.startsWith(QLatin1Char('.'));
            const bool isFolder = entry.kind == FolderEntry::Kind::Folder;
            const bool isWanted = isLast ? !isFolder || (!isDeep && !IsOutput(entry)) : isFolder && !IsOutput(entry);
            if (isHidden || !isWanted || !wildcard.Matches(entry.name) || !IsUsable(entry, folder)) {
                continue;
            }
            if (isLast) {
                Insert(folder + entry.name);
            } else {
                Enter(folder + entry.name + QLatin1Char('/'), index + 1);
            }
        }
    }

    /// In natural order. None when there is no such folder.
    QVector<FolderEntry> EntriesOf(const QString& folder)
    {
        const QString path = folder.isEmpty() ? QStringLiteral(".") : folder;
        if (!QFileInfo(path).isDir()) {
            return {};
        }
        const FolderContent content = ReadFolder(path);
        if (!content.error.isEmpty()) {
            AddProblem(BatchJob::Phrase::English("%1 cannot be read: %2").arg(path, content.error));
        }
        QStringList names;
        for (const FolderEntry& entry : content.entries) {
            names.append(entry.name);
        }
        const QStringList keys = NaturalNames(names);
        QVector<int> order(keys.size());
        std::iota(order.begin(), order.end(), 0);
        std::sort(order.begin(), order.end(), [&keys](int a, int b) { return keys.at(a) < keys.at(b); });
        QVector<FolderEntry> sorted;
        for (const int index : order) {
            sorted.append(content.entries.at(index));
        }
        return sorted;
    }

    bool IsOutput(const FolderEntry& entry) const { return outputFolder && entry.identity == outputFolder; }

    bool IsUsable(const FolderEntry& entry, const QString& folder)
    {
        if (!entry.hasName) {
            AddProblem(BatchJob::Phrase::English("%1 has a name that is not valid UTF-8; rename it to use it.")
                           .arg(folder + entry.name));
        } else if (entry.isDangling) {
            AddProblem(BatchJob::Phrase::English("%1 is a dangling link.").arg(folder + entry.name));
        }
        return entry.hasName && !entry.isDangling;
    }

    void Take(const QString& path)
    {
        const QFileInfo info(path);
        if (info.exists() && !(isDeep && info.isDir())) {
            Insert(path);
        }
    }

    void Insert(const QString& path)
    {
        if (!known.contains(path)) {
            known.insert(path);
            found.paths.append(path);
        }
    }

    void AddProblem(const QString& text)
    {
        if (!found.problems.contains(text)) {
            found.problems.append(text);
        }
    }

    const bool isHiddenTaken;
    const std::optional<BatchJob::FileIdentity> outputFolder;
    ExpandedInputs& found;
    QSet<QString> known;
    QStringList parts;
    bool isDeep = false; ///< whether the pattern has "**"
};

/// Adds what `pattern` matches to `all`.
void Expand(const QString& pattern, const InputFilter& filter, ExpandedInputs& all)
{
    ExpandedInputs found;
    Walk walk(filter, found);
    for (const QString& alternative : Wildcard::Alternatives(QDir::fromNativeSeparators(pattern))) {
        // Alternatives may be plain names, whose absence is reported as that of every other input.
        if (Wildcard::IsPattern(alternative)) {
            walk.Down(alternative);
        } else if (!found.paths.contains(alternative)) {
            found.paths.append(alternative);
        }
    }
    if (found.paths.isEmpty() && found.problems.isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("%1 matches no file").arg(pattern)};
    }
    all.paths += found.paths;
    all.problems += found.problems;
}

} // namespace

ExpandedInputs ExpandWildcards(const QStringList& inputs, const InputFilter& filter)
{
    ExpandedInputs all;
    for (const QString& input : inputs) {
        const QFileInfo info(input);
        if (info.exists() || info.isSymLink() || !Wildcard::IsPattern(input)) {
            all.paths.append(input);
        } else {
            Expand(input, filter, all);
        }
    }
    return all;
}

} // namespace BatchHost
