// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "RandomEdits.h"

#include <QtTest>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <vector>

/// Random edits of the model, each repeated on a plain tree without remembered rows, counts or persistent indexes.
/// After every edit the two are compared completely.
class tst_InputModelEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomEdits_data();
    void randomEdits();
};

namespace {

struct PlainNode
{
    int id = 0;
    int type = Folder;
    QString text;
    bool enabled = false;
    QString toolTip;
    std::vector<std::unique_ptr<PlainNode>> children;

    int FileCount() const
    {
        int count = type == Folder ? 0 : 1;
        for (const auto& child : children) {
            count += child->FileCount();
        }
        return count;
    }
};

bool ComesBefore(const PlainNode& left, const PlainNode& right)
{
    if (left.type != right.type) {
        return left.type == Folder;
    }
    return left.text < right.text;
}

class Editor
{
public:
    explicit Editor(unsigned seed)
        : random(seed)
    {
    }

    void Edit()
    {
        switch (Random(10)) {
        case 0:
        case 1:
        case 2:
        case 3:
            InsertBranch();
            break;
        case 4:
        case 5:
            RemoveRows();
            break;
        case 6:
            InsertRows();
            break;
        case 7:
            SetEnabled();
            break;
        case 8:
            SetToolTip();
            break;
        default:
            MakePersistent();
            break;
        }
    }

    /// The first difference between the model and the plain tree; empty if there is none.
    QString Difference()
    {
        std::map<int, QModelIndex> indexes;
        const QString difference = Compare(plain, QModelIndex(), indexes);
        if (!difference.isEmpty()) {
            return difference;
        }
        if (model.GetFileNodesCount() != plain.FileCount()) {
            return QStringLiteral("%1 files, not %2").arg(model.GetFileNodesCount()).arg(plain.FileCount());
        }
        for (const auto& [id, persistent] : persistents) {
            const auto found = indexes.find(id);
            const QModelIndex expected = found == indexes.end() ? QModelIndex() : found->second;
            if (persistent != expected) {
                return QStringLiteral("persistent index of node %1 in row %2, not %3")
                    .arg(id)
                    .arg(persistent.row())
                    .arg(expected.row());
            }
        }
        return QString();
    }

    QString lastEdit;

private:
    struct Place
    {
        PlainNode* node;
        QModelIndex index;
    };

