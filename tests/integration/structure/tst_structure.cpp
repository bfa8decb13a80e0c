// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "StructureCheck.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <QtTest>

#include <algorithm>
#include <iterator>

class tst_Structure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSourceTreeKeepsTheOrder();
    void aTreeInOrderHasNoFindings();
    void everyKindOfBreakIsNamed_data();
    void everyKindOfBreakIsNamed();
    void everyCircleIsNamedOnce_data();
    void everyCircleIsNamedOnce();
};

namespace {
struct SourceText
{
    const char* path;
    const char* text;
};

// A small tree in order: a file in each part, which uses the part below it.
const SourceText orderlyTree[] = {
    {"platform/core/include/ZVFileBookmark.h", "#include <QString>\n"},
    {"platform/core/CMakeLists.txt", "add_library(core SHARED a.cpp)\ntarget_link_libraries(core PUBLIC Qt5::Core)\n"},
    {"include/ZTBatchManager.h", "#include \"ZVFileBookmark.h\"\n"},
    {"src/ZTBatchManager.cpp", "#include \"ZTBatchManager_p.h\"\n"},
    {"src/private/ZTBatchManager_p.h", "#include \"ZTBatchManager.h\"\n"},
    {"src/CMakeLists.txt", "add_library(batchcore_objects OBJECT a.cpp)\nadd_library(batchcore SHARED a.cpp)\n"
                           "target_link_libraries(batchcore PUBLIC Qt5::Core ${BATCHCORE_CORE_TARGET})\n"},
    {"job/OutputPlan.h", "#include <ZTBatchManager.h>\n"},
    {"job/CMakeLists.txt", "add_library(job STATIC a.cpp)\ntarget_link_libraries(job PUBLIC Velkora::batchcore)\n"},
    {"server/protocol/WorkerMessages.h", "#include \"job/OutputPlan.h\"\n"},
    {"server/protocol/CMakeLists.txt",
     "add_library(protocol STATIC a.cpp)\ntarget_link_libraries(protocol PUBLIC job)\n"},
    {"server/supervisor/WorkerPool.h", "#include \"server/protocol/WorkerMessages.h\"\n"},
    {"server/supervisor/WorkerPool.cpp", "#include \"WorkerPool.h\"\n#include \"job/OutputPlan.h\"\n"},
    {"server/supervisor/CMakeLists.txt",
     "add_executable(VelkoraBatchProcessing main.cpp)\n"
     "target_link_libraries(VelkoraBatchProcessing PRIVATE protocol Qt5::Network psapi)\n"},
    {"server/worker/decode/PictureSource.cpp",
     "#include \"server/worker/pixels/PixelForms.h\"\n#include <libraw/libraw.h>\n"},
    {"server/worker/pixels/PixelForms.h", "#include \"server/protocol/WorkerMessages.h\"\n#include <vips/vips8>\n"},
    {"server/worker/CMakeLists.txt", "add_library(picture STATIC a.cpp)\n"
                                     "target_link_libraries(picture PUBLIC protocol PkgConfig::vips)\n"},
    {"server/reference/EffectReference.cpp", "#include \"server/worker/pixels/PixelForms.h\"\n"},
    {"hosts/common/RunController.h", "#include \"server/protocol/WorkerMessages.h\"\n"},
    {"hosts/common/CMakeLists.txt", "add_library(host STATIC a.cpp)\ntarget_link_libraries(host PUBLIC protocol)\n"},
    {"hosts/cli/commands/RunCommand.cpp", "#include \"hosts/common/RunController.h\"\n#include <CLI/CLI.hpp>\n"},
    {"hosts/cli/options/RunOptions.h", "#include <QString>\n"},
    {"hosts/cli/CMakeLists.txt", "add_library(cli STATIC a.cpp)\n# target_link_libraries(cli PUBLIC picture)\n"
                                 "target_link_libraries(cli PUBLIC host PRIVATE CLI11::CLI11)\n"},
    {"hosts/desktop/app/Main.cpp", "#include \"hosts/common/RunController.h\"\n"},
    {"hosts/desktop/jobs/JobDesk.h", "#include \"hosts/common/RunController.h\"\n"},
    {"hosts/desktop/window/MainWindow.h", "#include \"hosts/desktop/jobs/JobDesk.h\"\n"},
    {"hosts/desktop/CMakeLists.txt", "add_executable(desktop main.cpp)\ntarget_link_libraries(desktop PRIVATE host)\n"},
    {"server/extra/CMakeLists.txt", "add_library(extra STATIC a.cpp)\n"},
    {"tests/support/ProcessEnd.h", ""},
};

bool Write(const QString& root, const QString& path, const QByteArray& text)
{
    const QString full = root + u'/' + path;
    if (!QDir().mkpath(QFileInfo(full).path()))
        return false;
    QFile file(full);
    return file.open(QIODevice::WriteOnly | QIODevice::Append) && file.write(text) == text.size();
}

bool WriteOrderlyTree(const QString& root)
{
    return std::all_of(std::begin(orderlyTree), std::end(orderlyTree), [&](const SourceText& source) {
        return Write(root, QString::fromLatin1(source.path), source.text);
    });
}
} // namespace

