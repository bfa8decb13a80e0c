// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/effects/CubeFile.h"

#include <QtTest>

#include <QBuffer>

#include <random>

using namespace BatchJob;

class tst_CubeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsCurves();
    void readsCubes();
    void readsWhatIsUnusual_data();
    void readsWhatIsUnusual();
    void refuses_data();
    void refuses();
    void refusesFilesThatCannotBeRead();
    void survivesGarbage();
};

namespace {

CubeFile Read(const QByteArray& text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return ReadCube(buffer, QStringLiteral("t.cube"));
}

const char smallCube[] = "LUT_3D_SIZE 2\n"
                         "0 0 0\n1 0 0\n0 1 0\n1 1 0\n"
                         "0 0 1\n1 0 1\n0 1 1\n1 1 1\n";

} // namespace

void tst_CubeFile::readsCurves()
{
    const CubeFile file = Read("TITLE \"Curves\"\n"
                               "# a comment\n"
                               "\n"
                               "LUT_1D_SIZE 3\n"
                               "DOMAIN_MIN -0.5 0 0.25\n"
                               "DOMAIN_MAX 1 2 3\n"
                               "0 0.1 0.2\n"
                               "0.5 -1 1e-1\n"
                               "1 2.5 .75\n");

    QCOMPARE(file.error, QString());
    QCOMPARE(file.table.dimensions, 1);
    QCOMPARE(file.table.size, 3);
    QVERIFY((file.table.domainMinimum == std::array<float, 3>{-0.5F, 0.0F, 0.25F}));
    QVERIFY((file.table.domainMaximum == std::array<float, 3>{1.0F, 2.0F, 3.0F}));
    QVERIFY((file.table.values == std::vector<float>{0.0F, 0.1F, 0.2F, 0.5F, -1.0F, 0.1F, 1.0F, 2.5F, 0.75F}));
}

void tst_CubeFile::readsCubes()
{
    const CubeFile file = Read(smallCube);

    QCOMPARE(file.error, QString());
    QCOMPARE(file.table.dimensions, 3);
    QCOMPARE(file.table.size, 2);
    QCOMPARE(file.table.values.size(), size_t(24));
    QVERIFY((file.table.domainMinimum == std::array<float, 3>{0.0F, 0.0F, 0.0F}));
    QVERIFY((file.table.domainMaximum == std::array<float, 3>{1.0F, 1.0F, 1.0F}));
    QCOMPARE(file.table.values[3], 1.0F);
}

void tst_CubeFile::readsWhatIsUnusual_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("CR LF") << QByteArray(smallCube).replace("\n", "\r\n");
    QTest::newRow("no end of the last line") << QByteArray(smallCube).chopped(1);
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF") + smallCube;
    QTest::newRow("tabs and blanks") << QByteArray(smallCube).replace(" ", " \t ").prepend("  ");
    QTest::newRow("comments between entries") << QByteArray(smallCube).replace("0 1 0", "# green\n0 1 0");
    QTest::newRow("empty lines at the end") << QByteArray(smallCube) + "\n\n  \n";
    QTest::newRow("input range") << QByteArray("LUT_3D_INPUT_RANGE 0.0 1.0\n") + smallCube;
    QTest::newRow("domain behind the entries") << QByteArray(smallCube) + "DOMAIN_MIN 0 0 0\n";
    QTest::newRow("title of several words") << QByteArray("TITLE \"a b c\" d\n") + smallCube;
}

void tst_CubeFile::readsWhatIsUnusual()
{
    QFETCH(QByteArray, text);

    const CubeFile plain = Read(smallCube);
    const CubeFile file = Read(text);

    QCOMPARE(file.error, QString());
    QVERIFY(file.table.values == plain.table.values);
    QVERIFY(file.table.domainMinimum == plain.table.domainMinimum);
    QVERIFY(file.table.domainMaximum == plain.table.domainMaximum);
}

