// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZVBatchInputRows_p.h"

#include "ZTPrefetch_p.h"

#include <QHash>

#include <algorithm>

namespace {

using Node = TreeNode<BatchNodeData>;

static_assert(sizeof(Node) >= ZTAddressMap::minimumObjectSize, "one node would hide another");

Node* ChildAt(const Node& folder, int row)
{
    return row >= 0 && row < folder.children.size() ? folder.children.at(row) : nullptr;
}

} // namespace

ZVBatchInputRows::ZVBatchInputRows(ZTBatchInputModel* source)
    : source(source)
{
    if (source != nullptr) {
        source->observers.append(this);
    }
}

ZVBatchInputRows::~ZVBatchInputRows()
{
    if (source != nullptr) {
        source->observers.removeOne(this);
    }
}

void ZVBatchInputRows::Build(const QSet<QPersistentModelIndex>& expandedFolders)
{
    sections.clear();
    files.clear();
    numbers.Clear();
    rowCount = 0;
    topLevelFileCount = 0;
    if (source == nullptr) {
        return;
    }

    Section topLevel;
    topLevel.owner = source->root.get();
    QHash<const void*, int> expandedRows;
    int childCount = topLevel.owner->children.size();
    for (const QModelIndex& folder : expandedFolders) {
        if (folder.isValid()) {
            const auto* const node = static_cast<const Node*>(folder.internalPointer());
            expandedRows.insert(node, folder.row());
            childCount += node->children.size();
        }
    }
    // Reserved at once: growing would touch twice as much new memory.
    files.reserve(std::size_t(childCount));
    // An explicit stack with the next folder on top: recursion would overflow the thread's stack on deep trees.
    std::vector<PendingFolder> pendingFolders;
    AddChildren(topLevel, true, pendingFolders);
    topLevelFileCount = int(files.size());
    topLevel.fileCount = topLevelFileCount;
    while (!pendingFolders.empty()) {
        const PendingFolder next = pendingFolders.back();
        pendingFolders.pop_back();
        Section section;
        section.folder = next.place;
        section.owner = next.place.node;
        section.parent = section.owner->parent;
        section.depth = next.depth;
        section.firstFile = int(files.size());
        AddChildren(section, expandedRows.value(section.owner, -1) == section.folder.row, pendingFolders);
        section.fileCount = int(files.size()) - section.firstFile;
        AddSection(section);
    }
    if (topLevelFileCount > 0) {
        AddSection(topLevel);
    }
}

bool ZVBatchInputRows::IsFolderRow(int row) const
{
    const Section* const section = SectionOfRow(row);
    return section != nullptr && !section->IsTopLevel() && section->firstRow == row;
}

QModelIndex ZVBatchInputRows::IndexAt(int row, int column) const
{
    const Section* const section = SectionOfRow(row);
    if (section == nullptr || column < 0 || column >= columnCount) {
        return QModelIndex();
    }
    int rowInSection = row - section->firstRow;
    if (!section->IsTopLevel()) {
        if (rowInSection == 0) {
            return IndexOf(section->folder);
        }
        --rowInSection;
    }
    const int file = section->firstFile + rowInSection * columnCount + column;
    return file < section->FilesEnd() ? IndexOf(files[std::size_t(file)]) : QModelIndex();
}

ZVBatchInputRows::Cell ZVBatchInputRows::Find(const QModelIndex& sourceIndex) const
{
    if (source == nullptr) {
        return {};
    }
    if (numbers.IsEmpty()) {
        FillNumbers();
    }
    const int number = numbers.Value(sourceIndex.internalPointer());
    if (number == ZTAddressMap::none) {
        return {};
    }
    if (number < int(files.size())) {
        const bool isThere = IndexOf(files[std::size_t(number)]) == sourceIndex;
        return isThere ? CellOfFile(SectionOfFile(number), number) : Cell();
    }
    const Section& section = sections[std::size_t(number) - files.size()];
    return IndexOf(section.folder) == sourceIndex ? Cell{section.firstRow, 0} : Cell();
}

ZVBatchInputRows::Cell ZVBatchInputRows::FindRemoved() const
{
    for (const Section& section : sections) {
        if (!section.IsTopLevel() && !IndexOf(section.folder).isValid()) {
            return {section.firstRow, 0};
        }
        for (int file = section.firstFile; file < section.FilesEnd(); ++file) {
            if (!IndexOf(files[std::size_t(file)]).isValid()) {
                return CellOfFile(section, file);
            }
        }
    }
    return {};
}

void ZVBatchInputRows::RowsInserted(const Node& folder, int first, int count)
{
    for (Section& section : sections) {
        if (section.parent == &folder) {
            InsertRows(section.folder, folder, first, count);
        }
        if (section.owner == &folder) {
            ChangeFiles(section, first, [&](Place& place) { InsertRows(place, folder, first, count); });
            section.areFilesInOrder = section.areFilesInOrder && count >= 0;
        }
    }
}

