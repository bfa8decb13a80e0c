// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "RandomEdits.h"

#include "hosts/desktop/pictures/InputSteps.h"
#include "hosts/desktop/pictures/PictureCells.h"
#include "hosts/desktop/pictures/PictureColumns.h"
#include "hosts/desktop/pictures/PictureFilter.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;

namespace {

/// The models of the views over a job.
struct Models
{
    Models()
        : inputs(*job.Document().GetInputModel())
        , paths(inputs)
        , plan(job)
        , thumbnails(ThumbnailFiles(folder.filePath(QStringLiteral("own")), folder.filePath(QStringLiteral("desktop"))))
        , texts(plan, states, thumbnails)
        , columns(inputs, paths, texts)
        , filter(columns)
        , table(&inputs)
        , cells(table, paths, texts)
    {
    }

    QModelIndex Shown(const QModelIndex& input) const { return filter.mapFromSource(columns.mapFromSource(input)); }

    QTemporaryDir folder;
    EditedJob job;
    ZTBatchInputModel& inputs;
    InputPaths paths;
    NamePlan plan;
    RunStates states;
    Thumbnails thumbnails;
    PictureTexts texts;
    PictureColumns columns;
    PictureFilter filter;
    ZVBatchInputTableModel table;
    PictureCells cells;
};

/// The names of what a model shows, with the folders that they are in.
QStringList ShownNames(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex(),
                       const QString& above = QString())
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QString name = above + model.index(row, PictureColumns::NameColumn, parent).data().toString();
        names.append(name);
        names += ShownNames(model, model.index(row, 0, parent), name + QLatin1Char('/'));
    }
    return names;
}

/// What the filter must show, found without it: folders with pictures that pass, and these.
QStringList ExpectedNames(const Models& models, const QString& text, ShownState state, const QModelIndex& parent,
                          const QString& above)
{
    const bool isFiltered = !text.isEmpty() || state != ShownState::All;
    QStringList names;
    for (int row = 0; row < models.inputs.rowCount(parent); ++row) {
        const QModelIndex index = models.inputs.index(row, 0, parent);
        const InputNode& node = *NodeOf(index);
        const QString name = models.texts.Name(node);
        if (node.data.type == Folder) {
            const QStringList below = ExpectedNames(models, text, state, index, above + name + QLatin1Char('/'));
            if (!isFiltered || !below.isEmpty()) {
                names += above + name;
                names += below;
            }
        } else if (name.contains(text, Qt::CaseInsensitive) && models.texts.Matches(node, state)) {
            names += above + name;
        }
    }
    return names;
}

InputNode* FileOf(const QString& path)
{
    InputNode* const file = NewFile(path.section(QLatin1Char('/'), -1));
    file->data.fileName = path;
    return file;
}

/// Adds, removes, filters and sets states at random.
class Editor
{
public:
    explicit Editor(unsigned seed)
        : random(seed)
        , columnsTester(&models.columns, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , filterTester(&models.filter, QAbstractItemModelTester::FailureReportingMode::QtTest)
        , cellsTester(&models.cells, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
    }

    void Edit()
    {
        switch (random.bounded(6)) {
        case 0:
        case 1:
            lastEdit = QStringLiteral("insert");
            models.inputs.InsertBranch(RandomNode(), RandomIndex(true));
            break;
        case 2: {
            lastEdit = QStringLiteral("remove");
            const QModelIndex index = RandomIndex(false);
            if (index.isValid()) {
                expectedStates.remove(NodeOf(index)->data.fileName);
                models.inputs.removeRows(index.row(), 1, index.parent());
            }
            break;
        }
        case 3:
            lastEdit = QStringLiteral("filter");
            text = random.bounded(2) ? QString() : QString(QLatin1Char(char('A' + random.bounded(4))));
            state = random.bounded(2) ? ShownState::All : ShownState::Failed;
            models.filter.Show(text, state);
            break;
        case 4: {
            lastEdit = QStringLiteral("state");
            const QModelIndex index = RandomIndex(false);
            if (index.isValid() && NodeOf(index)->data.type != Folder) {
                const auto wanted = random.bounded(2) ? RunStates::State::Failed : RunStates::State::Written;
                expectedStates.insert(NodeOf(index)->data.fileName, wanted);
                models.states.Set(NodeOf(index)->data.fileName, wanted);
            }
            break;
        }
        default:
            lastEdit = QStringLiteral("rebuild");
            models.table.rebuild();
        }
    }

    QString Difference()
    {
        const QStringList shown = ShownNames(models.filter);
        const QStringList expected = ExpectedNames(models, text, state, QModelIndex(), QString());
        if (shown != expected) {
            return QStringLiteral("shown: %1; expected: %2")
                .arg(shown.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
        }
        for (auto it = expectedStates.constBegin(); it != expectedStates.constEnd(); ++it) {
            const QModelIndex index = models.columns.mapFromSource(models.paths.IndexOf(it.key()));
            if (index.isValid() &&
                index.siblingAtColumn(PictureColumns::StateColumn).data().toString() != RunStates::Word(*it)) {
                return it.key() + QStringLiteral(" has another state");
            }
        }
        return {};
    }

    QString lastEdit;

private:
    InputNode* RandomNode()
    {
        const auto path = [this] {
            return QStringLiteral("/in/%1%2").arg(QLatin1Char(char('a' + random.bounded(4)))).arg(++number);
        };
        if (random.bounded(3) > 0) {
            return FileOf(path());
        }
        QList<InputNode*> children;
        for (int i = random.bounded(4); i > 0; --i) {
            children.append(FileOf(path()));
        }
        InputNode* const folder = NewFolder(QStringLiteral("folder"), children);
        folder->data.fileName = path();
        return folder;
    }

    /// Any index; invalid for the top.
    QModelIndex RandomIndex(bool isFolder)
    {
        QVector<QModelIndex> all{QModelIndex()};
        for (int i = 0; i < all.size(); ++i) {
            for (int row = 0; row < models.inputs.rowCount(all.at(i)); ++row) {
                const QModelIndex index = models.inputs.index(row, 0, all.at(i));
                if (!isFolder || NodeOf(index)->data.type == Folder) {
                    all.append(index);
                }
            }
        }
        return all.at(random.bounded(all.size()));
    }

    QRandomGenerator random;
    Models models;
    QAbstractItemModelTester columnsTester;
    QAbstractItemModelTester filterTester;
    QAbstractItemModelTester cellsTester;
    QHash<QString, RunStates::State> expectedStates;
    QString text;
    ShownState state = ShownState::All;
    int number = 0;
};

} // namespace

/// The models between the inputs and the views.
class tst_PictureModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomEdits_data();
    void randomEdits();
    void columnsSayWhatIsKnown();
    void changesReachTheirRows();
    void gridShowsTheSamePictures();
};