void tst_CubeFile::refuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* name, const QByteArray& text, const char* error) {
        QTest::newRow(name) << text << QString::fromUtf8(error);
    };
    row("empty", "", "t.cube, line 0: no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file");
    row("only comments", "# a\n# b\n", "t.cube, line 2: no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file");
    row("text", "hello, world\n", "t.cube, line 1: \"hello, world\"; three numbers or a known keyword are needed");
    row("size of one", "LUT_3D_SIZE 1\n",
        "t.cube, line 1: \"LUT_3D_SIZE 1\"; LUT_3D_SIZE needs a whole number from 2 to 129");
    row("too large a cube", "LUT_3D_SIZE 130\n",
        "t.cube, line 1: \"LUT_3D_SIZE 130\"; LUT_3D_SIZE needs a whole number from 2 to 129");
    row("too large a curve", "LUT_1D_SIZE 65537\n",
        "t.cube, line 1: \"LUT_1D_SIZE 65537\"; LUT_1D_SIZE needs a whole number from 2 to 65536");
    row("size beyond integers", "LUT_1D_SIZE 99999999999\n",
        "t.cube, line 1: \"LUT_1D_SIZE 99999999999\"; LUT_1D_SIZE needs a whole number from 2 to 65536");
    row("negative size", "LUT_1D_SIZE -2\n",
        "t.cube, line 1: \"LUT_1D_SIZE -2\"; LUT_1D_SIZE needs a whole number from 2 to 65536");
    row("no size", "LUT_1D_SIZE\n",
        "t.cube, line 1: \"LUT_1D_SIZE\"; LUT_1D_SIZE needs a whole number from 2 to 65536");
    row("two sizes", "LUT_1D_SIZE 2\nLUT_3D_SIZE 2\n",
        "t.cube, line 2: a second size; one table is needed, of one or of three dimensions");
    row("entry before the size", "0 0 0\nLUT_1D_SIZE 2\n",
        "t.cube, line 1: an entry before LUT_1D_SIZE or LUT_3D_SIZE");
    row("two numbers", "LUT_1D_SIZE 2\n0 0\n", "t.cube, line 2: \"0 0\"; three numbers or a known keyword are needed");
    row("four numbers", "LUT_1D_SIZE 2\n0 0 0 0\n",
        "t.cube, line 2: \"0 0 0 0\"; three numbers or a known keyword are needed");
    row("not a number", "LUT_1D_SIZE 2\n0 nan 0\n",
        "t.cube, line 2: \"0 nan 0\"; three numbers or a known keyword are needed");
    row("infinite", "LUT_1D_SIZE 2\n0 inf 0\n",
        "t.cube, line 2: \"0 inf 0\"; three numbers or a known keyword are needed");
    row("decimal comma", "LUT_1D_SIZE 2\n0,5 0 0\n",
        "t.cube, line 2: \"0,5 0 0\"; three numbers or a known keyword are needed");
    row("too few", "LUT_1D_SIZE 2\n0 0 0\n", "t.cube, line 2: the file ends after 1 of 2 entries");
    row("too many", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n2 2 2\n",
        "t.cube, line 4: one entry more than the 2 that the size says");
    row("domain of two", "DOMAIN_MIN 0 0\n", "t.cube, line 1: \"DOMAIN_MIN 0 0\"; DOMAIN_MIN needs three numbers");
    row("domain of words", "DOMAIN_MAX a b c\n",
        "t.cube, line 1: \"DOMAIN_MAX a b c\"; DOMAIN_MAX needs three numbers");
    row("empty domain", QByteArray(smallCube) + "DOMAIN_MIN 0 1 0\n",
        "t.cube, line 10: DOMAIN_MIN must be less than DOMAIN_MAX in every channel");
    row("input range of one", "LUT_1D_INPUT_RANGE 0\n",
        "t.cube, line 1: \"LUT_1D_INPUT_RANGE 0\"; LUT_1D_INPUT_RANGE needs two numbers");
    row("endless line", QByteArray(5000, 'x'), "t.cube, line 1: longer than 1024 bytes");
    row("zero bytes", QByteArray(64, '\0'), "t.cube, line 1: \"%1\"; three numbers or a known keyword are needed");
}

void tst_CubeFile::refuses()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);

    const CubeFile file = Read(text);

    if (error.contains(QLatin1String("%1"))) {
        QVERIFY(file.error.startsWith(QStringLiteral("t.cube, line 1: ")));
        QVERIFY(file.error.endsWith(error.section(QLatin1Char(';'), 1)));
    } else {
        QCOMPARE(file.error, error);
    }
    QVERIFY(file.table.values.empty());
    QVERIFY(!file.IsValid());
}

void tst_CubeFile::refusesFilesThatCannotBeRead()
{
    QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("missing.cube"));
    QCOMPARE(ReadCubeFile(missing).error, missing + QStringLiteral(" does not exist"));
    QCOMPARE(ReadCubeFile(folder.path()).error, folder.path() + QStringLiteral(" is not a file"));

    // Its size alone refuses it: nothing of it is read.
    QFile large(folder.filePath(QStringLiteral("large.cube")));
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.resize((qint64(64) << 20) + 1));
    QCOMPARE(ReadCubeFile(large.fileName()).error,
             large.fileName() + QStringLiteral(" has 67108865 bytes; a .cube file has at most 67108864"));
}

// Bytes changed, cut out and doubled by chance: each text gives a whole table or an error with a line.
void tst_CubeFile::survivesGarbage()
{
    const QByteArray whole = QByteArray("TITLE \"x\"\nDOMAIN_MIN 0 0 0\nDOMAIN_MAX 1 1 1\n") + smallCube;
    std::mt19937 random(20'000);
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    int accepted = 0;
    int refused = 0;
    for (int round = 0; round < 20'000; ++round) {
        QByteArray text = whole;
        for (int edits = below(4); edits >= 0; --edits) {
            const int at = below(text.size());
            switch (below(4)) {
            case 0:
                text[at] = static_cast<char>(below(256));
                break;
            case 1:
                text.remove(at, below(20));
                break;
            case 2:
                text.insert(at, text.mid(below(text.size()), below(40)));
                break;
            default:
                text[at] = "0123456789.-e#\n \t\"\0"[below(19)];
                break;
            }
            if (text.isEmpty()) {
                break;
            }
        }
        const CubeFile file = Read(text);
        if (file.IsValid()) {
            ++accepted;
            const size_t entries = file.table.dimensions == 1
                                       ? size_t(file.table.size)
                                       : size_t(file.table.size) * size_t(file.table.size) * size_t(file.table.size);
            QCOMPARE(file.table.values.size(), 3 * entries);
        } else {
            ++refused;
            QVERIFY2(file.error.startsWith(QStringLiteral("t.cube, line ")), qPrintable(file.error));
            QVERIFY(file.error.size() < 400);
        }
    }
    QVERIFY(accepted > 100);
    QVERIFY(refused > 1000);
}

QTEST_GUILESS_MAIN(tst_CubeFile)
#include "tst_cubefile.moc"
