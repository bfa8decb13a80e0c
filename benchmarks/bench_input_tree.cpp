// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobShape.h"
#include "Stopwatch.h"
#include "ZTBatchInputModel.h"
#include "ZVBatchInputTableModel.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPersistentModelIndex>
#include <QString>
#include <QVector>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <random>

namespace {

using Node = TreeNode<BatchNodeData>;

/// A node as a host makes it just before it passes it to the model.
Node* NewNode(const QString& text, BatchNodeType type)
{
    auto* const node = new Node;
    node->data.inputText = text;
    node->data.fileName = QLatin1String("/home/user/pictures/") + text;
    node->data.type = type;
    node->data.enabled = true;
    node->data.fileNodesCount = type == File ? 1 : 0;
    return node;
}

QString FileText(int number)
{
    return QStringLiteral("IMG_%1.jpg").arg(number, 8, 10, QLatin1Char('0'));
}

Node* NewFile(int number)
{
    return NewNode(FileText(number), File);
}

Node* NewFolder(int number)
{
    return NewNode(QStringLiteral("day %1").arg(number, 6, 10, QLatin1Char('0')), Folder);
}

QVector<int> Numbers(int count, bool shuffled)
{
    QVector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    if (shuffled) {
        std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
    }
    return numbers;
}

/// A job of `fileCount` files. The constructor makes only their folders; the benchmark inserts the files.
class Job
{
public:
    Job(JobShape shape, int fileCount, bool shuffled = false)
        : shape(shape)
        , order(Numbers(fileCount, shuffled))
    {
        const int folderCount = shape == JobShape::OneFolder ? 1 : (fileCount + filesPerFolder - 1) / filesPerFolder;
        Node* parent = nullptr;
        for (int i = 0; i < folderCount; ++i) {
            if (shape == JobShape::Realistic && i % foldersPerFolder == 0) {
                parent = NewFolder(i);
                model.InsertBranch(parent, QModelIndex());
            }
            folders.append(NewFolder(i));
            model.InsertBranch(folders.last(), model.indexFromNode(parent));
        }
    }

    int FileCount() const { return order.size(); }

    Node* FolderOf(int file) const { return folders.at(shape == JobShape::OneFolder ? 0 : file / filesPerFolder); }

    void InsertFiles()
    {
        for (const int file : order) {
            model.InsertBranch(NewFile(file), model.indexFromNode(FolderOf(file)));
        }
    }

    ZTBatchInputModel model;
    QVector<Node*> folders;

protected:
    const JobShape shape;
    const QVector<int> order;
};

/// A job with a table in which every folder is expanded. The table has no rows for the files until its next rebuild.
class ExpandedJob : public Job
{
public:
    ExpandedJob(JobShape shape, int fileCount)
        : Job(shape, fileCount)
        , table(&model, nullptr)
    {
        // Expanded while there are few rows. Then the files are inserted without the model, so that the table does not
        // notice.
        for (Node* const folder : qAsConst(folders)) {
            table.toggleFolder(model.indexFromNode(folder));
        }
        for (const int file : order) {
            Node* const folder = FolderOf(file);
            folder->insertChild(NewFile(file));
            for (Node* above = folder; above != nullptr; above = above->parent) {
                ++above->data.fileNodesCount;
            }
        }
    }

    ZVBatchInputTableModel table;
};

double InsertSorted(JobShape shape, int count)
{
    Job job(shape, count);
    const Stopwatch stopwatch;
    job.InsertFiles();
    return stopwatch.Nanoseconds();
}

double InsertShuffled(JobShape shape, int count)
{
    Job job(shape, count, true);
    const Stopwatch stopwatch;
    job.InsertFiles();
    return stopwatch.Nanoseconds();
}

/// The same nodes in the same order in bare lists, one for each folder, without a model.
class BareLists
{
public:
    BareLists(JobShape shape, int count, bool shuffled)
        : shape(shape)
        , order(Numbers(count, shuffled))
    {
        folders.resize(shape == JobShape::OneFolder ? 1 : (count + filesPerFolder - 1) / filesPerFolder);
    }
    ~BareLists() { DeleteAll(); }

    void InsertFiles()
    {
        for (const int number : order) {
            Node* const file = NewFile(number);
            QList<Node*>& files = folders[shape == JobShape::OneFolder ? 0 : number / filesPerFolder];
            const auto isBefore = [](const Node* left, const Node* right) { return left->data < right->data; };
            const int row = int(std::upper_bound(files.begin(), files.end(), file, isBefore) - files.begin());
            // As in the tree, the shorter side moves.
            if (row < files.size() / 2) {
                files.prepend(file);
                files.move(0, row);
            } else {
                files.insert(row, file);
            }
        }
    }

