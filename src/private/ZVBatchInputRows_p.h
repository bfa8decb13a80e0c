// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTAddressMap_p.h"
#include "ZTBatchInputObserver_p.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QSet>

#include <vector>

/// The rows of a table, as built by Build(). Between builds each cell behaves as if it held a persistent index of the
/// source: it follows a node that moves, and is invalid when the node is removed.
///
/// Real persistent indexes would be too slow: Qt visits all of them at every change of the source, a million for a
/// million files.
class ZVBatchInputRows final : private ZTBatchInputObserver
{
public:
    static constexpr int columnCount = 3;

    struct Cell
    {
        int row = -1;
        int column = -1;
    };

    explicit ZVBatchInputRows(ZTBatchInputModel* source);
    ~ZVBatchInputRows();

    /// Null if it was destroyed; all cells are invalid then.
    ZTBatchInputModel* Source() const { return source; }

    /// Builds the rows from the current tree. Files in folders are included only for `expandedFolders`, valid indexes
    /// of the source or invalid ones.
    void Build(const QSet<QPersistentModelIndex>& expandedFolders);

    int Count() const { return rowCount; }

    /// False for a row that does not exist.
    bool IsFolderRow(int row) const;

    /// The source index of a cell; in a folder row, the folder's for every column. Invalid if the cell is empty or does
    /// not exist.
    QModelIndex IndexAt(int row, int column) const;

    /// The first cell that shows `sourceIndex`, which must be valid. Its node need not exist any more; it is not
    /// dereferenced.
    Cell Find(const QModelIndex& sourceIndex) const;

    /// The first cell whose node was removed.
    Cell FindRemoved() const;

private:
    /// Replaces a persistent index.
    struct Place
    {
        Node* node = nullptr; ///< null if it was removed
        int row = -1;         ///< in the source; for a removed node, the row before its former place
    };

    /// The rows of a folder and its files, or of the top-level files.
    struct Section
    {
        Place folder;                 ///< shown in the folder row
        Node* owner = nullptr;        ///< of the files: the folder or the root; null if it was removed
        const Node* parent = nullptr; ///< of the folder; null if the folder was removed
        int depth = 0;                ///< of the folder: 1 for children of the root, 0 for the top-level files
        int firstRow = 0;
        int firstFile = 0;
        int fileCount = 0;
        bool areFilesInOrder = true; ///< whether their rows in the source ascend

        bool IsTopLevel() const { return depth == 0; }
        int FilesEnd() const { return firstFile + fileCount; }
    };

    struct PendingFolder
    {
        Place place;
        int depth;
    };

    void RowsInserted(const Node& folder, int first, int count) override;
    void RowsLeaving(const Node& folder, int first, int count) override;
    void ModelReset() override;

    void AddChildren(const Section& section, bool withFiles, std::vector<PendingFolder>& pendingFolders);
    void AddSection(const Section& section);

    void MovePlace(Place& place, int row, Node* node);
    void InsertRows(Place& place, const Node& folder, int first, int count);
    void RemoveRows(Place& place, const Node& folder, int first, int count);
    template<typename Change>
    void ChangeFiles(const Section& section, int first, Change change);
    void Forget(Section& section);

    const Section* SectionOfRow(int row) const;
    const Section& SectionOfFile(int file) const;
    QModelIndex IndexOf(const Place& place) const;
    Cell CellOfFile(const Section& section, int file) const;
    void FillNumbers() const;

    const QPointer<ZTBatchInputModel> source;
    std::vector<Section> sections; ///< in the order of the rows, so sub-folders follow their folder
    std::vector<Place> files;      ///< adjacent for each section; the top-level files come first
    int rowCount = 0;
    int topLevelFileCount = 0;
    /// Where each node is shown: the index in `files`, or files.size() plus the index in `sections` for a folder.
    /// Filled by the first search.
    mutable ZTAddressMap numbers;
};
