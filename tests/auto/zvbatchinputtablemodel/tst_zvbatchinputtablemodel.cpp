#include "InputNodes.h"
#include "MetaMethods.h"
#include "ZVBatchInputTableModel.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

class tst_ZVBatchInputTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void beginsWithoutRows();
    void rowsComeAtRebuilds_data();
    void rowsComeAtRebuilds();
    void rowsStayBetweenRebuilds();
    void listensToNothingElse();

    void topLevelFiles_data();
    void topLevelFiles();
    void foldersInDepthFirstOrder();
    void expandedFolderShowsItsOwnFiles();
    void foldersBehindFilesAreFoldersStill();
    void columnsOfRows();
    void parentIsIgnored();
    void dataOfCells();
    void rolesPassThrough();

    void toggledTwice();
    void toggleOfInvalidIndexDoesNothing();
    void toggleOfFileIsKept();
    void expandedFoldersFollowTheSource();
    void expandedFolderThatLeft();
    void sourceResetForgetsExpandedFolders();

    void isFolderRow();
    void mapToSource();
    void mapFromSource();
    void mapFromSourceAfterChanges();
    void mapFromSourceOfInvalidIndex();
    void mapFromSourceOfForeignIndex();
    void mapFromSourceOfDestroyedNode();
    void manyNodesCostNoPersistentIndexes();
    void resetIsKnownBeforeItIsTold();
    void insertionsBelowZeroAreBorne();
    void tablesComeAndGo();

    void updateSelection();
    void updateSelectionSignalComesAfterTheReset();
    void rebuildBearsHandlersThatDelete_data();
    void rebuildBearsHandlersThatDelete();
    void outlivesItsSource();
    void leavesItsSourceAlone();
    void modelTester();
    void deepTree();
};

namespace {

/// Resets like a host's subclass could.
class ResettableModel : public ZTBatchInputModel
{
public:
    void Reset()
    {
        beginResetModel();
        endResetModel();
    }

    int ReceiverCount(const char* signal) const { return receivers(signal); }

    int PersistentIndexCount() const { return persistentIndexList().size(); }
};

/// Top level: folder "f" with folder "g" (file "g1") and the files "f1" to "f4"; folder "h" (file "h1"); files "t1",
/// "t2".
void Fill(ZTBatchInputModel& model)
{
    model.InsertBranch(NewFolder(QStringLiteral("f"), {NewFolder(QStringLiteral("g"), {NewFile(QStringLiteral("g1"))}),
                                                       NewFile(QStringLiteral("f1")), NewFile(QStringLiteral("f2")),
                                                       NewFile(QStringLiteral("f3")), NewFile(QStringLiteral("f4"))}),
                       QModelIndex());
    model.InsertBranch(NewFolder(QStringLiteral("h"), {NewFile(QStringLiteral("h1"))}), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t1")), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t2")), QModelIndex());
}

QString CellText(const ZVBatchInputTableModel& table, int row, int column)
{
    return QDir::fromNativeSeparators(table.data(table.index(row, column)).toString()).mid(int(qstrlen("/in/")));
}

/// Each row as its three cells, empty ones as "-"; a folder row begins with "/".
QStringList Rows(const ZVBatchInputTableModel& table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QString text = CellText(table, row, column);
            cells.append(text.isEmpty() ? QStringLiteral("-") : text);
        }
        rows.append((table.isFolderRow(row) ? QStringLiteral("/") : QString()) + cells.join(QLatin1Char(' ')));
    }
    return rows;
}

QStringList Lines(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

/// The index of the one node of this text.
QModelIndex Find(const ZTBatchInputModel& model, const QString& text, const QModelIndex& parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.getNodeData(index)->inputText == text) {
            return index;
        }
        const QModelIndex below = Find(model, text, index);
        if (below.isValid()) {
            return below;
        }
    }
    return QModelIndex();
}

} // namespace

void tst_ZVBatchInputTableModel::metaObject()
{
    QCOMPARE(ZVBatchInputTableModel::staticMetaObject.className(), "ZVBatchInputTableModel");
    QCOMPARE(ZVBatchInputTableModel::staticMetaObject.superClass(), &QAbstractTableModel::staticMetaObject);
    QCOMPARE(OwnMetaMethods(ZVBatchInputTableModel::staticMetaObject),
             QStringList{QStringLiteral("public signal UpdateSelectionModel()")});
}

