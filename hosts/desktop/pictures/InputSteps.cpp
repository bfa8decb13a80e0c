// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputSteps.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace BatchDesktop {

namespace {

/// The outermost nodes of `indexes`; folders all of whose children are among them stand for these.
QSet<InputNode*> OutermostOf(const QModelIndexList& indexes)
{
    QSet<InputNode*> chosen;
    for (const QModelIndex& index : indexes) {
        chosen.insert(NodeOf(index));
    }
    QHash<InputNode*, int> chosenChildren;
    QVector<InputNode*> open;
    for (InputNode* const node : qAsConst(chosen)) {
        open.append(node);
    }
    while (!open.isEmpty()) {
        InputNode* const folder = open.takeLast()->parent;
        const bool isTop = folder->parent == nullptr;
        if (!isTop && ++chosenChildren[folder] == folder->children.size() && !chosen.contains(folder)) {
            chosen.insert(folder);
            open.append(folder);
        }
    }
    QSet<InputNode*> outermost;
    for (InputNode* const node : qAsConst(chosen)) {
        const InputNode* above = node->parent;
        while (above != nullptr && !chosen.contains(const_cast<InputNode*>(above))) {
            above = above->parent;
        }
        if (above == nullptr) {
            outermost.insert(node);
        }
    }
    return outermost;
}

/// Adds the paths of the folders of a branch.
void AddFolders(const InputNode& branch, QSet<QString>& folders)
{
    QVector<const InputNode*> open{&branch};
    while (!open.isEmpty()) {
        const InputNode* const node = open.takeLast();
        if (node->data.type == Folder) {
            folders.insert(node->data.fileName);
            std::copy(node->children.begin(), node->children.end(), std::back_inserter(open));
        }
    }
}

} // namespace

AddInputsStep::AddInputsStep(ZTBatchInputModel& model, std::shared_ptr<ScanControl> scan, const QString& text)
    : QUndoCommand(text)
    , model(model)
    , scan(std::move(scan))
{
}

AddInputsStep::~AddInputsStep() = default;

void AddInputsStep::Insert(std::unique_ptr<InputNode> branch, const QModelIndex& parent)
{
    AddFolders(*branch, folders);
    Item item;
    item.folder = parent.isValid() ? NodeOf(parent)->data.fileName : QString();
    item.parent = PlaceOf(parent);
    item.row = model.InsertBranch(branch.release(), parent).row();
    Note(std::move(item));
}

void AddInputsStep::Note(Item item)
{
    if (!folders.contains(item.folder)) {
        items.push_back(std::move(item));
    }
}

void AddInputsStep::undo()
{
    scan->isUndone = true;
    isDone = false;
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        item->branch = TakeOut(model, item->parent + InputPlace{item->row});
    }
}

void AddInputsStep::redo()
{
    if (isDone) {
        return;
    }
    isDone = true;
    for (Item& item : items) {
        model.InsertBranch(item.branch.release(), IndexAt(model, item.parent));
    }
}

bool AddInputsStep::mergeWith(const QUndoCommand* other)
{
    const auto& next = static_cast<const AddInputsStep&>(*other); // Only these steps have this id.
    if (next.scan != scan) {
        return false;
    }
    for (Item& item : next.items) {
        Note(std::move(item));
    }
    next.items.clear();
    folders += next.folders;
    return true;
}

RemoveInputsStep::RemoveInputsStep(ZTBatchInputModel& model, const QModelIndexList& indexes, const QString& text)
    : QUndoCommand(text)
    , model(model)
{
    QVector<InputPlace> places;
    const QSet<InputNode*> nodes = OutermostOf(indexes);
    for (InputNode* const node : nodes) {
        places.append(PlaceOf(model.indexFromNode(node)));
    }
    std::sort(places.begin(), places.end(), [](const InputPlace& left, const InputPlace& right) {
        return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end());
    });
    for (const InputPlace& place : qAsConst(places)) {
        const InputPlace parent = place.mid(0, place.size() - 1);
        if (!runs.empty() && runs.back().parent == parent && runs.back().first + runs.back().count == place.last()) {
            ++runs.back().count;
        } else {
            runs.push_back({parent, place.last(), 1, {}});
        }
    }
}

RemoveInputsStep::~RemoveInputsStep() = default;

void RemoveInputsStep::undo()
{
    for (Run& run : runs) {
        for (int i = 0; i < run.count; ++i) {
            PutBack(model, run.parent + InputPlace{run.first + i}, std::move(run.branches[std::size_t(i)]));
        }
        run.branches.clear();
    }
}

void RemoveInputsStep::redo()
{
    for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
        const QModelIndex parent = IndexAt(model, run->parent);
        for (int i = 0; i < run->count; ++i) {
            run->branches.push_back(CopyOf(*NodeOf(model.index(run->first + i, 0, parent))));
        }
        model.removeRows(run->first, run->count, parent);
    }
}

} // namespace BatchDesktop