    void DeleteAll()
    {
        for (QList<Node*>& files : folders) {
            qDeleteAll(files);
            files.clear();
        }
    }

private:
    Q_DISABLE_COPY(BareLists)

    const JobShape shape;
    const QVector<int> order;
    QVector<QList<Node*>> folders;
};

double InsertSortedInLists(JobShape shape, int count)
{
    BareLists lists(shape, count, false);
    const Stopwatch stopwatch;
    lists.InsertFiles();
    return stopwatch.Nanoseconds();
}

double InsertShuffledInLists(JobShape shape, int count)
{
    BareLists lists(shape, count, true);
    const Stopwatch stopwatch;
    lists.InsertFiles();
    return stopwatch.Nanoseconds();
}

double DeleteNodes(JobShape shape, int count)
{
    BareLists lists(shape, count, false);
    lists.InsertFiles();
    const Stopwatch stopwatch;
    lists.DeleteAll();
    return stopwatch.Nanoseconds();
}

double RebuildFirst(JobShape shape, int count)
{
    ExpandedJob job(shape, count);
    const Stopwatch stopwatch;
    job.table.rebuild();
    return stopwatch.Nanoseconds();
}

double RebuildAgain(JobShape shape, int count)
{
    ExpandedJob job(shape, count);
    job.table.rebuild();
    const Stopwatch stopwatch;
    job.table.rebuild();
    return stopwatch.Nanoseconds();
}

/// Collapses and expands one folder while the files of all folders are shown.
double ToggleTwice(JobShape shape, int count)
{
    ExpandedJob job(shape, count);
    job.table.rebuild();
    const QModelIndex folder = job.model.indexFromNode(job.folders.first());
    const Stopwatch stopwatch;
    job.table.toggleFolder(folder);
    job.table.toggleFolder(folder);
    return stopwatch.Nanoseconds();
}

double MapAllFromSource(JobShape shape, int count)
{
    ExpandedJob job(shape, count);
    job.table.rebuild();
    int found = 0;
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        for (Node* const file : qAsConst(folder->children)) {
            found += job.table.mapFromSource(job.model.indexFromNode(file)).isValid() ? 1 : 0;
        }
    }
    const double time = stopwatch.Nanoseconds();
    if (found != count) {
        std::abort();
    }
    return time;
}

double RemoveAllAtOnce(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    const Stopwatch stopwatch;
    job.model.removeRows(0, job.model.rowCount());
    return stopwatch.Nanoseconds();
}

double RemoveAllAtOnceWhileShown(JobShape shape, int count)
{
    ExpandedJob job(shape, count);
    job.table.rebuild();
    const Stopwatch stopwatch;
    job.model.removeRows(0, job.model.rowCount());
    return stopwatch.Nanoseconds();
}

double RemoveFilesOneByOne(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        const QModelIndex index = job.model.indexFromNode(folder);
        while (!folder->children.isEmpty()) {
            job.model.removeRows(0, 1, index);
        }
    }
    return stopwatch.Nanoseconds();
}

/// All remembered rows are wrong, by more than the distance of the search nearby.
double FindRowsAfterChanges(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    for (Node* const folder : qAsConst(job.folders)) {
        job.model.insertRows(0, 100, job.model.indexFromNode(folder));
    }
    int found = 0;
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        for (Node* const file : qAsConst(folder->children)) {
            found += job.model.indexFromNode(file).isValid() ? 1 : 0;
        }
    }
    const double time = stopwatch.Nanoseconds();
    if (found < count) {
        std::abort();
    }
    return time;
}

/// The share of the memory: reads each node once, in the order of the tree.
double VisitNodes(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    int files = 0;
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        for (Node* const file : qAsConst(folder->children)) {
            files += file->data.type;
        }
    }
    const double time = stopwatch.Nanoseconds();
    if (files != count) {
        std::abort();
    }
    return time;
}

/// The same with a write into each node, as rows are remembered there.
double ChangeNodes(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        for (Node* const file : qAsConst(folder->children)) {
            file->data.enabled = !file->data.enabled;
        }
    }
    return stopwatch.Nanoseconds();
}

/// What a table of addresses takes alone: looks each node up in a hash.
double FindInHash(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    QHash<const Node*, int> rows;
    for (Node* const folder : qAsConst(job.folders)) {
        for (const Node* const file : qAsConst(folder->children)) {
            rows.insert(file, rows.size());
        }
    }
    qint64 sum = 0;
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        for (const Node* const file : qAsConst(folder->children)) {
            sum += rows.value(file);
        }
    }
    const double time = stopwatch.Nanoseconds();
    if (sum != qint64(count) * (count - 1) / 2) {
        std::abort();
    }
    return time;
}