void tst_ZVBatchInputTableModel::beginsWithoutRows()
{
    ZTBatchInputModel source;
    Fill(source);
    QObject owner;
    auto* const table = new ZVBatchInputTableModel(&source, &owner);
    QCOMPARE(table->QObject::parent(), &owner);
    QCOMPARE(table->sourceModel(), &source);
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->columnCount(), 3);
    QVERIFY(!table->HasFolder());
    QVERIFY(!table->isFolderExpanded(source.index(0, 0)));
    QVERIFY(!table->mapFromSource(source.index(0, 0)).isValid());
    QVERIFY(!table->mapFromSource(QModelIndex()).isValid());
}

void tst_ZVBatchInputTableModel::rowsComeAtRebuilds_data()
{
    QTest::addColumn<QString>("cause");
    QTest::addColumn<bool>("expands");

    QTest::newRow("rebuild") << QStringLiteral("rebuild") << false;
    QTest::newRow("ModelUpdated") << QStringLiteral("ModelUpdated") << false;
    QTest::newRow("reset of the source") << QStringLiteral("reset") << false;
    QTest::newRow("toggleFolder") << QStringLiteral("toggle") << true;
}

void tst_ZVBatchInputTableModel::rowsComeAtRebuilds()
{
    QFETCH(QString, cause);
    QFETCH(bool, expands);

    ResettableModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy before(&table, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy after(&table, &QAbstractItemModel::modelReset);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    if (cause == QLatin1String("rebuild")) {
        table.rebuild();
    } else if (cause == QLatin1String("ModelUpdated")) {
        Q_EMIT source.ModelUpdated();
    } else if (cause == QLatin1String("reset")) {
        source.Reset();
    } else {
        table.toggleFolder(Find(source, QStringLiteral("h")));
    }
    QCOMPARE(Rows(table),
             expands ? Lines("/f - -|/g - -|/h - -|h1 - -|t1 t2 -") : Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(selection.count(), expands ? 1 : 0);
}

void tst_ZVBatchInputTableModel::rowsStayBetweenRebuilds()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    const QStringList rows = Rows(table);
    QSignalSpy reset(&table, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&table, &QAbstractItemModel::dataChanged);

    source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    source.InsertBranch(NewFile(QStringLiteral("t0")), QModelIndex());
    source.insertRows(0, 2);
    source.setEnabled(Find(source, QStringLiteral("h")), false);
    source.setToolTip(Find(source, QStringLiteral("h")), QStringLiteral("tip"));
    QCOMPARE(Rows(table), rows);

    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    source.removeRows(Find(source, QStringLiteral("f")).row(), 1);
    QCOMPARE(table.rowCount(), 4);
    QCOMPARE(Rows(table), Lines("/- - -|/- - -|/h - -|- t2 -"));
    QCOMPARE(reset.count() + changed.count(), 0);

    Q_EMIT source.ModelUpdated();
    QCOMPARE(reset.count(), 1);
    QCOMPARE(Rows(table), Lines("/- - -|/- - -|/a - -|/h - -|t0 t2 -"));
}

void tst_ZVBatchInputTableModel::listensToNothingElse()
{
    ResettableModel source;
    ZVBatchInputTableModel table(&source, nullptr);
    const QMetaObject& metaObject = ResettableModel::staticMetaObject;
    for (int i = 0; i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() == QMetaMethod::Signal) {
            const QByteArray signature = method.methodSignature();
            const bool isHeard = signature == "modelReset()" || signature == "ModelUpdated()";
            QCOMPARE(source.ReceiverCount('2' + signature), isHeard ? 1 : 0);
        }
    }
}

void tst_ZVBatchInputTableModel::topLevelFiles_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("one") << 1 << Lines("1 - -");
    QTest::newRow("two") << 2 << Lines("1 2 -");
    QTest::newRow("three") << 3 << Lines("1 2 3");
    QTest::newRow("four") << 4 << Lines("1 2 3|4 - -");
    QTest::newRow("seven") << 7 << Lines("1 2 3|4 5 6|7 - -");
}