void ZVBatchInputRows::RowsLeaving(const Node& folder, int first, int count)
{
    for (auto section = sections.begin(); section != sections.end(); ++section) {
        if (section->parent == &folder) {
            const int row = source->indexFromNode(section->owner).row();
            if (row >= first && row < first + count) {
                const int depth = section->depth;
                Forget(*section);
                while (std::next(section) != sections.end() && std::next(section)->depth > depth) {
                    Forget(*++section);
                }
                continue;
            }
            RemoveRows(section->folder, folder, first, count);
        }
        if (section->owner == &folder) {
            ChangeFiles(*section, first, [&](Place& place) { RemoveRows(place, folder, first, count); });
        }
    }
}

void ZVBatchInputRows::ModelReset()
{
    for (Section& section : sections) {
        Forget(section);
    }
}

/// Adds the files of the section's folder, and pushes its sub-folders on the stack `pendingFolders`, the first on top.
void ZVBatchInputRows::AddChildren(const Section& section, bool withFiles, std::vector<PendingFolder>& pendingFolders)
{
    const auto foldersBefore = std::ptrdiff_t(pendingFolders.size());
    ForEachPrefetched(section.owner->children, [&](int row, Node* child) {
        if (child->data.type == Folder) {
            pendingFolders.push_back({{child, row}, section.depth + 1});
        } else if (withFiles) {
            files.push_back({child, row});
        }
    });
    std::reverse(pendingFolders.begin() + foldersBefore, pendingFolders.end());
}

void ZVBatchInputRows::AddSection(const Section& section)
{
    sections.push_back(section);
    sections.back().firstRow = rowCount;
    rowCount += (section.IsTopLevel() ? 0 : 1) + (section.fileCount + columnCount - 1) / columnCount;
}

/// Moves `place` to `row`, where `node` is now. A persistent index does the same: it adjusts its row and refers to
/// whatever node is there.
void ZVBatchInputRows::MovePlace(Place& place, int row, Node* node)
{
    place.row = row;
    if (place.node != nullptr && place.node != node) {
        place.node = node;
        numbers.Clear();
    }
}

void ZVBatchInputRows::InsertRows(Place& place, const Node& folder, int first, int count)
{
    if (place.row >= first) {
        MovePlace(place, place.row + count, ChildAt(folder, place.row + count));
    }
}

void ZVBatchInputRows::RemoveRows(Place& place, const Node& folder, int first, int count)
{
    if (place.row >= first + count) {
        MovePlace(place, place.row - count, ChildAt(folder, place.row));
    } else if (place.row >= first) {
        place = {nullptr, first - 1};
    }
}

/// Calls `change(place)` for each file at row `first` or later, and possibly for others.
template<typename Change>
void ZVBatchInputRows::ChangeFiles(const Section& section, int first, Change change)
{
    for (int file = section.FilesEnd(); file-- > section.firstFile;) {
        Place& place = files[std::size_t(file)];
        if (place.row < first && section.areFilesInOrder) {
            return;
        }
        change(place);
    }
}

/// Marks all nodes that the section shows as removed.
void ZVBatchInputRows::Forget(Section& section)
{
    section.owner = nullptr;
    section.parent = nullptr;
    section.folder.node = nullptr;
    for (int file = section.firstFile; file < section.FilesEnd(); ++file) {
        files[std::size_t(file)].node = nullptr;
    }
}

const ZVBatchInputRows::Section* ZVBatchInputRows::SectionOfRow(int row) const
{
    if (row < 0 || row >= rowCount) {
        return nullptr;
    }
    const auto next = std::upper_bound(sections.begin(), sections.end(), row,
                                       [](int wanted, const Section& section) { return wanted < section.firstRow; });
    return &*std::prev(next);
}

const ZVBatchInputRows::Section& ZVBatchInputRows::SectionOfFile(int file) const
{
    if (file < topLevelFileCount) {
        return sections.back();
    }
    // The section of the top-level files, if there is one, comes last.
    const auto foldersEnd = topLevelFileCount > 0 ? std::prev(sections.end()) : sections.end();
    const auto next = std::upper_bound(sections.begin(), foldersEnd, file,
                                       [](int wanted, const Section& section) { return wanted < section.firstFile; });
    return *std::prev(next);
}

QModelIndex ZVBatchInputRows::IndexOf(const Place& place) const
{
    return place.node == nullptr || source == nullptr ? QModelIndex() : source->createIndex(place.row, 0, place.node);
}

ZVBatchInputRows::Cell ZVBatchInputRows::CellOfFile(const Section& section, int file) const
{
    const int place = file - section.firstFile;
    return {section.firstRow + (section.IsTopLevel() ? 0 : 1) + place / columnCount, place % columnCount};
}

void ZVBatchInputRows::FillNumbers() const
{
    // From the end, so that of several cells with the same node the first one wins.
    for (std::size_t i = sections.size(); i-- > 0;) {
        const Section& section = sections[i];
        for (int file = section.FilesEnd(); file-- > section.firstFile;) {
            if (const Node* const node = files[std::size_t(file)].node) {
                numbers.Insert(node, file);
            }
        }
        if (section.folder.node != nullptr) {
            numbers.Insert(section.folder.node, int(files.size() + i));
        }
    }
}