void tst_Structure::theSourceTreeKeepsTheOrder()
{
    const StructureReport report = CheckStructure(QStringLiteral(SOURCE_TREE));
    QVERIFY2(report.sources > 200, qPrintable(QString::number(report.sources)));
    QVERIFY2(report.includes > 1000, qPrintable(QString::number(report.includes)));
    QVERIFY2(report.links > 20, qPrintable(QString::number(report.links)));
    QVERIFY2(report.findings.isEmpty(), qPrintable(report.findings.join(u'\n')));
}

void tst_Structure::aTreeInOrderHasNoFindings()
{
    const QTemporaryDir tree;
    QVERIFY(WriteOrderlyTree(tree.path()));
    const StructureReport report = CheckStructure(tree.path());
    QCOMPARE(report.findings, QStringList());
    QCOMPARE(report.sources, 17);
    QCOMPARE(report.includes, 21);
    QCOMPARE(report.links, 13);
}

void tst_Structure::everyKindOfBreakIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("finding");

    const auto includes = [](const QByteArray& row, const QByteArray& path, const QByteArray& include,
                             const QByteArray& finding) {
        QTest::newRow(row.constData()) << QString::fromLatin1(path) << "\n#include " + include + '\n'
                                       << QString::fromLatin1(path + ":2: " + finding);
    };
    includes("library to job", "src/A.cpp", "\"job/OutputPlan.h\"", "src may not use job: job/OutputPlan.h");
    includes("library to server", "src/private/A_p.h", "\"server/protocol/WorkerMessages.h\"",
             "src may not use server/protocol: server/protocol/WorkerMessages.h");
    includes("library to host", "src/A.cpp", "\"hosts/common/RunController.h\"",
             "src may not use hosts/common: hosts/common/RunController.h");
    includes("exported header to private part", "include/A.h", "\"ZTBatchManager_p.h\"",
             "include may not use src: ZTBatchManager_p.h");
    includes("sibling library to library", "platform/core/include/A.h", "\"ZTBatchManager.h\"",
             "platform/core may not use include: ZTBatchManager.h");
    includes("example to private part", "examples/sheet/A.cpp", "\"ZTBatchManager_p.h\"",
             "examples may not use src: ZTBatchManager_p.h");
    includes("job to private part", "job/A.cpp", "\"ZTBatchManager_p.h\"", "job may not use src: ZTBatchManager_p.h");
    includes("job to protocol", "job/A.cpp", "\"server/protocol/WorkerMessages.h\"",
             "job may not use server/protocol: server/protocol/WorkerMessages.h");
    includes("job to host", "job/A.cpp", "\"hosts/common/RunController.h\"",
             "job may not use hosts/common: hosts/common/RunController.h");
    includes("job to host by an angle", "job/A.cpp", "<hosts/common/RunController.h>",
             "job may not use hosts/common: hosts/common/RunController.h");
    includes("job to host by the parent folder", "job/A.cpp", "\"../hosts/common/RunController.h\"",
             "job may not use hosts/common: ../hosts/common/RunController.h");
    includes("protocol to supervisor", "server/protocol/A.h", "\"server/supervisor/WorkerPool.h\"",
             "server/protocol may not use server/supervisor: server/supervisor/WorkerPool.h");
    includes("supervisor to worker", "server/supervisor/A.cpp", "\"server/worker/pixels/PixelForms.h\"",
             "server/supervisor may not use server/worker: server/worker/pixels/PixelForms.h");
    includes("worker to supervisor", "server/worker/process/A.cpp", "\"server/supervisor/WorkerPool.h\"",
             "server/worker may not use server/supervisor: server/supervisor/WorkerPool.h");
    includes("supervisor to host", "server/supervisor/A.cpp", "\"hosts/common/RunController.h\"",
             "server/supervisor may not use hosts/common: hosts/common/RunController.h");
    includes("worker to host", "server/worker/encode/A.cpp", "\"hosts/common/RunController.h\"",
             "server/worker may not use hosts/common: hosts/common/RunController.h");
    includes("shared host to command line", "hosts/common/A.cpp", "\"hosts/cli/options/RunOptions.h\"",
             "hosts/common may not use hosts/cli: hosts/cli/options/RunOptions.h");
    includes("window to command line", "hosts/desktop/run/A.cpp", "\"hosts/cli/options/RunOptions.h\"",
             "hosts/desktop/run may not use hosts/cli: hosts/cli/options/RunOptions.h");
    includes("pane to pane", "hosts/desktop/run/A.cpp", "\"hosts/desktop/jobs/JobDesk.h\"",
             "hosts/desktop/run may not use hosts/desktop/jobs: hosts/desktop/jobs/JobDesk.h");
    includes("pane to window", "hosts/desktop/jobs/A.cpp", "\"hosts/desktop/window/MainWindow.h\"",
             "hosts/desktop/jobs may not use hosts/desktop/window: hosts/desktop/window/MainWindow.h");
    includes("edited job to pane", "hosts/desktop/job/A.cpp", "\"hosts/desktop/jobs/JobDesk.h\"",
             "hosts/desktop/job may not use hosts/desktop/jobs: hosts/desktop/jobs/JobDesk.h");
    includes("host to supervisor", "hosts/common/A.cpp", "\"server/supervisor/WorkerPool.h\"",
             "hosts/common may not use server/supervisor: server/supervisor/WorkerPool.h");
    includes("host to worker", "hosts/cli/A.cpp", "\"server/worker/pixels/PixelForms.h\"",
             "hosts/cli may not use server/worker: server/worker/pixels/PixelForms.h");
    includes("source to tests", "job/A.cpp", "\"tests/support/ProcessEnd.h\"",
             "job may not use tests/support: tests/support/ProcessEnd.h");
    includes("indented", "job/A.cpp", "  <hosts/common/RunController.h> // needed",
             "job may not use hosts/common: hosts/common/RunController.h");
    includes("bare name from another folder", "hosts/cli/A.cpp", "\"RunController.h\"",
             "no such file beside the source, below the root or among the libraries' headers: RunController.h");

    includes("generated file", "hosts/desktop/run/A.cpp", "\"A.moc\"",
             "a generated file, which checks without a build cannot read: A.moc");

    for (const char* header : {"vips/vips8", "libraw/libraw.h", "exiv2/exiv2.hpp", "lcms2.h"}) {
        for (const char* part : {"src", "job", "server/protocol", "server/supervisor", "hosts/common", "hosts/cli"}) {
            includes(QByteArray(part) + " to " + header, QByteArray(part) + "/A.cpp", QByteArray("<") + header + '>',
                     QByteArray(part) + " may not use an imaging library: " + header);
        }
    }

    QTest::newRow("folder without a place")
        << QStringLiteral("server/extra/A.cpp") << QByteArray("#include <QString>\n")
        << QStringLiteral("server/extra/A.cpp:1: server/extra has no place in the order of the folders");

    const auto links = [](const char* row, const char* part, const char* target, const char* finding) {
        const QString path = QString::fromLatin1(part) + QStringLiteral("/linked/CMakeLists.txt");
        QTest::newRow(row) << path << QByteArray("target_link_libraries(x\n    PRIVATE ") + target + ")\n"
                           << path + QStringLiteral(":2: ") + QString::fromLatin1(finding);
    };
    links("job links protocol", "job", "protocol", "job may not link server/protocol: protocol");
    links("job links private parts", "job", "batchcore_objects", "job may not link src: batchcore_objects");
    links("job links another library", "job", "CLI11::CLI11", "job may link Qt and other parts only: CLI11::CLI11");
    links("job links an imaging library", "job", "PkgConfig::vips",
          "job may not link an imaging library: PkgConfig::vips");
    links("library links job", "src", "job", "src may not link job: job");
    links("supervisor links worker", "server/supervisor", "picture",
          "server/supervisor may not link server/worker: picture");
    links("supervisor links an imaging library", "server/supervisor", "PkgConfig::lcms2",
          "server/supervisor may not link an imaging library: PkgConfig::lcms2");
    links("worker links supervisor", "server/worker", "VelkoraBatchProcessing",
          "server/worker may not link server/supervisor: VelkoraBatchProcessing");
    links("host links worker", "hosts/common", "Qt5::Core picture", "hosts/common may not link server/worker: picture");
    links("host links an imaging library", "hosts/cli", "PkgConfig::exiv2",
          "hosts/cli may not link an imaging library: PkgConfig::exiv2");
    links("worker links a folder without a place", "server/worker", "extra",
          "server/worker may not link a folder without a place: extra");
    links("window links command line", "hosts/desktop", "cli", "hosts/desktop may not link hosts/cli: cli");
}