void tst_ZVBatchInputTableModel::topLevelFiles()
{
    QFETCH(int, count);
    QFETCH(QStringList, rows);

    ZTBatchInputModel source;
    for (int i = count; i > 0; --i) {
        source.InsertBranch(NewFile(QString::number(i)), QModelIndex());
    }
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(Rows(table), rows);
    QVERIFY(!table.HasFolder());
}

void tst_ZVBatchInputTableModel::foldersInDepthFirstOrder()
{
    ZTBatchInputModel source;
    source.InsertBranch(
        NewFolder(QStringLiteral("2"), {NewFolder(QStringLiteral("22"), {NewFolder(QStringLiteral("221"))}),
                                        NewFolder(QStringLiteral("21"), {NewFile(QStringLiteral("hidden"))})}),
        QModelIndex());
    source.InsertBranch(NewFolder(QStringLiteral("1"), {NewFolder(QStringLiteral("11"))}), QModelIndex());
    source.InsertBranch(NewFolder(QStringLiteral("3")), QModelIndex());
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/1 - -|/11 - -|/2 - -|/21 - -|/22 - -|/221 - -|/3 - -"));
    QVERIFY(table.HasFolder());
}

void tst_ZVBatchInputTableModel::expandedFolderShowsItsOwnFiles()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(Rows(table), Lines("/f - -|f1 f2 f3|f4 - -|/g - -|/h - -|t1 t2 -"));
    table.toggleFolder(Find(source, QStringLiteral("g")));
    QCOMPARE(Rows(table), Lines("/f - -|f1 f2 f3|f4 - -|/g - -|g1 - -|/h - -|t1 t2 -"));
    // Collapsing hides a folder's own files; its expanded sub-folder stays as it is.
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|g1 - -|/h - -|t1 t2 -"));
    QVERIFY(table.isFolderExpanded(Find(source, QStringLiteral("g"))));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("f"))));

    // An expanded folder without files adds no row.
    source.InsertBranch(NewFolder(QStringLiteral("empty"), {NewFolder(QStringLiteral("inner"))}), QModelIndex());
    table.toggleFolder(Find(source, QStringLiteral("empty")));
    QCOMPARE(Rows(table), Lines("/empty - -|/inner - -|/f - -|/g - -|g1 - -|/h - -|t1 t2 -"));
}

void tst_ZVBatchInputTableModel::foldersBehindFilesAreFoldersStill()
{
    // Rows that insertRows() makes are folders and stand anywhere.
    ZTBatchInputModel source;
    Fill(source);
    source.insertRows(4, 1);
    source.getNodeData(source.index(4, 0))->fileName = QStringLiteral("/in/last");
    source.getNodeData(source.index(0, 0))->type = 7;
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/h - -|/last - -|f t1 t2"));
}

void tst_ZVBatchInputTableModel::columnsOfRows()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < 3; ++column) {
            QVERIFY(table.index(row, column).isValid());
            QCOMPARE(table.flags(table.index(row, column)),
                     Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren);
        }
        QVERIFY(!table.index(row, 3).isValid());
    }
    QVERIFY(!table.index(table.rowCount(), 0).isValid());
}

void tst_ZVBatchInputTableModel::parentIsIgnored()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(table.rowCount(table.index(0, 0)), 4);
    QCOMPARE(table.columnCount(table.index(0, 0)), 3);
}

void tst_ZVBatchInputTableModel::dataOfCells()
{
    ZTBatchInputModel source;
    Fill(source);
    source.setToolTip(Find(source, QStringLiteral("t2")), QStringLiteral("tip"));
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();

    QVERIFY(!table.data(QModelIndex()).isValid());
    QCOMPARE(table.data(table.index(0, 0)).toString(), QDir::toNativeSeparators(QStringLiteral("/in/f")));
    QVERIFY(!table.data(table.index(0, 1)).isValid());
    QVERIFY(!table.data(table.index(0, 2)).isValid());
    QCOMPARE(table.data(table.index(3, 1)).toString(), QDir::toNativeSeparators(QStringLiteral("/in/t2")));
    QCOMPARE(table.data(table.index(3, 1), Qt::ToolTipRole).toString(), QStringLiteral("tip"));
    QVERIFY(!table.data(table.index(3, 2)).isValid());

    // The table keeps no data: it says what the source says now.
    source.getNodeData(Find(source, QStringLiteral("t2")))->fileName = QStringLiteral("/in/renamed");
    QCOMPARE(CellText(table, 3, 1), QStringLiteral("renamed"));
}

