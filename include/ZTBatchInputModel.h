// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <ZVFileBookmark.h>

#include <QAbstractItemModel>
#include <QList>
#include <QString>
#include <QVector>

#include <cstddef>
#include <memory>

class ZTBatchInputObserver;

/// The kind of an input node. The library treats every value other than Folder as a file.
enum BatchNodeType : int { Folder = 0, File = 1 };

/// The record of one input folder or file.
///
/// Two records are equal when `type` and `inputText` are equal; no other field counts. Folders sort before everything
/// else. Records of one type sort by `inputText` in UTF-16 code units, so upper case before lower case. This is no
/// total order: of two records whose types differ and are both not Folder, neither is less and they are not equal, so
/// `>` and
/// `>=` hold in both directions.
struct BATCHCORE_EXPORT BatchNodeData
{
    QString inputText;        ///< names the node for the user; the sort key after `type`
    QString inputInfo;        ///< further information for the user
    QString fileName;         ///< absolute path in Qt's form, with forward slashes
    QString toolTip;          ///< if empty, the path serves as tool tip
    QString lastModification; ///< the file's modification time, as text in a format of the host
    int type = Folder;        ///< a BatchNodeType
    bool enabled = false;     ///< stored for the host; the library does not use it
    int fileNodesCount = 0;   ///< number of file nodes in the subtree, including this node
    ZVFileBookmark bookmark;  ///< keeps access to `fileName`; may be empty

    BatchNodeData();
    BatchNodeData(const BatchNodeData& other);
    BatchNodeData(BatchNodeData&& other) noexcept;
    ~BatchNodeData();
    BatchNodeData& operator=(const BatchNodeData& other);
    BatchNodeData& operator=(BatchNodeData&& other) noexcept;

    bool operator==(const BatchNodeData& other) const;
    bool operator!=(const BatchNodeData& other) const;
    bool operator<(const BatchNodeData& other) const;
    bool operator<=(const BatchNodeData& other) const;
    bool operator>(const BatchNodeData& other) const;
    bool operator>=(const BatchNodeData& other) const;
};

/// A node of a tree that owns its children and keeps them sorted. Instantiated for BatchNodeData only.
///
/// Destroying a node destroys its subtree, without recursion, and removes the node from its parent. Use a tree on one
/// thread at a time, even for reading: lookups update the row that a node caches.
template<typename T>
class TreeNode
{
public:
    BATCHCORE_EXPORT TreeNode();
    BATCHCORE_EXPORT ~TreeNode();

    /// Takes ownership of `child` with its subtree, inserts it at its sorted place, after equal children, and returns
    /// its row. If it is a child of another node, it is removed there first. No fileNodesCount is updated. For null,
    /// does nothing and returns -1.
    BATCHCORE_EXPORT int insertChild(TreeNode* child);

    /// Nodes come from a pool in which nodes that are created one after the other are adjacent.
    BATCHCORE_EXPORT static void* operator new(std::size_t size);
    BATCHCORE_EXPORT static void operator delete(void* memory, std::size_t size) noexcept;

    /// Placement new, as containers use it.
    BATCHCORE_EXPORT static void* operator new(std::size_t size, void* place) noexcept;
    BATCHCORE_EXPORT static void operator delete(void* memory, void* place) noexcept;

    T data;                     ///< the first member, so that a node and its data have the same address
    TreeNode* parent = nullptr; ///< null for a root and for a node outside any tree
    QList<TreeNode*> children;  ///< owned, in ascending order of `data`

private:
    Q_DISABLE_COPY(TreeNode)
    friend class ZTBatchInputModel;

    int childRow(const TreeNode* child) const;
    void refreshRowHints(int first, int last) const;
    int sortedRow(const TreeNode& child) const;
    int rowBehindEqual(int row, const TreeNode& child) const;
    void insertChildAt(int row, TreeNode* child);

