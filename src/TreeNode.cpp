// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

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

/// With a sanitizer, each node has its own allocation, so that use after destruction is detected.
#ifdef BATCHCORE_ADDRESS_SANITIZER
constexpr bool nodesShareSlabs = false;
#else
constexpr bool nodesShareSlabs = true;
#endif

/// Whether an object of `size` bytes comes from the pool. Classes of a host that derive from the node do not.
constexpr bool IsPooled(std::size_t size)
{
    return nodesShareSlabs && size == sizeof(TreeNode<BatchNodeData>);
}

ZTSlabPool& NodePool()
{
    // Never destroyed, since nodes may be destroyed later than static objects.
    static auto* const pool = new ZTSlabPool(sizeof(TreeNode<BatchNodeData>));
    return *pool;
}

} // namespace

template<typename T>
void* TreeNode<T>::operator new(std::size_t size)
{
    return IsPooled(size) ? NodePool().Allocate() : ::operator new(size);
}

template<typename T>
void TreeNode<T>::operator delete(void* memory, std::size_t size) noexcept
{
    if (IsPooled(size)) {
        NodePool().Free(memory);
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
    // The list grows while it is processed. Recursion would overflow the stack on deep trees.
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
                // Its neighbours have most likely moved as far. Refreshing as many as were passed keeps the cost in
                // proportion to the search, and lets a walk in either direction find the next ones at once.
                refreshRowHints(row - distance, row + distance);
                return row;
            }
        }
    }
    return -1;
}

/// Updates the row hints of the children from `first` to `last`, clamped to the existing rows.
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

/// The row at which insertChild() inserts `child`.
template<typename T>
int TreeNode<T>::sortedRow(const TreeNode& child) const
{
    // Rows from insertRows() and records that a host changed in place may break the order. The result then depends on
    // each step of the search, and it determines the order in saved jobs: do not change the steps.
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
    // QList moves the shorter side if it has room at both ends, but only prepending creates room at the front.
    if (row < children.size() / 2) {
        children.prepend(child);
        children.move(0, row);
    } else {
        children.insert(row, child);
    }
}

template class TreeNode<BatchNodeData>;