void tst_ZVBatchInputTableModel::rolesPassThrough()
{
    class EchoModel : public ZTBatchInputModel
    {
    public:
        QVariant data(const QModelIndex& index, int role) const override
        {
            return QStringLiteral("%1 as %2").arg(getNodeData(index)->inputText).arg(role);
        }
    };
    EchoModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    for (const int role : {-1, int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::UserRole) + 5}) {
        QCOMPARE(table.data(table.index(0, 0), role).toString(), QStringLiteral("f as %1").arg(role));
        QCOMPARE(table.data(table.index(3, 1), role).toString(), QStringLiteral("t2 as %1").arg(role));
        QVERIFY(!table.data(table.index(0, 1), role).isValid());
        QVERIFY(!table.data(table.index(3, 2), role).isValid());
        QVERIFY(!table.data(QModelIndex(), role).isValid());
    }
}

void tst_ZVBatchInputTableModel::toggledTwice()
{
    ZTBatchInputModel source;
    source.InsertBranch(NewFolder(QStringLiteral("f"), {NewFolder(QStringLiteral("g")), NewFile(QStringLiteral("1")),
                                                        NewFile(QStringLiteral("2"))}),
                        QModelIndex());
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    QCOMPARE(Rows(table), Lines("/f - -|/g - -"));

    table.toggleFolder(table.mapToSource(table.index(0, 0)));
    QCOMPARE(Rows(table), Lines("/f - -|1 2 -|/g - -"));
    QCOMPARE(selection.count(), 1);
    QVERIFY(table.isFolderExpanded(source.index(0, 0)));

    table.toggleFolder(table.mapToSource(table.index(0, 2)));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -"));
    QCOMPARE(selection.count(), 2);
    QVERIFY(!table.isFolderExpanded(source.index(0, 0)));

    table.rebuild();
    QCOMPARE(selection.count(), 2);
}

void tst_ZVBatchInputTableModel::toggleOfInvalidIndexDoesNothing()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy reset(&table, &QAbstractItemModel::modelReset);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    table.toggleFolder(QModelIndex());
    QCOMPARE(reset.count(), 0);
    QVERIFY(!table.isFolderExpanded(QModelIndex()));
    table.rebuild();
    QCOMPARE(selection.count(), 0);
}

void tst_ZVBatchInputTableModel::toggleOfFileIsKept()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    const QModelIndex file = Find(source, QStringLiteral("t1"));
    table.toggleFolder(file);
    QVERIFY(table.isFolderExpanded(file));
    QCOMPARE(selection.count(), 1);
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    table.toggleFolder(file);
    QVERIFY(!table.isFolderExpanded(file));
}

void tst_ZVBatchInputTableModel::expandedFoldersFollowTheSource()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    table.toggleFolder(Find(source, QStringLiteral("g")));

    source.InsertBranch(NewFolder(QStringLiteral("a"), {NewFile(QStringLiteral("a1"))}), QModelIndex());
    source.InsertBranch(NewFolder(QStringLiteral("fa"), {NewFile(QStringLiteral("fa1"))}),
                        Find(source, QStringLiteral("f")));
    Q_EMIT source.ModelUpdated();
    QCOMPARE(Rows(table), Lines("/a - -|/f - -|/fa - -|/g - -|g1 - -|/h - -|h1 - -|t1 t2 -"));

    source.removeRows(0, 1);
    source.removeRows(0, 1, Find(source, QStringLiteral("f")));
    Q_EMIT source.ModelUpdated();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|g1 - -|/h - -|h1 - -|t1 t2 -"));
    QVERIFY(table.isFolderExpanded(Find(source, QStringLiteral("h"))));
    QVERIFY(table.isFolderExpanded(Find(source, QStringLiteral("g"))));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("f"))));
}

void tst_ZVBatchInputTableModel::expandedFolderThatLeft()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    source.removeRows(Find(source, QStringLiteral("h")).row(), 1);
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|t1 t2 -"));

    // A folder of the same name, perhaps at the same address, is another folder.
    source.InsertBranch(NewFolder(QStringLiteral("h"), {NewFile(QStringLiteral("h1"))}), QModelIndex());
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("h"))));
    QVERIFY(!table.isFolderExpanded(QModelIndex()));
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|h1 - -|t1 t2 -"));
}

