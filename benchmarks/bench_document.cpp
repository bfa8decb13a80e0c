// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobShape.h"
#include "Stopwatch.h"
#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include <cstdlib>
#include <utility>

namespace {

using Node = TreeNode<BatchNodeData>;

/// One of a million different spellings of the path `folder`, all of the same length: the file system finds each.
QString PathTo(const QString& folder, int number)
{
    constexpr int bits = 20;
    QString path = folder;
    for (int bit = 0; bit < bits; ++bit) {
        path += (number >> bit) % 2 == 0 ? QLatin1String("/./") : QLatin1String("//.");
    }
    return path;
}

Node* NewNode(const QString& text, const QString& path, BatchNodeType type)
{
    auto* const node = new Node;
    node->data.inputText = text;
    node->data.inputInfo = QStringLiteral("6000 x 4000, 24 bit");
    node->data.fileName = path;
    node->data.lastModification = QStringLiteral("2024-05-01T12:00:00");
    node->data.type = type;
    node->data.enabled = true;
    node->data.fileNodesCount = type == File ? 1 : 0;
    return node;
}

/// A document with `nodeCount` nodes.
class Job
{
public:
    Job(const QString& directory, JobShape shape, int nodeCount)
    {
        ZTBatchInputModel* const model = document.GetInputModel();
        Node* outer = nullptr;
        Node* folder = nullptr;
        int foldersBelowOuter = 0;
        for (int i = 0; i < nodeCount; ++i) {
            const QString number = QStringLiteral("%1").arg(i, 8, 10, QLatin1Char('0'));
            const QString path = PathTo(directory, i);
            if (shape == JobShape::Realistic && (outer == nullptr || foldersBelowOuter == foldersPerFolder)) {
                outer = NewNode(QLatin1String("month ") + number, path, Folder);
                model->InsertBranch(outer, QModelIndex());
                foldersBelowOuter = 0;
                folder = nullptr;
            } else if (folder == nullptr ||
                       (shape == JobShape::Realistic && folder->children.size() == filesPerFolder)) {
                folder = NewNode(QLatin1String("day ") + number, path, Folder);
                model->InsertBranch(folder, model->indexFromNode(outer));
                ++foldersBelowOuter;
            } else {
                model->InsertBranch(NewNode(QLatin1String("IMG_") + number, path, File), model->indexFromNode(folder));
            }
        }
    }

    ZTBatchDocument document;
};

/// The baseline: the DOM with the same elements and attributes, used in the obvious way.
class BareDom
{
public:
    explicit BareDom(const ZTBatchDocument& document)
    {
        const QModelIndex first = document.GetInputModel()->index(0, 0);
        root = static_cast<Node*>(first.internalPointer())->parent;
    }

    /// Builds the document and prints it.
    double Write()
    {
        const Stopwatch stopwatch;
        QDomDocument dom(QStringLiteral("batch"));
        QDomElement element = dom.createElement(QStringLiteral("root"));
        element.setAttribute(QStringLiteral("name"), QString());
        dom.appendChild(element);
        const QDomElement input = dom.createElement(QStringLiteral("input"));
        element.appendChild(input);
        QVector<std::pair<const Node*, QDomElement>> folders{{root, input}};
        for (int i = 0; i < folders.size(); ++i) {
            auto [folder, parent] = folders.at(i);
            for (const Node* const node : folder->children) {
                QDomElement child = dom.createElement(QStringLiteral("inputElement"));
                child.setAttribute(QStringLiteral("inputText"), node->data.inputText);
                child.setAttribute(QStringLiteral("inputInfo"), node->data.inputInfo);
                child.setAttribute(QStringLiteral("fileName"), node->data.fileName);
                child.setAttribute(QStringLiteral("type"), node->data.type);
                child.setAttribute(QStringLiteral("lastModification"), node->data.lastModification);
                parent.appendChild(child);
                if (!node->children.isEmpty()) {
                    folders.append({node, child});
                }
            }
        }
        const QString text = dom.toString(4);
        const double time = stopwatch.Nanoseconds();
        if (text.isEmpty()) {
            std::abort();
        }
        return time;
    }

