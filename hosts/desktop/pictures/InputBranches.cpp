// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputBranches.h"

#include <algorithm>
#include <utility>

namespace BatchDesktop {

InputPlace PlaceOf(const QModelIndex& index)
{
    InputPlace place;
    for (QModelIndex at = index; at.isValid(); at = at.parent()) {
        place.append(at.row());
    }
    std::reverse(place.begin(), place.end());
    return place;
}

QModelIndex IndexAt(const ZTBatchInputModel& model, const InputPlace& place)
{
    QModelIndex index;
    for (const int row : place) {
        index = model.index(row, 0, index);
    }
    return index;
}

std::unique_ptr<InputNode> CopyOf(const InputNode& node)
{
    auto copy = std::make_unique<InputNode>();
    copy->data = node.data;
    // Without recursion: trees can be deep.
    std::vector<std::pair<const InputNode*, InputNode*>> open{{&node, copy.get()}};
    while (!open.empty()) {
        const auto [from, to] = open.back();
        open.pop_back();
        to->children.reserve(from->children.size());
        for (const InputNode* const child : from->children) {
            auto* const childCopy = new InputNode;
            childCopy->data = child->data;
            childCopy->parent = to;
            to->children.append(childCopy); // They are in order already.
            if (!child->children.isEmpty()) {
                open.emplace_back(child, childCopy);
            }
        }
    }
    return copy;
}

std::unique_ptr<InputNode> TakeOut(ZTBatchInputModel& model, const InputPlace& place)
{
    const QModelIndex index = IndexAt(model, place);
    std::unique_ptr<InputNode> copy = CopyOf(*NodeOf(index));
    model.removeRows(index.row(), 1, index.parent());
    return copy;
}

void PutBack(ZTBatchInputModel& model, const InputPlace& place, std::unique_ptr<InputNode> branch)
{
    const int wanted = place.last();
    const InputPlace parentPlace = place.mid(0, place.size() - 1);
    const int row = model.InsertBranch(branch.release(), IndexAt(model, parentPlace)).row();
    if (row <= wanted) {
        return;
    }
    // The model inserts after equal siblings. Those that came after this one leave and come back behind it.
    std::vector<std::unique_ptr<InputNode>> later;
    for (int i = wanted; i < row; ++i) {
        later.push_back(TakeOut(model, place));
    }
    for (std::unique_ptr<InputNode>& sibling : later) {
        model.InsertBranch(sibling.release(), IndexAt(model, parentPlace));
    }
}

} // namespace BatchDesktop
