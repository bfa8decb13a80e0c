#include "ZTBatchInputModel.h"

#include "ZTDiagnostics_p.h"
#include "ZTSlabPool_p.h"

namespace {

constexpr ZTDiagnostics diagnostics("include\\ZTBatchInputModel");

#if defined(__SANITIZE_ADDRESS__)
#define BATCHCORE_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define BATCHCORE_ADDRESS_SANITIZER
#endif
#endif

/// A sanitizer must see each node alone, to find those that are used after their end.
#ifdef BATCHCORE_ADDRESS_SANITIZER
constexpr bool nodesShareSlabs = false;
#else
constexpr bool nodesShareSlabs = true;
#endif

/// Whether an object of `size` bytes comes from the pool. A host may derive from the node.
constexpr bool IsPooled(std::size_t size)
{
    return nodesShareSlabs && size == sizeof(TreeNode<BatchNodeData>);
}

ZTSlabPool& NodePool()
{
    // Never destroyed: nodes that outlive everything else still find it.
    static auto* const pool = new ZTSlabPool(sizeof(TreeNode<BatchNodeData>));
    return *pool;
}

} // namespace

template<typename T>
void* TreeNode<T>::operator new(std::size_t size)
{
    return IsPooled(size) ? NodePool().Take() : ::operator new(size);
}

template<typename T>
void TreeNode<T>::operator delete(void* memory, std::size_t size) noexcept
{
    if (IsPooled(size)) {
        NodePool().GiveBack(memory);
    } else {
        ::operator delete(memory);
    }
}

template<typename T>
void* TreeNode<T>::operator new(std::size_t, void* place) noexcept
{
    return place;
}

template<typename T>
void TreeNode<T>::operator delete(void*, void*) noexcept
{
}

template<typename T>
TreeNode<T>::TreeNode() = default;

template<typename T>
TreeNode<T>::~TreeNode()
{
    // The list grows while it is worked off. A recursion would overflow on deep trees.
    QList<TreeNode*> descendants;
    descendants.swap(children);
    for (int i = 0; i < descendants.size(); ++i) {
        TreeNode* const node = descendants.at(i);
        node->parent = nullptr;
        if (!node->children.isEmpty()) {
            descendants.append(node->children);
            node->children.clear();
        }
        delete node;
    }

    if (parent != nullptr) {
        const int row = parent->childRow(this);
        if (row >= 0) {
            parent->children.removeAt(row);
        }
    }
}

template<typename T>
int TreeNode<T>::insertChild(TreeNode* child)
{
    if (child == nullptr) {
        return -1;
    }
    if (child->parent != nullptr) {
        const int row = child->parent->childRow(child);
        if (row >= 0) {
            child->parent->children.removeAt(row);
        }
    }
    const int row = sortedRow(*child);
    insertChildAt(row, child);
    return row;
}

template<typename T>
int TreeNode<T>::childRow(const TreeNode* child) const
{
    const int count = children.size();
    const int hint = qBound(0, child->rowHint, count - 1);
    if (count > 0 && children.at(hint) == child) {
        return hint;
    }
    const int farthest = qMax(hint, count - 1 - hint);
    for (int distance = 1; distance <= farthest; ++distance) {
        for (const int row : {hint - distance, hint + distance}) {
            if (row >= 0 && row < count && children.at(row) == child) {
                // Its neighbours most likely moved as far. As many are put right as were passed, so that the work stays
                // in proportion to the search, and a walk in any direction finds the next ones at once.
                refreshRowHints(row - distance, row + distance);
                return row;
            }
        }
    }
    return -1;
}

/// Notes where the children in the rows from `first` to `last` stand, as far as there are such rows.
template<typename T>
void TreeNode<T>::refreshRowHints(int first, int last) const
{
    const int end = qMin(last + 1, children.size());
    for (int row = qMax(first, 0); row < end; ++row) {
        if (children.at(row) != nullptr) {
            children.at(row)->rowHint = row;
        }
    }
}

/// The row at which `child` is to be inserted.
template<typename T>
int TreeNode<T>::sortedRow(const TreeNode& child) const
{
    // Rows that insertRows() made, and records that a host changed in place, may break the order. Then the result
    // depends on each step taken here, and it decides the order in saved jobs: the steps stay as they are.
    const int count = children.size();
    if (count == 0) {
        return 0;
    }
    if (count == 1) {
        return children.first()->data <= child.data ? 1 : 0;
    }

    int low = 0;
    int high = count - 1;
    while (low != high) {
        const int middle = (low + high) / 2;
        const TreeNode* const sibling = children.at(middle);
        diagnostics.Assert(sibling != nullptr, 193);
        if (sibling->data < child.data) {
            low = middle + 1;
        } else if (sibling->data == child.data) {
            return rowBehindEqual(middle, child);
        } else {
            high = middle;
        }
    }
    diagnostics.Assert(children.at(low) != nullptr, 193);
    return children.at(low)->data <= child.data ? low + 1 : low;
}

template<typename T>
int TreeNode<T>::rowBehindEqual(int row, const TreeNode& child) const
{
    while (row < children.size()) {
        diagnostics.Assert(children.at(row) != nullptr, 188);
        if (!(children.at(row)->data == child.data)) {
            break;
        }
        ++row;
    }
    return row;
}

template<typename T>
void TreeNode<T>::insertChildAt(int row, TreeNode* child)
{
    child->parent = this;
    child->rowHint = row;
    // Qt moves the shorter side of a list if there is room at both ends; room at the front only comes from prepending.
    if (row < children.size() / 2) {
        children.prepend(child);
        children.move(0, row);
    } else {
        children.insert(row, child);
    }
}

template class TreeNode<BatchNodeData>;