void tst_ZVBatchInputTableModel::sourceResetForgetsExpandedFolders()
{
    // A reset ends all persistent indexes of the source.
    ResettableModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    source.Reset();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("h"))));
}

void tst_ZVBatchInputTableModel::isFolderRow()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QVERIFY(!table.isFolderRow(0));
    table.rebuild();
    QCOMPARE(table.rowCount(), 4);
    QVERIFY(!table.isFolderRow(-1));
    QVERIFY(table.isFolderRow(0));
    QVERIFY(table.isFolderRow(2));
    QVERIFY(!table.isFolderRow(3));
    QVERIFY(!table.isFolderRow(4));
}

void tst_ZVBatchInputTableModel::mapToSource()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QVERIFY(!table.mapToSource(QModelIndex()).isValid());
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(table.mapToSource(table.index(1, column)), Find(source, QStringLiteral("g")));
    }
    QCOMPARE(table.mapToSource(table.index(3, 0)), Find(source, QStringLiteral("t1")));
    QCOMPARE(table.mapToSource(table.index(3, 1)), Find(source, QStringLiteral("t2")));
    QVERIFY(!table.mapToSource(table.index(3, 2)).isValid());

    // An index from before a rebuild that made the table shorter.
    const QModelIndex old = table.index(3, 0);
    source.removeRows(0, source.rowCount());
    table.rebuild();
    QVERIFY(!table.mapToSource(old).isValid());
    QVERIFY(!table.data(old).isValid());
}

void tst_ZVBatchInputTableModel::mapFromSource()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f"))), table.index(0, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("g"))), table.index(1, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t1"))), table.index(3, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t2"))), table.index(3, 1));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("f1"))).isValid());
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("g1"))).isValid());
    QVERIFY(!table.mapFromSource(QModelIndex()).isValid());

    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f1"))), table.index(1, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f4"))), table.index(2, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t2"))), table.index(5, 1));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("g1"))).isValid());
}

void tst_ZVBatchInputTableModel::mapFromSourceAfterChanges()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    const QModelIndex oldPlace = Find(source, QStringLiteral("t1"));
    QCOMPARE(table.mapFromSource(oldPlace), table.index(3, 0));

    source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t1"))), table.index(3, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("g"))), table.index(1, 0));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("a"))).isValid());
    // An index with the row of before stands for no row that there is now.
    QVERIFY(!table.mapFromSource(oldPlace).isValid());

    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t2"))), table.index(3, 1));
    // New nodes often get the address of one that has just gone; they are shown nowhere all the same.
    for (int i = 0; i < 100; ++i) {
        const QModelIndex fresh = source.InsertBranch(NewFile(QStringLiteral("t1")), QModelIndex());
        QVERIFY(!table.mapFromSource(fresh).isValid());
        source.removeRows(fresh.row(), 1);
    }
}

void tst_ZVBatchInputTableModel::mapFromSourceOfInvalidIndex()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QVERIFY(!table.mapFromSource(QModelIndex()).isValid());

    // An index that is gone equals an invalid one: the first cell that lost its node answers.
    source.removeRows(Find(source, QStringLiteral("t2")).row(), 1);
    QCOMPARE(table.mapFromSource(QModelIndex()), table.index(5, 1));
    source.removeRows(Find(source, QStringLiteral("h")).row(), 1);
    QCOMPARE(table.mapFromSource(QModelIndex()), table.index(4, 0));
    source.removeRows(Find(source, QStringLiteral("f3")).row(), 1, Find(source, QStringLiteral("f")));
    QCOMPARE(table.mapFromSource(QModelIndex()), table.index(1, 2));
    table.rebuild();
    QVERIFY(!table.mapFromSource(QModelIndex()).isValid());
}

void tst_ZVBatchInputTableModel::mapFromSourceOfForeignIndex()
{
    ZTBatchInputModel source;
    Fill(source);
    ZTBatchInputModel other;
    Fill(other);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QVERIFY(!table.mapFromSource(other.index(0, 0)).isValid());
    QVERIFY(!table.mapFromSource(table.index(0, 0)).isValid());
    QVERIFY(!table.isFolderExpanded(other.index(0, 0)));
}