    static double Parse(const QString& text)
    {
        QDomDocument dom;
        const Stopwatch stopwatch;
        const bool isParsed = dom.setContent(text, false);
        const double time = stopwatch.Nanoseconds();
        if (!isParsed) {
            std::abort();
        }
        return time;
    }

private:
    const Node* root;
};

constexpr double mostGrowth = 1.5;

double Write(const ZTBatchDocument& document, QObject* sink)
{
    const Stopwatch stopwatch;
    const QString text = document.Serialize(sink);
    const double time = stopwatch.Nanoseconds();
    if (text.isEmpty()) {
        std::abort();
    }
    return time;
}

/// The share of the file system: looks for every file.
double FindFiles(const ZTBatchDocument& document)
{
    const ZTBatchInputModel* const model = document.GetInputModel();
    int found = 0;
    const Stopwatch stopwatch;
    QVector<QModelIndex> folders{QModelIndex()};
    for (int i = 0; i < folders.size(); ++i) {
        const QModelIndex folder = folders.at(i);
        const int rows = model->rowCount(folder);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model->index(row, 0, folder);
            const BatchNodeData* const record = model->getNodeData(index);
            found += QFileInfo::exists(record->fileName) ? 1 : 0;
            if (record->type == Folder) {
                folders.append(index);
            }
        }
    }
    const double time = stopwatch.Nanoseconds();
    if (found == 0) {
        std::abort();
    }
    return time;
}

double Read(const QString& text)
{
    ZTBatchDocument document;
    const Stopwatch stopwatch;
    const bool isRead = document.Deserialize(text);
    const double time = stopwatch.Nanoseconds();
    if (!isRead || document.GetInputModel()->GetFileNodesCount() == 0) {
        std::abort();
    }
    return time;
}

} // namespace

/// Argument: the greatest number of nodes (1000000). The time of the bare DOM does not include the destruction of its
/// document; Deserialize() does destroy its DOM, so its time includes that.
int main(int argc, char** argv)
{
    const int most = argc > 1 ? std::atoi(argv[1]) : 1000000;
    const QTemporaryDir directory;
    QObject sink;

    for (const JobShape shape : {JobShape::OneFolder, JobShape::Realistic}) {
        std::printf("%s\n", Title(shape));
        Series write("Serialize without sink / bare DOM", mostGrowth);
        Series writeWithSink("Serialize with sink / bare DOM and files", mostGrowth);
        Series read("Deserialize / bare DOM", mostGrowth);
        for (int count = 10000; count <= most; count *= 10) {
            const int repeats = RepeatsFor(count) * 3;
            const Job job(directory.path(), shape, count);
            const QString text = job.document.Serialize(nullptr);
            const double writeTime = Median(repeats, [&] { return Write(job.document, nullptr); });
            const double sinkTime = Median(repeats, [&] { return Write(job.document, &sink); });
            const double diskTime = Median(repeats, [&] { return FindFiles(job.document); });
            const double readTime = Median(repeats, [&] { return Read(text); });
            const double domWriteTime = Median(repeats, [&] { return BareDom(job.document).Write(); });
            const double domParseTime = Median(repeats, [&] { return BareDom::Parse(text); });
            write.Add(count, writeTime / count, domWriteTime / count);
            writeWithSink.Add(count, sinkTime / count, (domWriteTime + diskTime) / count);
            read.Add(count, readTime / count, domParseTime / count);
            const double ratio = (writeTime + readTime) / (domWriteTime + domParseTime);
            std::printf("writing and reading against the bare DOM: x %.2f (goal: at most 1.25)%s\n", ratio,
                        ratio > 1.25 ? "  above the goal" : "");
        }
    }
    return 0;
}