    /// The row that the node had in its parent at the last lookup. Only a hint, to be verified: views ask for the
    /// parents of indexes all the time, and it saves them a search through all siblings.
    int rowHint = 0;
};

extern template class TreeNode<BatchNodeData>;

/// The input folders and files of a batch, as a tree with one column.
///
/// The model owns its tree. The root has no row: its children are the top-level rows. Qt::DisplayRole gives the path
/// with native separators; Qt::ToolTipRole gives the tool tip or, if that is empty, the same path. Hosts read
/// everything else through getNodeData(). InsertBranch() and removeRows() keep the fileNodesCount of all folders up to
/// date. Use the model only on the thread that created it. A broken invariant ends the process.
class BATCHCORE_EXPORT ZTBatchInputModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit ZTBatchInputModel(QObject* parent = nullptr);
    ~ZTBatchInputModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// The index of a node of this model's tree; invalid for null and for the root.
    QModelIndex indexFromNode(TreeNode<BatchNodeData>* node) const;

    /// The record of `index`, owned by the model; null for an invalid index. The caller may change it, but no signal is
    /// emitted then, and a node whose `type` or `inputText` changes is not sorted again.
    BatchNodeData* getNodeData(const QModelIndex& index) const;

    /// The number of file nodes in the tree.
    int GetFileNodesCount() const;

    /// Whether the path of any node, of any type, ends in ".heic" in any letter case.
    bool IsHeicFormatExisting() const;

    /// Inserts `count` nodes with default records at `row`, clamped to the existing rows. They are not sorted, and they
    /// do not count as files. Always returns true.
    ///
    /// A count of 0 or less inserts nothing, but both signals are emitted. With a negative count, persistent indexes of
    /// the rows that follow then refer to wrong rows.
    bool insertRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Does nothing and returns false: there is always one column.
    bool insertColumns(int column, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Destroys `count` nodes from `row` on, with their subtrees. Rows below 0 are cut off the range. Does nothing if
    /// the range is then empty or begins after the last row; otherwise its end must not exceed the last row. Always
    /// returns true.
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Does nothing and returns false: there is always one column.
    bool removeColumns(int column, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Takes ownership of `node` with its subtree, inserts it at its sorted place into the folder `parent` (at the top
    /// level, if invalid) and adds its fileNodesCount, which the caller has set, to all folders above. Returns the
    /// node's index. For null, does nothing and returns an invalid index.
    ///
    /// The node is already in the tree when rowsAboutToBeInserted() is emitted: slots of that signal see one row more
    /// than usual, and must not create persistent indexes.
    QModelIndex InsertBranch(TreeNode<BatchNodeData>* node, const QModelIndex& parent);

    /// Emits dataChanged() only if the value changes. Ignores an invalid index.
    void setEnabled(const QModelIndex& index, bool enabled);

    /// Emits dataChanged() at every call, even for the same text. Ignores an invalid index.
    void setLastModification(const QModelIndex& index, const QString& text);

    /// Emits dataChanged() at every call, even for the same text. Ignores an invalid index.
    void setToolTip(const QModelIndex& index, const QString& text);

Q_SIGNALS:
    /// ZTBatchDocument::Deserialize() has moved the whole input of a job into the model.
    void ModelUpdated();

    /// InsertBranch() has inserted a folder at `index`. Emitted once for a branch, whatever folders it contains.
    void FolderInserted(const QModelIndex& index);

protected:
    /// Hides the base's: observers inside the library must learn of a reset before modelReset() is emitted.
    void endResetModel();

private:
    Q_DISABLE_COPY(ZTBatchInputModel)
    friend class ZVBatchInputRows;

    TreeNode<BatchNodeData>* nodeOf(const QModelIndex& index) const;
    TreeNode<BatchNodeData>* nodeOrRoot(const QModelIndex& index) const;

    const std::unique_ptr<TreeNode<BatchNodeData>> root;
    QVector<ZTBatchInputObserver*> observers; ///< not owned; they unregister themselves
};