void tst_ZVBatchInputTableModel::mapFromSourceOfDestroyedNode()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    const QModelIndexList old{Find(source, QStringLiteral("f")), Find(source, QStringLiteral("g")),
                              Find(source, QStringLiteral("f1")), Find(source, QStringLiteral("t1"))};
    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    source.removeRows(Find(source, QStringLiteral("f")).row(), 1);
    for (const QModelIndex& index : old) {
        QVERIFY(!table.mapFromSource(index).isValid());
    }
    table.rebuild();
    for (const QModelIndex& index : old) {
        QVERIFY(!table.mapFromSource(index).isValid());
    }
}

void tst_ZVBatchInputTableModel::manyNodesCostNoPersistentIndexes()
{
    // Qt asks all of them at every change of the source.
    ResettableModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f4"))), table.index(2, 0));
    QCOMPARE(source.PersistentIndexCount(), 2);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(source.PersistentIndexCount(), 1);
}

void tst_ZVBatchInputTableModel::resetIsKnownBeforeItIsTold()
{
    // Who listens to the source since before there was a table hears of the reset first.
    ResettableModel source;
    Fill(source);
    QPointer<ZVBatchInputTableModel> table;
    QStringList rows;
    connect(&source, &QAbstractItemModel::modelReset, this, [&] { rows = Rows(*table); });
    ZVBatchInputTableModel madeLater(&source, nullptr);
    table = &madeLater;
    table->toggleFolder(Find(source, QStringLiteral("f")));
    source.Reset();
    QCOMPARE(rows, Lines("/- - -|- - -|- - -|/- - -|/- - -|- - -"));
    QCOMPARE(Rows(*table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
}

void tst_ZVBatchInputTableModel::insertionsBelowZeroAreBorne()
{
    // They are announced and change nothing, so that every cell behind shows the node of some rows before: also one of
    // a folder, whose files stay what they are.
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|h1 - -|t1 t2 -"));
    source.insertRows(1, -1);
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/f - -|h1 - -|h t1 -"));
    // Of two cells with one node the first answers.
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f"))), table.index(0, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("h"))), table.index(4, 0));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("t2"))).isValid());

    // The files know their folder still.
    source.removeRows(Find(source, QStringLiteral("h")).row(), 1);
    QCOMPARE(Rows(table).at(3), QStringLiteral("- - -"));
    source.removeRows(0, source.rowCount());
    QCOMPARE(Rows(table), Lines("/- - -|/- - -|/- - -|- - -|- - -"));
}

void tst_ZVBatchInputTableModel::tablesComeAndGo()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel stays(&source, nullptr);
    stays.rebuild();
    {
        ZVBatchInputTableModel goes(&source, nullptr);
        goes.rebuild();
        source.InsertBranch(NewFile(QStringLiteral("t0")), QModelIndex());
        QCOMPARE(Rows(goes), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    }
    source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    QCOMPARE(Rows(stays), Lines("/f - -|/g - -|/h - -|- t2 -"));
}

void tst_ZVBatchInputTableModel::updateSelection()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);

    table.UpdateSelection(true);
    QCOMPARE(selection.count(), 0);
    Q_EMIT source.ModelUpdated();
    QCOMPARE(selection.count(), 1);
    Q_EMIT source.ModelUpdated();
    QCOMPARE(selection.count(), 1);

    table.UpdateSelection(true);
    table.UpdateSelection(false);
    Q_EMIT source.ModelUpdated();
    QCOMPARE(selection.count(), 1);

    // The request is cleared when the signal has been handled, so that one made by a handler is lost.
    connect(&table, &ZVBatchInputTableModel::UpdateSelectionModel, this, [&] { table.UpdateSelection(true); });
    table.UpdateSelection(true);
    table.rebuild();
    QCOMPARE(selection.count(), 2);
    table.rebuild();
    QCOMPARE(selection.count(), 2);
}

void tst_ZVBatchInputTableModel::updateSelectionSignalComesAfterTheReset()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QStringList calls;
    connect(&table, &QAbstractItemModel::modelAboutToBeReset, this,
            [&] { calls << QStringLiteral("before %1").arg(table.rowCount()); });
    connect(&table, &QAbstractItemModel::modelReset, this,
            [&] { calls << QStringLiteral("after %1").arg(table.rowCount()); });
    connect(&table, &ZVBatchInputTableModel::UpdateSelectionModel, this,
            [&] { calls << QStringLiteral("selection %1").arg(table.rowCount()); });
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(calls, Lines("before 0|after 6|selection 6"));
}

