#pragma once

#include "ZTAddressMap_p.h"
#include "ZTBatchInputObserver_p.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QSet>

#include <vector>

/// The rows of a table as Build() made them. Until the next time they keep to their nodes, as if each cell held a
/// persistent index of the source: it follows a node whose place changes and is invalid when the node is gone.
///
/// Persistent indexes themselves would do, but Qt asks each of them at every change of the source, a million of them
/// for a million files.
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

    /// Null once it is destroyed; then all nodes are gone.
    ZTBatchInputModel* Source() const { return source; }

    /// Makes the rows of what the source holds now; of the files in folders only those in `expandedFolders`.
    void Build(const QSet<QPersistentModelIndex>& expandedFolders);

    int Count() const { return rowCount; }

    /// False for a row that does not exist.
    bool IsFolderRow(int row) const;

    /// The index of the source behind a cell; the folder's for every column of a folder row. Invalid for a cell that is
    /// empty or does not exist.
    QModelIndex IndexAt(int row, int column) const;

    /// The first cell that shows `sourceIndex`, which is valid. Whether its node still exists does not matter: it is
    /// not touched.
    Cell Find(const QModelIndex& sourceIndex) const;

    /// The first cell whose node is gone.
    Cell FindGone() const;

private:
    /// What stands for a persistent index.
    struct Place
    {
        Node* node = nullptr; ///< null when it is gone
        int row = -1;         ///< in the source; between its neighbours' rows when the node is gone
    };

    /// A folder's row and those of its files, or those of the top-level files.
    struct Section
    {
        Place folder;                 ///< what the folder row shows
        Node* owner = nullptr;        ///< of the files: the folder, or the root; null when it is gone
        const Node* parent = nullptr; ///< the folder's; null when the folder is gone
        int depth = 0;                ///< of the folder: 1 for one that is right in the root
        int firstRow = 0;
        int firstFile = 0;
        int fileCount = 0;
        bool areFilesInOrder = true; ///< their rows in the source ascend

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
    std::vector<Section> sections; ///< in the order of the rows; behind a folder's the ones of the folders inside it
    std::vector<Place> files;      ///< those of a section stand together; those of the top level come first
    int rowCount = 0;
    int topLevelFileCount = 0;
    /// Where each node is shown, filled by the first search: the number of a file, or behind all of them that of the
    /// section whose folder it is.
    mutable ZTAddressMap numbers;
};