    int Random(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

    /// Any node that may have children, or the top level.
    Place RandomFolder()
    {
        Place place{&plain, QModelIndex()};
        while (Random(3) != 0) {
            std::vector<int> rows;
            for (size_t row = 0; row < place.node->children.size(); ++row) {
                if (place.node->children[row]->type == Folder) {
                    rows.push_back(static_cast<int>(row));
                }
            }
            if (rows.empty()) {
                break;
            }
            const int row = rows[static_cast<size_t>(Random(static_cast<int>(rows.size())))];
            place = {place.node->children[static_cast<size_t>(row)].get(), model.index(row, 0, place.index)};
        }
        return place;
    }

    /// Any node with a row; the node is null in an empty tree.
    Place RandomRow()
    {
        const Place folder = RandomFolder();
        const int count = static_cast<int>(folder.node->children.size());
        if (count == 0) {
            return {nullptr, QModelIndex()};
        }
        const int row = Random(count);
        return {folder.node->children[static_cast<size_t>(row)].get(), model.index(row, 0, folder.index)};
    }

    /// Two equal branches: one for the model, one for the plain tree.
    InputNode* MakeBranch(PlainNode& twin, int depth)
    {
        twin.id = nextId++;
        twin.type = depth > 0 && Random(2) == 0 ? int(Folder) : int(File);
        // Few texts, so that many are equal.
        twin.text = QString(QLatin1Char(Random(2) == 0 ? 'a' : 'A')) + QString::number(Random(6));
        twin.enabled = true;
        if (twin.type == File) {
            return NewFile(twin.text);
        }
        InputNode* const folder = NewFolder(twin.text);
        for (int i = Random(4); i > 0; --i) {
            auto child = std::make_unique<PlainNode>();
            InputNode* const node = MakeBranch(*child, depth - 1);
            folder->insertChild(node);
            folder->data.fileNodesCount += node->data.fileNodesCount;
            const auto place = std::upper_bound(twin.children.begin(), twin.children.end(), child,
                                                [](const auto& a, const auto& b) { return ComesBefore(*a, *b); });
            twin.children.insert(place, std::move(child));
        }
        return folder;
    }

    void InsertBranch()
    {
        const Place folder = RandomFolder();
        auto twin = std::make_unique<PlainNode>();
        const QModelIndex index = model.InsertBranch(MakeBranch(*twin, 4), folder.index);
        lastEdit = QStringLiteral("branch %1 into row %2").arg(twin->text).arg(index.row());

        auto& siblings = folder.node->children;
        const auto before = [](const auto& a, const auto& b) { return ComesBefore(*a, *b); };
        // Only in a sorted list is the place unique. Among rows that insertRows() has put anywhere, the search decides.
        const bool isSorted = std::is_sorted(siblings.begin(), siblings.end(), before);
        const auto place = isSorted ? std::upper_bound(siblings.begin(), siblings.end(), twin, before)
                                    : siblings.begin() + qBound(0, index.row(), static_cast<int>(siblings.size()));
        siblings.insert(place, std::move(twin));
    }

    void InsertRows()
    {
        const Place folder = RandomFolder();
        auto& siblings = folder.node->children;
        const int row = Random(static_cast<int>(siblings.size()) + 4) - 2;
        const int count = Random(4);
        lastEdit = QStringLiteral("%1 default rows at %2").arg(count).arg(row);
        model.insertRows(row, count, folder.index);
        const int position = qBound(0, row, static_cast<int>(siblings.size()));
        for (int i = 0; i < count; ++i) {
            auto node = std::make_unique<PlainNode>();
            node->id = nextId++;
            siblings.insert(siblings.begin() + position + i, std::move(node));
        }
    }

    void RemoveRows()
    {
        const Place folder = RandomFolder();
        auto& siblings = folder.node->children;
        const int size = static_cast<int>(siblings.size());
        const int row = Random(size + 4) - 3;
        const int count = row < 0 ? Random(3 - row) : Random(qMax(1, qMin(4, size - row + 1)));
        lastEdit = QStringLiteral("%1 rows removed from %2 of %3").arg(count).arg(row).arg(size);
        if (row + count > size && row < size) {
            return;
        }
        model.removeRows(row, count, folder.index);
        for (int doomed = row + count - 1; doomed >= qMax(0, row); --doomed) {
            if (doomed < size) {
                siblings.erase(siblings.begin() + doomed);
            }
        }
    }

    void SetEnabled()
    {
        const Place place = RandomRow();
        if (place.node != nullptr) {
            place.node->enabled = Random(2) == 0;
            model.setEnabled(place.index, place.node->enabled);
            lastEdit = QStringLiteral("enabled");
        }
    }

    void SetToolTip()
    {
        const Place place = RandomRow();
        if (place.node != nullptr) {
            place.node->toolTip = QString::number(Random(3));
            model.setToolTip(place.index, place.node->toolTip);
            lastEdit = QStringLiteral("tool tip");
        }
    }

    void MakePersistent()
    {
        const Place place = RandomRow();
        if (place.node != nullptr) {
            persistents.emplace(place.node->id, place.index);
            lastEdit = QStringLiteral("persistent index made");
        }
    }

    QString Compare(const PlainNode& folder, const QModelIndex& index, std::map<int, QModelIndex>& indexes)
    {
        const int count = static_cast<int>(folder.children.size());
        if (model.rowCount(index) != count) {
            return QStringLiteral("node %1 has %2 rows, not %3").arg(folder.id).arg(model.rowCount(index)).arg(count);
        }
        for (int row = 0; row < count; ++row) {
            const PlainNode& child = *folder.children[static_cast<size_t>(row)];
            const QModelIndex childIndex = model.index(row, 0, index);
            indexes[child.id] = childIndex;
            const BatchNodeData& record = *model.getNodeData(childIndex);
            if (record.type != child.type || record.inputText != child.text || record.enabled != child.enabled ||
                record.toolTip != child.toolTip || record.fileNodesCount != child.FileCount()) {
                return QStringLiteral("node %1 in row %2 reads %3").arg(child.id).arg(row).arg(record.inputText);
            }
            if (model.parent(childIndex) != index ||
                model.indexFromNode(static_cast<InputNode*>(childIndex.internalPointer())) != childIndex) {
                return QStringLiteral("node %1 is lost").arg(child.id);
            }
            const QString difference = Compare(child, childIndex, indexes);
            if (!difference.isEmpty()) {
                return difference;
            }
        }
        return QString();
    }

    std::mt19937 random;
    int nextId = 1;
    ZTBatchInputModel model;
    PlainNode plain;
    std::map<int, QPersistentModelIndex> persistents;
};

} // namespace

void tst_InputModelEdits::randomEdits_data()
{
    AddSeeds();
}

void tst_InputModelEdits::randomEdits()
{
    QFETCH(unsigned, seed);

    const QString difference = FirstDifference<Editor>(seed, 300);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_GUILESS_MAIN(tst_InputModelEdits)
#include "tst_inputmodeledits.moc"