void tst_ZVBatchInputTableModel::rebuildBearsHandlersThatDelete_data()
{
    QTest::addColumn<bool>("atReset");

    QTest::newRow("at the reset") << true;
    QTest::newRow("at the selection signal") << false;
}

void tst_ZVBatchInputTableModel::rebuildBearsHandlersThatDelete()
{
    QFETCH(bool, atReset);

    ZTBatchInputModel source;
    Fill(source);
    QPointer<ZVBatchInputTableModel> table(new ZVBatchInputTableModel(&source, nullptr));
    if (atReset) {
        connect(table.data(), &QAbstractItemModel::modelReset, this, [&] { delete table.data(); });
    } else {
        connect(table.data(), &ZVBatchInputTableModel::UpdateSelectionModel, this, [&] { delete table.data(); });
    }
    table->toggleFolder(source.index(0, 0));
    QVERIFY(table.isNull());
}

void tst_ZVBatchInputTableModel::outlivesItsSource()
{
    auto source = std::make_unique<ZTBatchInputModel>();
    Fill(*source);
    ZVBatchInputTableModel table(source.get(), nullptr);
    table.toggleFolder(source->index(0, 0));
    source.reset();
    QCOMPARE(Rows(table), Lines("/- - -|- - -|- - -|/- - -|/- - -|- - -"));
    QVERIFY(table.sourceModel() == nullptr);
    table.rebuild();
    QCOMPARE(table.rowCount(), 0);
}

void tst_ZVBatchInputTableModel::leavesItsSourceAlone()
{
    ZTBatchInputModel source;
    Fill(source);
    {
        ZVBatchInputTableModel table(&source, nullptr);
        table.toggleFolder(source.index(0, 0));
    }
    QCOMPARE(source.rowCount(), 4);
    QCOMPARE(source.GetFileNodesCount(), 8);
    Q_EMIT source.ModelUpdated();
}

void tst_ZVBatchInputTableModel::modelTester()
{
    // The table answers for every parent what it answers for none, which the tester takes for rows inside of rows.
    class FlatTable : public ZVBatchInputTableModel
    {
    public:
        using ZVBatchInputTableModel::ZVBatchInputTableModel;
        int rowCount(const QModelIndex& parent) const override
        {
            return parent.isValid() ? 0 : ZVBatchInputTableModel::rowCount(parent);
        }
        int columnCount(const QModelIndex& parent) const override
        {
            return parent.isValid() ? 0 : ZVBatchInputTableModel::columnCount(parent);
        }
    };
    ResettableModel source;
    Fill(source);
    FlatTable table(&source, nullptr);
    const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
    table.rebuild();
    table.toggleFolder(Find(source, QStringLiteral("f")));
    source.InsertBranch(NewFolder(QStringLiteral("a"), {NewFile(QStringLiteral("a1"))}), QModelIndex());
    Q_EMIT source.ModelUpdated();
    table.toggleFolder(Find(source, QStringLiteral("a")));
    source.Reset();
    source.removeRows(0, source.rowCount());
    table.rebuild();
    QCOMPARE(table.rowCount(QModelIndex()), 0);
}

void tst_ZVBatchInputTableModel::deepTree()
{
    constexpr int levels = 100000;
    ZTBatchInputModel source;
    QModelIndex folder;
    for (int level = 0; level < levels; ++level) {
        folder = source.InsertBranch(NewFolder(QString::number(level)), folder);
    }
    source.InsertBranch(NewFile(QStringLiteral("file")), folder);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(folder);
    QCOMPARE(table.rowCount(), levels + 1);
    QCOMPARE(CellText(table, levels - 1, 0), QString::number(levels - 1));
    QCOMPARE(CellText(table, levels, 0), QStringLiteral("file"));
    QCOMPARE(table.mapFromSource(folder), table.index(levels - 1, 0));
}

QTEST_GUILESS_MAIN(tst_ZVBatchInputTableModel)
#include "tst_zvbatchinputtablemodel.moc"
