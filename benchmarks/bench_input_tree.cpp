#include "Stopwatch.h"
#include "ZTBatchInputModel.h"
#include "ZVBatchInputTableModel.h"

#include <QByteArray>
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

/// How the files of a job are spread: all in one folder, or some hundred to a folder, some folders to a folder.
enum class Shape { OneFolder, Realistic };

constexpr int filesPerFolder = 300;
constexpr int foldersPerFolder = 20;

/// A node as a host makes it right before it hands it over.
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

/// A job of so many files. Their folders are made first; the files are put in by the benchmark.
class Job
{
public:
    Job(Shape shape, int fileCount, bool shuffled = false)
        : shape(shape)
        , order(Numbers(fileCount, shuffled))
    {
        const int folderCount = shape == Shape::OneFolder ? 1 : (fileCount + filesPerFolder - 1) / filesPerFolder;
        Node* parent = nullptr;
        for (int i = 0; i < folderCount; ++i) {
            if (shape == Shape::Realistic && i % foldersPerFolder == 0) {
                parent = NewFolder(i);
                model.InsertBranch(parent, QModelIndex());
            }
            folders.append(NewFolder(i));
            model.InsertBranch(folders.last(), model.indexFromNode(parent));
        }
    }

    int FileCount() const { return order.size(); }

    Node* FolderOf(int file) const { return folders.at(shape == Shape::OneFolder ? 0 : file / filesPerFolder); }

    void InsertFiles()
    {
        for (const int file : order) {
            model.InsertBranch(NewFile(file), model.indexFromNode(FolderOf(file)));
        }
    }