/// Only the persistent indexes, without a table: what Qt takes.
double MakePersistentIndexes(JobShape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    QVector<QPersistentModelIndex> indexes;
    indexes.reserve(count);
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        const QModelIndex parent = job.model.indexFromNode(folder);
        const int rows = job.model.rowCount(parent);
        for (int row = 0; row < rows; ++row) {
            indexes.append(job.model.index(row, 0, parent));
        }
    }
    return stopwatch.Nanoseconds();
}

/// The time of one insertion, divided by all nodes: each insertion updates all persistent indexes of the table.
double InsertOneWhileShown(JobShape shape, int count)
{
    constexpr int insertions = 20;
    ExpandedJob job(shape, count);
    job.table.rebuild();
    const Stopwatch stopwatch;
    for (int i = 0; i < insertions; ++i) {
        job.model.InsertBranch(NewFile(count + i), job.model.indexFromNode(job.folders.last()));
    }
    return stopwatch.Nanoseconds() / insertions;
}

using Measure = double (*)(JobShape shape, int count);

/// What the model or the table does, and what the same nodes take without them.
struct Case
{
    const char* name;
    Measure measure;
    Measure baseline;
    double goal;
};

constexpr double mostGrowth = 1.5;

constexpr Case cases[] = {
    {"insert sorted / bare lists", InsertSorted, InsertSortedInLists, mostGrowth},
    {"insert shuffled / bare lists", InsertShuffled, InsertShuffledInLists, mostGrowth},
    {"removeRows, all at once / deleting", RemoveAllAtOnce, DeleteNodes, mostGrowth},
    {"removeRows, all at once, shown / deleting", RemoveAllAtOnceWhileShown, DeleteNodes, mostGrowth},
    {"removeRows, one by one / deleting", RemoveFilesOneByOne, DeleteNodes, mostGrowth},
    {"persistent indexes alone / visiting", MakePersistentIndexes, VisitNodes, 0},
    {"rebuild, first / visiting", RebuildFirst, VisitNodes, mostGrowth},
    {"rebuild, again / visiting", RebuildAgain, VisitNodes, mostGrowth},
    {"toggleFolder, twice / visiting", ToggleTwice, VisitNodes, mostGrowth},
    {"mapFromSource / looking up in a hash", MapAllFromSource, FindInHash, mostGrowth},
    {"indexFromNode, after changes / changing", FindRowsAfterChanges, ChangeNodes, mostGrowth},
    {"one insertion while shown / visiting", InsertOneWhileShown, VisitNodes, mostGrowth},
};

/// The nodes share texts that exist before, so that the difference is the memory of the tree itself.
void PrintMemory(JobShape shape, int count)
{
    QVector<QString> texts;
    for (int i = 0; i < count; ++i) {
        texts.append(FileText(i));
    }
    Job job(shape, count);
    const std::size_t before = AllocatedBytes();
    for (int i = 0; i < count; ++i) {
        auto* const node = new Node;
        node->data.inputText = texts.at(i);
        node->data.fileName = texts.at(i);
        node->data.type = File;
        node->data.fileNodesCount = 1;
        job.model.InsertBranch(node, job.model.indexFromNode(job.FolderOf(i)));
    }
    const std::size_t after = AllocatedBytes();
    std::printf("memory per node without texts, %d nodes: %.1f bytes (goal: at most 600)\n", count,
                static_cast<double>(after - before) / count);
}

} // namespace

/// Arguments: the greatest number of nodes (1000000), and a text that the names of the cases to run contain (all).
int main(int argc, char** argv)
{
    const int most = argc > 1 ? std::atoi(argv[1]) : 1000000;
    const QByteArray wanted = argc > 2 ? argv[2] : "";

    for (const JobShape shape : {JobShape::OneFolder, JobShape::Realistic}) {
        std::printf("%s\n", Title(shape));
        for (const Case& one : cases) {
            if (!QByteArray(one.name).contains(wanted)) {
                continue;
            }
            Series series(one.name, one.goal);
            for (int count = 10000; count <= most; count *= 10) {
                // In turns, and the least of each: other work on the machine only adds.
                double own = one.measure(shape, count);
                double baseline = one.baseline(shape, count);
                for (int again = std::max(2, RepeatsFor(count)); again > 0; --again) {
                    own = std::min(own, one.measure(shape, count));
                    baseline = std::min(baseline, one.baseline(shape, count));
                }
                series.Add(count, own / count, baseline / count);
            }
        }
        PrintMemory(shape, most);
    }
    return 0;
}
