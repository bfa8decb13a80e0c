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

/// What an input node is. Wherever the library reads a node's type, every value but Folder counts as a file.
enum BatchNodeType : int { Folder = 0, File = 1 };

/// The record of one input folder or file.
///
/// Two records are equal when their types and their texts are; nothing else takes part. In the order folders come
/// before everything else, and records of one type go by their text in UTF-16 code units, so upper case before lower
/// case. It is no total order: of two records of different types that are not folders neither is less, and they are
/// not equal, so that each of them is both greater and greater or equal.
struct BATCHCORE_EXPORT BatchNodeData
{
    QString inputText;        ///< names the node for the user; the sort key after the type
    QString inputInfo;        ///< informs the user further
    QString fileName;         ///< absolute path in Qt's form, with forward slashes
    QString toolTip;          ///< empty: the path serves as tool tip
    QString lastModification; ///< the file's modification stamp, a text that only the host reads
    int type = Folder;        ///< a BatchNodeType
    bool enabled = false;     ///< kept for the host; the library takes no notice of it
    int fileNodesCount = 0;   ///< how many file nodes the subtree has, the node itself included
    ZVFileBookmark bookmark;  ///< keeps the access to `fileName`; empty when nobody asked for it

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

/// A node of a tree that owns its children and keeps them sorted. Exists for BatchNodeData only.
///
/// Destroying a node destroys its subtree, however deep, and takes the node out of its parent. Use a tree on one
/// thread at a time, even for reading: looking a node up refreshes what it remembers about its place.
template<typename T>
class TreeNode
{
public:
    BATCHCORE_EXPORT TreeNode();
    BATCHCORE_EXPORT ~TreeNode();

    /// Adopts `child` with its subtree at its place in the order and returns the row where it stands now; behind the
    /// children that are equal to it. A child of another node is taken out there first; no fileNodesCount is touched.
    /// Returns -1, and does nothing, for null.
    BATCHCORE_EXPORT int insertChild(TreeNode* child);

    /// Nodes have memory of their own, where those that are made one after the other stand side by side.
    BATCHCORE_EXPORT static void* operator new(std::size_t size);
    BATCHCORE_EXPORT static void operator delete(void* memory, std::size_t size) noexcept;

    /// A node in memory of the caller's, as containers make them.
    BATCHCORE_EXPORT static void* operator new(std::size_t size, void* place) noexcept;
    BATCHCORE_EXPORT static void operator delete(void* memory, void* place) noexcept;

    T data;                     ///< comes first: the address of a node is the address of its data
    TreeNode* parent = nullptr; ///< null for a root and for a node that belongs to nobody
    QList<TreeNode*> children;  ///< owned, in ascending order of their data

private:
    Q_DISABLE_COPY(TreeNode)
    friend class ZTBatchInputModel;

    int childRow(const TreeNode* child) const;
    void refreshRowHints(int first, int last) const;
    int sortedRow(const TreeNode& child) const;
    int rowBehindEqual(int row, const TreeNode& child) const;
    void insertChildAt(int row, TreeNode* child);

    /// Where the node stood in its parent's children when somebody last looked. Only ever a guess, to be checked:
    /// it spares the views, which ask for the parents of indexes all the time, a search through all siblings.
    int rowHint = 0;
};

extern template class TreeNode<BatchNodeData>;

/// The folders and files that a batch takes in, as a tree with one column.
///
/// The model owns its tree. The root has no row: its children are the top-level rows. Qt::DisplayRole shows the path
/// with native separators, Qt::ToolTipRole the tool tip or, without one, the same path; hosts read everything else
/// through getNodeData(). A count of file nodes is kept in every folder and follows InsertBranch() and removeRows().
/// Belongs to the thread that made it; a broken invariant ends the process.
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

    /// The record of `index`, null when that is invalid. It stays the model's; no signal tells of what the caller
    /// changes in it, and a node whose type or text is changed keeps its place.
    BatchNodeData* getNodeData(const QModelIndex& index) const;

    /// How many file nodes the tree has.
    int GetFileNodesCount() const;

    /// Whether any node, of whatever type, has a path that ends in ".heic", upper or lower case.
    bool IsHeicFormatExisting() const;

    /// Adds `count` nodes with default records at `row`, which is moved into the range of rows. They are placed where
    /// the caller says, not where the order would have them, and they count as no files. Always true.
    ///
    /// A count of 0 or less adds nothing but is announced by both signals all the same; below 0 that makes persistent
    /// indexes of the rows behind point to wrong ones.
    bool insertRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Does nothing, returns false: there is one column.
    bool insertColumns(int column, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Destroys `count` nodes from `row` on, with their subtrees. The part of the range before row 0 is left out; a
    /// range that begins behind the last row, or is empty, is none. The rest must be rows that exist. Always true.
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Does nothing, returns false: there is one column.
    bool removeColumns(int column, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Takes ownership of `node` with its subtree, puts it into the folder `parent` (the top level, when invalid) at
    /// its place in the order and adds its fileNodesCount, which the caller has set, to all folders above.
    /// Returns the node's index; an invalid one, with nothing done, for null.
    ///
    /// The node is in the tree already when rowsAboutToBeInserted() comes: handlers of that signal see one row more
    /// than they may expect, and must not make persistent indexes.
    QModelIndex InsertBranch(TreeNode<BatchNodeData>* node, const QModelIndex& parent);

    /// dataChanged() comes only when the value changes. Ignored for an invalid index.
    void setEnabled(const QModelIndex& index, bool enabled);

    /// dataChanged() comes with every call, also for the same text. Ignored for an invalid index.
    void setLastModification(const QModelIndex& index, const QString& text);

    /// dataChanged() comes with every call, also for the same text. Ignored for an invalid index.
    void setToolTip(const QModelIndex& index, const QString& text);

Q_SIGNALS:
    /// A document that was read has been moved into the model, all of it. Emitted by the reader.
    void ModelUpdated();

    /// InsertBranch() has put a folder at `index`; once for the branch, whatever folders are inside it.
    void FolderInserted(const QModelIndex& index);

protected:
    /// Hides the base's: what the library keeps in step with the rows must hear of a reset before modelReset() comes.
    void endResetModel();

private:
    Q_DISABLE_COPY(ZTBatchInputModel)
    friend class ZVBatchInputRows;

    TreeNode<BatchNodeData>* nodeOf(const QModelIndex& index) const;
    TreeNode<BatchNodeData>* nodeOrRoot(const QModelIndex& index) const;

    const std::unique_ptr<TreeNode<BatchNodeData>> root;
    QVector<ZTBatchInputObserver*> observers; ///< not owned; they sign off
};