void tst_PictureModels::randomEdits_data()
{
    AddSeeds();
}

void tst_PictureModels::randomEdits()
{
    QFETCH(unsigned, seed);
    QCOMPARE(FirstDifference<Editor>(seed, 80), QString());
}

void tst_PictureModels::columnsSayWhatIsKnown()
{
    Models models;
    models.inputs.InsertBranch(NewFolder(QStringLiteral("day"), {FileOf(QStringLiteral("/in/day/a.jpg"))}),
                               QModelIndex());
    const QModelIndex folder = models.columns.index(0, PictureColumns::NameColumn);
    QCOMPARE(folder.data().toString(), QStringLiteral("day"));
    QCOMPARE(folder.siblingAtColumn(PictureColumns::ResultColumn).data().toString(), QStringLiteral("1"));
    const QModelIndex file = models.columns.index(0, PictureColumns::NameColumn, folder.siblingAtColumn(0));
    QCOMPARE(file.data().toString(), QStringLiteral("a.jpg"));
    QCOMPARE(file.data(Qt::AccessibleTextRole).toString(), QStringLiteral("a.jpg"));
    models.states.Set(QStringLiteral("/in/day/a.jpg"), RunStates::State::Failed, QStringLiteral("the disk is full"));
    QCOMPARE(file.siblingAtColumn(PictureColumns::StateColumn).data().toString(), QStringLiteral("Failed"));
    QCOMPARE(file.data(Qt::AccessibleTextRole).toString(), QStringLiteral("a.jpg: Failed"));
    QVERIFY(file.data(Qt::ToolTipRole).toString().endsWith(QStringLiteral("\nthe disk is full")));
    QVERIFY(!file.siblingAtColumn(PictureColumns::StateColumn).data(Qt::DecorationRole).isNull());
}

void tst_PictureModels::changesReachTheirRows()
{
    Models models;
    models.inputs.InsertBranch(NewFolder(QStringLiteral("day"), {FileOf(QStringLiteral("/in/day/a.jpg")),
                                                                 FileOf(QStringLiteral("/in/day/b.jpg"))}),
                               QModelIndex());
    models.table.toggleFolder(models.inputs.index(0, 0));
    QSignalSpy changed(&models.filter, &QAbstractItemModel::dataChanged);
    QSignalSpy cellChanged(&models.cells, &QAbstractItemModel::dataChanged);
    models.states.Set(QStringLiteral("/in/day/b.jpg"), RunStates::State::Working);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 1);
    QVERIFY(changed.at(0).at(0).toModelIndex().parent().isValid());
    QCOMPARE(cellChanged.size(), 1);
    QCOMPARE(cellChanged.at(0).at(0).toModelIndex(), models.cells.index(1, 1));
    models.states.Set(QStringLiteral("/in/day/b.jpg"), RunStates::State::Working);
    QCOMPARE(changed.size(), 1);
}

void tst_PictureModels::gridShowsTheSamePictures()
{
    Models models;
    QList<InputNode*> files;
    for (const char* name : {"a", "b", "c", "d"}) {
        files.append(FileOf(QStringLiteral("/in/day/") + QLatin1String(name)));
    }
    models.inputs.InsertBranch(NewFolder(QStringLiteral("day"), files), QModelIndex());
    models.table.toggleFolder(models.inputs.index(0, 0));
    QCOMPARE(models.cells.rowCount(), 3);
    QCOMPARE(models.cells.index(2, 0).data().toString(), QStringLiteral("d"));
    QCOMPARE(models.cells.index(2, 1).flags(), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(models.cells.InputAt(models.cells.index(2, 0)), models.paths.IndexOf(QStringLiteral("/in/day/d")));
    QCOMPARE(models.cells.CellOf(models.paths.IndexOf(QStringLiteral("/in/day/b"))), models.cells.index(1, 1));
}

QTEST_MAIN(tst_PictureModels)
#include "tst_picturemodels.moc"
