// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "RandomEdits.h"

#include "hosts/desktop/pictures/InputPaths.h"
#include "hosts/desktop/pictures/InputSteps.h"

#include <QRandomGenerator>
#include <QUndoStack>
#include <QtTest>

using namespace BatchDesktop;

namespace {

/// Everything of a tree that a user could notice, a line for each node. `fileName` tells equal siblings apart.
QStringList Lines(const ZTBatchInputModel& model)
{
    QStringList lines{QString::number(model.GetFileNodesCount())};
    const std::function<void(const QModelIndex&, int)> add = [&](const QModelIndex& parent, int depth) {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            const BatchNodeData& data = *model.getNodeData(index);
            lines.append(QStringLiteral("%1%2 %3 %4 %5")
                             .arg(QString(depth, QLatin1Char(' ')), data.inputText, data.fileName,
                                  QString::number(data.type), QString::number(data.fileNodesCount)));
            add(index, depth + 1);
        }
    };
    add(QModelIndex(), 0);
    return lines;
}

QVector<QModelIndex> AllIndexes(const ZTBatchInputModel& model)
{
    QVector<QModelIndex> all;
    for (int row = 0; row < model.rowCount(); ++row) {
        all.append(model.index(row, 0));
    }
    for (int i = 0; i < all.size(); ++i) {
        for (int row = 0; row < model.rowCount(all.at(i)); ++row) {
            all.append(model.index(row, 0, all.at(i)));
        }
    }
    return all;
}

/// Whether `paths` has exactly the nodes of `model`.
bool Agree(const InputPaths& paths, const ZTBatchInputModel& model)
{
    const QVector<QModelIndex> all = AllIndexes(model);
    QSet<const InputNode*> foldersOfFiles;
    for (const QModelIndex& index : all) {
        const InputNode* const node = NodeOf(index);
        if (paths.IndexOf(node->data.fileName) != index) {
            return false;
        }
        if (node->data.type != Folder && index.parent().isValid()) {
            foldersOfFiles.insert(node->parent);
        }
    }
    return paths.Nodes().size() == all.size() && paths.FolderCount() == foldersOfFiles.size();
}

/// Adds, removes, undoes and redoes at random. Few texts, so that many siblings are equal.
class Editor
{
public:
    explicit Editor(unsigned seed)
        : random(seed)
        , paths(model)
    {
        past.append(Lines(model));
    }

    void Edit()
    {
        const int choice = random.bounded(10);
        if (choice < 4) {
            Add();
        } else if (choice < 7) {
            Remove();
        } else if (choice < 9) {
            lastEdit = QStringLiteral("undo");
            history.undo();
        } else {
            lastEdit = QStringLiteral("redo");
            history.redo();
        }
    }

    QString Difference()
    {
        const QStringList now = Lines(model);
        const int at = history.index();
        if (at < past.size() && isKnown && past.at(at) != now) {
            return QStringLiteral("expected\n%1\nbut got\n%2")
                .arg(past.at(at).join(QLatin1Char('\n')), now.join(QLatin1Char('\n')));
        }
        past = past.mid(0, at);
        past.append(now);
        isKnown = true;
        return Agree(paths, model) ? QString() : QStringLiteral("the paths are not those of the model");
    }

private:
    InputNode* RandomNode(int depth)
    {
        const QString text = QString(QLatin1Char(char('a' + random.bounded(3))));
        InputNode* node = nullptr;
        if (depth < 3 && random.bounded(3) == 0) {
            QList<InputNode*> children;
            for (int i = random.bounded(1, 5); i > 0; --i) {
                children.append(RandomNode(depth + 1));
            }
            node = NewFolder(text, children);
        } else {
            node = NewFile(text);
        }
        node->data.fileName = QStringLiteral("/in/%1-%2").arg(text, QString::number(++number));
        return node;
    }

    /// Some branches as one step, which is sometimes merged with the step before.
    void Add()
    {
        lastEdit = QStringLiteral("add");
        const bool isMerged = scan && random.bounded(3) == 0;
        if (!isMerged) {
            scan = std::make_shared<ScanControl>();
        }
        auto step = std::make_unique<AddInputsStep>(model, scan, QStringLiteral("Add"));
        for (int i = random.bounded(1, 5); i > 0; --i) {
            step->Insert(std::unique_ptr<InputNode>(RandomNode(0)), RandomFolder());
        }
        const int before = history.index();
        history.push(step.release());
        isKnown = isKnown && history.index() != before; // A merged step has another state under its number.
        past = past.mid(0, history.index());
    }

    QModelIndex RandomFolder()
    {
        QVector<QModelIndex> folders{QModelIndex()};
        for (const QModelIndex& index : AllIndexes(model)) {
            if (NodeOf(index)->data.type == Folder) {
                folders.append(index);
            }
        }
        return folders.at(random.bounded(folders.size()));
    }