void tst_Structure::everyKindOfBreakIsNamed()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, text);
    QFETCH(QString, finding);
    const QTemporaryDir tree;
    QVERIFY(WriteOrderlyTree(tree.path()));
    QVERIFY(Write(tree.path(), path, text));
    // A break against the order may close a circle too.
    const QStringList findings = CheckStructure(tree.path()).findings;
    const QStringList circles = findings.filter(QStringLiteral("circle between folders: "));
    QCOMPARE(findings.mid(0, findings.size() - circles.size()), QStringList{finding});
}

void tst_Structure::everyCircleIsNamedOnce_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QStringList>("includes");
    QTest::addColumn<QStringList>("findings");

    const QString decode = QStringLiteral("server/worker/decode/");
    const QString pixels = QStringLiteral("server/worker/pixels/");
    const QString rooms = QStringLiteral("circle between folders: server/worker/decode -> server/worker/pixels "
                                         "(server/worker/decode/PictureSource.cpp:1) -> server/worker/decode "
                                         "(server/worker/pixels/Row.cpp:1)");
    QTest::newRow("two rooms of the worker")
        << QStringList{decode + QStringLiteral("Decoder.h"), pixels + QStringLiteral("Row.cpp")}
        << QStringList{QStringLiteral("PictureSource.cpp"), decode + QStringLiteral("Decoder.h")} << QStringList{rooms};

    const QString commands = QStringLiteral("hosts/cli/commands/");
    const QString options = QStringLiteral("hosts/cli/options/");
    const QString terminal = QStringLiteral("hosts/cli/terminal/");
    const QStringList threePaths{commands + QStringLiteral("A.h"), options + QStringLiteral("A.h"),
                                 terminal + QStringLiteral("A.h")};
    const QStringList threeIncludes{options + QStringLiteral("A.h"), terminal + QStringLiteral("A.h"),
                                    commands + QStringLiteral("A.h")};
    const QString three = QStringLiteral("circle between folders: hosts/cli/commands -> hosts/cli/options "
                                         "(hosts/cli/commands/A.h:1) -> hosts/cli/terminal (hosts/cli/options/A.h:1) "
                                         "-> hosts/cli/commands (hosts/cli/terminal/A.h:1)");
    QTest::newRow("three folders") << threePaths << threeIncludes << QStringList{three};

    QTest::newRow("two circles") << threePaths + QStringList{decode + QStringLiteral("Decoder.h"),
                                                             pixels + QStringLiteral("Row.cpp")}
                                 << threeIncludes + QStringList{QStringLiteral("PictureSource.cpp"),
                                                                decode + QStringLiteral("Decoder.h")}
                                 << QStringList{three, rooms};
}

void tst_Structure::everyCircleIsNamedOnce()
{
    QFETCH(QStringList, paths);
    QFETCH(QStringList, includes);
    QFETCH(QStringList, findings);
    const QTemporaryDir tree;
    QVERIFY(WriteOrderlyTree(tree.path()));
    for (int i = 0; i < paths.size(); ++i)
        QVERIFY(Write(tree.path(), paths[i], "#include \"" + includes[i].toUtf8() + "\"\n"));
    QCOMPARE(CheckStructure(tree.path()).findings, findings);
}

QTEST_GUILESS_MAIN(tst_Structure)
#include "tst_structure.moc"