    /// Expands every folder while it has no files yet and the rows are few, then puts the files in without a word to
    /// the table.
    void InsertFilesIntoExpandedFolders(ZVBatchInputTableModel& table)
    {
        for (Node* const folder : folders) {
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

    ZTBatchInputModel model;
    QVector<Node*> folders;

private:
    const Shape shape;
    const QVector<int> order;
};

double InsertSorted(Shape shape, int count)
{
    Job job(shape, count);
    const Stopwatch stopwatch;
    job.InsertFiles();
    return stopwatch.Nanoseconds();
}

double InsertShuffled(Shape shape, int count)
{
    Job job(shape, count, true);
    const Stopwatch stopwatch;
    job.InsertFiles();
    return stopwatch.Nanoseconds();
}

double MakeShuffledNodesOnly(Shape, int count)
{
    const QVector<int> numbers = Numbers(count, true);
    QVector<Node*> nodes;
    nodes.reserve(count);
    const Stopwatch stopwatch;
    for (const int number : numbers) {
        nodes.append(NewFile(number));
    }
    const double time = stopwatch.Nanoseconds();
    qDeleteAll(nodes);
    return time;
}

/// The list of one folder's children alone, with rows as a shuffled order gives them: what moving the siblings takes.
double MoveShuffledSiblingsOnly(Shape, int count)
{
    std::mt19937 random(1);
    QVector<int> rows;
    for (int i = 0; i < count; ++i) {
        rows.append(std::uniform_int_distribution<int>(0, i)(random));
    }
    QList<Node*> children;
    const Stopwatch stopwatch;
    for (const int row : qAsConst(rows)) {
        // As the tree does it: the shorter side moves.
        if (row < children.size() / 2) {
            children.prepend(nullptr);
            children.move(0, row);
        } else {
            children.insert(row, nullptr);
        }
    }
    return stopwatch.Nanoseconds();
}

double RebuildFirst(Shape shape, int count)
{
    Job job(shape, count);
    ZVBatchInputTableModel table(&job.model, nullptr);
    job.InsertFilesIntoExpandedFolders(table);
    const Stopwatch stopwatch;
    table.rebuild();
    return stopwatch.Nanoseconds();
}

double RebuildAgain(Shape shape, int count)
{
    Job job(shape, count);
    ZVBatchInputTableModel table(&job.model, nullptr);
    job.InsertFilesIntoExpandedFolders(table);
    table.rebuild();
    const Stopwatch stopwatch;
    table.rebuild();
    return stopwatch.Nanoseconds();
}

/// Collapses and expands one folder of many, or the only one, while all files are shown.
double ToggleTwice(Shape shape, int count)
{
    Job job(shape, count);
    ZVBatchInputTableModel table(&job.model, nullptr);
    job.InsertFilesIntoExpandedFolders(table);
    table.rebuild();
    const QModelIndex folder = job.model.indexFromNode(job.folders.first());
    const Stopwatch stopwatch;
    table.toggleFolder(folder);
    table.toggleFolder(folder);
    return stopwatch.Nanoseconds();
}

double MapAllFromSource(Shape shape, int count)
{
    Job job(shape, count);
    ZVBatchInputTableModel table(&job.model, nullptr);
    job.InsertFilesIntoExpandedFolders(table);
    table.rebuild();
    int found = 0;
    const Stopwatch stopwatch;
    for (Node* const folder : qAsConst(job.folders)) {
        for (Node* const file : qAsConst(folder->children)) {
            found += table.mapFromSource(job.model.indexFromNode(file)).isValid() ? 1 : 0;
        }
    }
    const double time = stopwatch.Nanoseconds();
    if (found != count) {
        std::abort();
    }
    return time;
}

double RemoveAllAtOnce(Shape shape, int count)
{
    Job job(shape, count);
    job.InsertFiles();
    const Stopwatch stopwatch;
    job.model.removeRows(0, job.model.rowCount());
    return stopwatch.Nanoseconds();
}

double RemoveAllAtOnceWhileShown(Shape shape, int count)
{
    Job job(shape, count);
    ZVBatchInputTableModel table(&job.model, nullptr);
    job.InsertFilesIntoExpandedFolders(table);
    table.rebuild();
    const Stopwatch stopwatch;
    job.model.removeRows(0, job.model.rowCount());
    return stopwatch.Nanoseconds();
}

double RemoveFilesOneByOne(Shape shape, int count)
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

/// All remembered rows are wrong by more than is searched nearby.
double FindRowsAfterChanges(Shape shape, int count)
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

/// What the memory alone asks for: one look at each node, in the order of the tree.
double VisitNodes(Shape shape, int count)
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

/// Persistent indexes alone, without rows of a table.
double MakePersistentIndexes(Shape shape, int count)
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

/// Counted as if one insertion were the whole job: every one passes all persistent indexes of the table.
double InsertOneWhileShown(Shape shape, int count)
{
    constexpr int insertions = 20;
    Job job(shape, count);
    ZVBatchInputTableModel table(&job.model, nullptr);
    job.InsertFilesIntoExpandedFolders(table);
    table.rebuild();
    const Stopwatch stopwatch;
    for (int i = 0; i < insertions; ++i) {
        job.model.InsertBranch(NewFile(count + i), job.model.indexFromNode(job.folders.last()));
    }
    return stopwatch.Nanoseconds() / insertions;
}

struct Case
{
    const char* name;
    double (*measure)(Shape shape, int count);
    double goalInOneFolder;
    double goalInTree;
};

constexpr Case cases[] = {
    {"insert sorted", InsertSorted, 1.5, 1.5},
    {"insert shuffled", InsertShuffled, 2.5, 1.5},
    {"  of that, making the nodes", MakeShuffledNodesOnly, 0, 0},
    {"  of that in one folder, moving the siblings", MoveShuffledSiblingsOnly, 0, 0},
    {"visit the nodes", VisitNodes, 0, 0},
    {"persistent indexes alone", MakePersistentIndexes, 0, 0},
    {"rebuild, first", RebuildFirst, 1.5, 1.5},
    {"rebuild, again", RebuildAgain, 1.5, 1.5},
    {"toggleFolder, twice", ToggleTwice, 1.5, 1.5},
    {"mapFromSource", MapAllFromSource, 1.5, 1.5},
    {"removeRows, all at once", RemoveAllAtOnce, 1.5, 1.5},
    {"removeRows, all at once, shown in a table", RemoveAllAtOnceWhileShown, 1.5, 1.5},
    {"removeRows, one by one", RemoveFilesOneByOne, 1.5, 1.5},
    {"indexFromNode, after changes", FindRowsAfterChanges, 1.5, 1.5},
    {"one insertion while shown, per node shown", InsertOneWhileShown, 0, 0},
};

/// The texts are made before and only shared by the nodes, so that the difference is what the tree itself takes.
void PrintMemory(Shape shape, int count)
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

/// Arguments: the greatest number of nodes (1000000), and a part of the names of the cases to run (all).
int main(int argc, char** argv)
{
    const int most = argc > 1 ? std::atoi(argv[1]) : 1000000;
    const QByteArray wanted = argc > 2 ? argv[2] : "";

    for (const Shape shape : {Shape::OneFolder, Shape::Realistic}) {
        std::printf("%s\n", shape == Shape::OneFolder ? "One folder" : "Realistic tree");
        for (const Case& one : cases) {
            if (!QByteArray(one.name).contains(wanted)) {
                continue;
            }
            Series series(one.name, shape == Shape::OneFolder ? one.goalInOneFolder : one.goalInTree);
            for (int count = 10000; count <= most; count *= 10) {
                series.Add(count, Median(RepeatsFor(count), [&] { return one.measure(shape, count) / count; }));
            }
        }
        PrintMemory(shape, most);
    }
    return 0;
}