    void Remove()
    {
        lastEdit = QStringLiteral("remove");
        QModelIndexList chosen;
        for (const QModelIndex& index : AllIndexes(model)) {
            if (random.bounded(4) == 0) {
                chosen.append(index);
            }
        }
        std::shuffle(chosen.begin(), chosen.end(), random);
        if (!chosen.isEmpty()) {
            history.push(new RemoveInputsStep(model, chosen, QStringLiteral("Remove")));
            past = past.mid(0, history.index());
        }
    }

    QRandomGenerator random;
    ZTBatchInputModel model;
    InputPaths paths;
    QUndoStack history;
    QVector<QStringList> past; ///< the tree at each index of the history
    bool isKnown = true;
    std::shared_ptr<ScanControl> scan;
    int number = 0;

public:
    QString lastEdit;

    /// All the way back and forth again.
    QString RoundTrip()
    {
        const int end = history.index();
        for (int i = 0; i < 2; ++i) {
            while (history.canUndo()) {
                history.undo();
                if (Lines(model) != past.at(history.index())) {
                    return QStringLiteral("undo to %1").arg(history.index());
                }
            }
            while (history.index() < end) {
                history.redo();
                if (Lines(model) != past.at(history.index())) {
                    return QStringLiteral("redo to %1").arg(history.index());
                }
            }
        }
        return {};
    }
};

} // namespace

/// Adding and removing inputs as steps of the history.
class tst_InputSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomEditsCanBeUndone_data();
    void randomEditsCanBeUndone();
    void equalSiblingsComeBackInTheirOrder();
    void aFolderGoesWithItsLastPicture();
    void portionsOfOneScanAreOneStep();
    void undoingEndsTheScan();
};

void tst_InputSteps::randomEditsCanBeUndone_data()
{
    AddSeeds();
}

void tst_InputSteps::randomEditsCanBeUndone()
{
    QFETCH(unsigned, seed);
    Editor editor(seed);
    for (int step = 0; step < 120; ++step) {
        editor.Edit();
        const QString difference = editor.Difference();
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("step %1, after %2: %3").arg(step).arg(editor.lastEdit, difference)));
    }
    QCOMPARE(editor.RoundTrip(), QString());
}

void tst_InputSteps::equalSiblingsComeBackInTheirOrder()
{
    ZTBatchInputModel model;
    for (const char* path : {"/one/a", "/two/a", "/three/a", "/four/a"}) {
        InputNode* const file = NewFile(QStringLiteral("a"));
        file->data.fileName = QLatin1String(path);
        model.InsertBranch(file, QModelIndex());
    }
    const QStringList before = Lines(model);
    QUndoStack history;
    history.push(new RemoveInputsStep(model, {model.index(2, 0), model.index(0, 0)}, QStringLiteral("Remove")));
    QCOMPARE(model.rowCount(), 2);
    history.undo();
    QCOMPARE(Lines(model), before);
}

void tst_InputSteps::aFolderGoesWithItsLastPicture()
{
    ZTBatchInputModel model;
    model.InsertBranch(
        NewFolder(QStringLiteral("top"),
                  {NewFolder(QStringLiteral("low"), {NewFile(QStringLiteral("a")), NewFile(QStringLiteral("b"))})}),
        QModelIndex());
    const QStringList before = Lines(model);
    const QModelIndex low = model.index(0, 0, model.index(0, 0));
    QUndoStack history;
    history.push(
        new RemoveInputsStep(model, {model.index(0, 0, low), model.index(1, 0, low)}, QStringLiteral("Remove")));
    QCOMPARE(model.rowCount(), 0);
    history.undo();
    QCOMPARE(Lines(model), before);
}

void tst_InputSteps::portionsOfOneScanAreOneStep()
{
    ZTBatchInputModel model;
    QUndoStack history;
    const auto scan = std::make_shared<ScanControl>();
    for (const char* text : {"c", "a", "b"}) {
        auto step = std::make_unique<AddInputsStep>(model, scan, QStringLiteral("Add"));
        step->Insert(std::unique_ptr<InputNode>(NewFile(QLatin1String(text))), QModelIndex());
        history.push(step.release());
    }
    QCOMPARE(history.count(), 1);
    const QStringList after = Lines(model);
    history.undo();
    QCOMPARE(model.rowCount(), 0);
    history.redo();
    QCOMPARE(Lines(model), after);
}

void tst_InputSteps::undoingEndsTheScan()
{
    ZTBatchInputModel model;
    QUndoStack history;
    const auto scan = std::make_shared<ScanControl>();
    auto step = std::make_unique<AddInputsStep>(model, scan, QStringLiteral("Add"));
    step->Insert(std::unique_ptr<InputNode>(NewFile(QStringLiteral("a"))), QModelIndex());
    history.push(step.release());
    QVERIFY(!scan->isUndone);
    history.undo();
    QVERIFY(scan->isUndone);
}

QTEST_GUILESS_MAIN(tst_InputSteps)
#include "tst_inputsteps.moc"
