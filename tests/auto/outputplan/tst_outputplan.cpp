// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"

#include "job/plan/OutputPlan.h"
#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"

#include <QtTest>

#include <filesystem>

using namespace BatchJob;
using Settings = ZTBatchOutputSettings;
using Clash = OutputPlan::Clash;

class tst_OutputPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void filesComeInDocumentOrder();
    void deepTreesAreWalked();
    void folderNamesStayInside();

    void structures_data();
    void structures();
    void numbersFollowTheDocument();
    void captureTimesAreAskedForWhenNeeded();

    void originalFormats_data();
    void originalFormats();
    void aFormatIsNeededForAName();
    void namedPipesAreNotOpened();

    void clashes_data();
    void clashes();
    void sourcesThroughHardLinks();
    void sourcesThroughSymbolicLinks();
    void anothersSource();
    void sharedSources();
    void renamedNamesAreFree();
    void changedFormatsAreCheckedAgain();
    void namesAtTheLimitAreRenamed();
    void spellingsAtTheLimitAreNumberedOnTheirOwn();
    void givenUp();
    void manyFiles_data();
    void manyFiles();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    QString Write(const QString& name, const QByteArray& content = "content");
    OutputPlan Plan(const QStringList& inputs, const QString& format = QStringLiteral("PNG"));

    std::unique_ptr<QTemporaryDir> folder;
    JobSettings settings;
};

namespace {

OutputNaming NamingOf(Settings::NamingTemplate middle, const QString& text = {}, int digits = 1)
{
    Settings settings(nullptr);
    settings.SetNamingTemplate(Settings::PartMiddle, middle);
    settings.SetCustomTemplate(Settings::PartMiddle, text);
    settings.SetStartNumber(Settings::PartMiddle, 1);
    settings.SetDigitsCount(Settings::PartMiddle, digits);
    settings.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    return OutputNaming(settings);
}

QVector<JobFile> AsFiles(const QStringList& inputs)
{
    QVector<JobFile> files;
    for (const QString& input : inputs) {
        files.append({input, {}});
    }
    return files;
}

QStringList OutputNames(const OutputPlan& plan)
{
    QStringList names;
    for (int i = 0; i < plan.Count(); ++i) {
        names.append(plan.OutputName(i));
    }
    return names;
}

} // namespace

void tst_OutputPlan::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("in")));
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("out")));
    settings = JobSettings();
    settings.outputFolder = Path(QStringLiteral("out"));
    settings.naming = NamingOf(Settings::TemplateOriginalName);
}

QString tst_OutputPlan::Write(const QString& name, const QByteArray& content)
{
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
    return file.fileName();
}

OutputPlan tst_OutputPlan::Plan(const QStringList& inputs, const QString& format)
{
    settings.format = format;
    OutputPlan plan(AsFiles(inputs), settings);
    plan.ReadInputs();
    plan.MakeNames();
    return plan;
}

void tst_OutputPlan::filesComeInDocumentOrder()
{
    ZTBatchDocument document;
    ZTBatchInputModel& input = *document.GetInputModel();
    input.InsertBranch(NewFile(QStringLiteral("loose.jpg")), QModelIndex());
    input.InsertBranch(
        NewFolder(QStringLiteral("b"), {NewFile(QStringLiteral("b1.jpg")),
                                        NewFolder(QStringLiteral("inner"), {NewFile(QStringLiteral("i1.jpg"))})}),
        QModelIndex());
    input.InsertBranch(
        NewFolder(QStringLiteral("a"), {NewFile(QStringLiteral("a2.jpg")), NewFile(QStringLiteral("a1.jpg"))}),
        QModelIndex());
    input.InsertBranch(NewFolder(QStringLiteral("empty")), QModelIndex());

    QStringList files;
    for (const JobFile& file : FilesOfJob(input)) {
        files.append(file.folder + QLatin1Char('|') + file.path);
    }
    QCOMPARE(files, (QStringList{QStringLiteral("a|/in/a1.jpg"), QStringLiteral("a|/in/a2.jpg"),
                                 QStringLiteral("b/inner|/in/i1.jpg"), QStringLiteral("b|/in/b1.jpg"),
                                 QStringLiteral("|/in/loose.jpg")}));
}

void tst_OutputPlan::deepTreesAreWalked()
{
    constexpr int depth = 3000;
    InputNode* node = NewFile(QStringLiteral("deep.jpg"));
    for (int i = 0; i < depth; ++i) {
        node = NewFolder(QStringLiteral("f"), {node});
    }
    ZTBatchDocument document;
    document.GetInputModel()->InsertBranch(node, QModelIndex());
    const QVector<JobFile> files = FilesOfJob(*document.GetInputModel());
    QCOMPARE(files.size(), 1);
    QCOMPARE(files[0].folder.size(), 2 * depth - 1);
}

void tst_OutputPlan::folderNamesStayInside()
{
    ZTBatchDocument document;
    auto* const hostile = NewFolder(QStringLiteral("x"), {NewFile(QStringLiteral("a.jpg"))});
    hostile->data.fileName = QStringLiteral("/in/..");
    auto* const device = NewFolder(QStringLiteral("y"), {NewFile(QStringLiteral("b.jpg"))});
    device->data.fileName = QStringLiteral("/in/CON/");
    auto* const root = NewFolder(QStringLiteral("z"), {NewFile(QStringLiteral("c.jpg"))});
    root->data.fileName = QStringLiteral("/");
    for (InputNode* const node : {hostile, device, root}) {
        document.GetInputModel()->InsertBranch(node, QModelIndex());
    }
    QStringList folders;
    for (const JobFile& file : FilesOfJob(*document.GetInputModel())) {
        folders.append(file.folder);
    }
    QCOMPARE(folders, (QStringList{QStringLiteral("__"), QStringLiteral("_"), QStringLiteral("_")}));
}

void tst_OutputPlan::structures_data()
{
    QTest::addColumn<int>("structure");
    QTest::addColumn<QDateTime>("captured");
    QTest::addColumn<QString>("output");
    const QDateTime known(QDate(2023, 12, 31), QTime(23, 59));
    QTest::newRow("flat") << int(Settings::StructureFlat) << known << QStringLiteral("a.png");
    QTest::newRow("as in the input") << int(Settings::StructureAsInput) << known << QStringLiteral("Trip/Day 1/a.png");
    QTest::newRow("by date") << int(Settings::StructureByCaptureDate) << known
                             << QStringLiteral("2023/2023-12-31/a.png");
    QTest::newRow("by date, unknown") << int(Settings::StructureByCaptureDate) << QDateTime()
                                      << QStringLiteral("0000/0000-00-00/a.png");
}

void tst_OutputPlan::structures()
{
    QFETCH(int, structure);
    QFETCH(QDateTime, captured);
    QFETCH(QString, output);
    settings.folderStructure = Settings::FolderStructure(structure);
    settings.format = QStringLiteral("PNG");
    OutputPlan plan({{QStringLiteral("/in/a.jpg"), QStringLiteral("Trip/Day 1")}}, settings);
    QCOMPARE(plan.FilesToProbe().size(), structure == Settings::StructureByCaptureDate ? 1 : 0);
    plan.SetProbe(0, captured, {});
    QVERIFY(plan.MakeNames());
    QCOMPARE(plan.Output(0), Path(QStringLiteral("out/")) + output);
}

void tst_OutputPlan::numbersFollowTheDocument()
{
    settings.naming = NamingOf(Settings::TemplateNumber, {}, 2);
    Write(QStringLiteral("out/02.png"));
    const OutputPlan plan =
        Plan({QStringLiteral("/in/z.jpg"), QStringLiteral("/in/missing.jpg"), QStringLiteral("/in/a.jpg")});
    QCOMPARE(OutputNames(plan),
             (QStringList{QStringLiteral("01.png"), QStringLiteral("02.png"), QStringLiteral("03.png")}));
    QCOMPARE(int(plan.ClashOf(1)), int(Clash::Disk));
}

void tst_OutputPlan::captureTimesAreAskedForWhenNeeded()
{
    settings.format = QStringLiteral("PNG");
    settings.naming = NamingOf(Settings::TemplateCaptureDate);
    OutputPlan plan(AsFiles({QStringLiteral("/in/a.jpg"), QStringLiteral("/in/b.jpg")}), settings);
    QCOMPARE(plan.FilesToProbe(), (QVector<int>{0, 1}));
    plan.SetProbe(1, QDateTime(QDate(2020, 1, 2), QTime(3, 4)), QStringLiteral("JPEG"));
    plan.MakeNames();
    QCOMPARE(OutputNames(plan), (QStringList{QStringLiteral("00000000.png"), QStringLiteral("20200102.png")}));
    QCOMPARE(Plan({QStringLiteral("/in/a.jpg")}).Format(0)->name, QStringLiteral("PNG"));
}

void tst_OutputPlan::originalFormats_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("inputFormat");
    QTest::addColumn<QString>("output"); // empty: cannot be written
    QTest::addColumn<bool>("isProbed");
    const QByteArray jpeg("\xFF\xD8\xFF\xE0 and so on");
    const QByteArray tiff("II*\0 and so on", 14);
    QTest::newRow("JPEG") << "a.jpg" << jpeg << "JPEG"
                          << "a.jpg" << false;
    QTest::newRow("usual extension") << "a.JPEG" << jpeg << "JPEG"
                                     << "a.jpg" << false;
    QTest::newRow("wrong extension") << "a.png" << jpeg << "JPEG"
                                     << "a.jpg" << false;
    QTest::newRow("no extension") << "a" << jpeg << "JPEG"
                                  << "a.jpg" << false;
    QTest::newRow("TIFF") << "a.tiff" << tiff << "TIFF"
                          << "a.tif" << false;
    QTest::newRow("camera RAW") << "a.dng" << tiff << "RAW" << QString() << false;
    QTest::newRow("unknown") << "a.jpg" << QByteArray("text") << QString() << QString() << true;
    QTest::newRow("empty") << "a.jpg" << QByteArray() << QString() << QString() << true;
}

void tst_OutputPlan::originalFormats()
{
    QFETCH(QString, input);
    QFETCH(QByteArray, content);
    QFETCH(bool, isProbed);
    const OutputPlan plan = Plan({Write(QStringLiteral("in/") + input, content)}, Settings::GetOriginalFormat());
    QTEST(plan.InputFormat(0), "inputFormat");
    QTEST(plan.OutputName(0), "output");
    QCOMPARE(plan.Format(0) != nullptr, !plan.OutputName(0).isEmpty());
    QCOMPARE(plan.FilesToProbe().size(), isProbed ? 1 : 0);
}

void tst_OutputPlan::aFormatIsNeededForAName()
{
    settings.format = Settings::GetOriginalFormat();
    OutputPlan plan(AsFiles({Write(QStringLiteral("in/a.psd")), Write(QStringLiteral("in/b.x")),
                             Path(QStringLiteral("in/missing.jpg"))}),
                    settings);
    plan.ReadInputs();
    QCOMPARE(plan.FilesToProbe(), (QVector<int>{0, 1, 2}));
    plan.SetProbe(0, {}, QStringLiteral("PSD"));
    plan.SetProbe(1, {}, QStringLiteral("WebP"));
    plan.MakeNames();
    QCOMPARE(OutputNames(plan), (QStringList{QString(), QStringLiteral("b.webp"), QString()}));
    QCOMPARE(plan.Output(0), QString());
    plan.ChangeFormat(0, *FindFormat(QStringLiteral("TIFF")));
    QCOMPARE(plan.Output(0), Path(QStringLiteral("out/a.tif")));
}

void tst_OutputPlan::namedPipesAreNotOpened()
{
#ifdef Q_OS_UNIX
    QVERIFY(QProcess::execute(QStringLiteral("mkfifo"), {Path(QStringLiteral("in/pipe.jpg"))}) == 0);
    const OutputPlan plan = Plan({Path(QStringLiteral("in/pipe.jpg"))}, Settings::GetOriginalFormat());
    QVERIFY(!plan.Format(0));
#else
    QSKIP("Files are no pipes here.");
#endif
}

void tst_OutputPlan::clashes_data()
{
    QTest::addColumn<QStringList>("onDisk");
    QTest::addColumn<QStringList>("inputs");
    QTest::addColumn<QVector<int>>("expected");
    const auto row = [](const char* title, const QStringList& onDisk, const QStringList& inputs,
                        const QVector<Clash>& expected) {
        QVector<int> numbers;
        for (const Clash clash : expected) {
            numbers.append(int(clash));
        }
        QTest::newRow(title) << onDisk << inputs << numbers;
    };
    row("none", {}, {QStringLiteral("in/a.jpg"), QStringLiteral("in/b.jpg")}, {Clash::None, Clash::None});
    row("disk", {QStringLiteral("out/a.png")}, {QStringLiteral("in/a.jpg")}, {Clash::Disk});
    row("disk, other case", {QStringLiteral("out/A.PNG")}, {QStringLiteral("in/a.jpg")}, {Clash::Disk});
    row("disk, decomposed", {QStringLiteral(u"out/a\u0308.png")}, {QStringLiteral(u"in/\u00C4.jpg")}, {Clash::Disk});
    row("disk, hidden", {QStringLiteral("out/.a.png")}, {QStringLiteral("in/.a.jpg")}, {Clash::Disk});
    row("disk, another extension", {QStringLiteral("out/a.tif")}, {QStringLiteral("in/a.jpg")}, {Clash::None});
    row("each other", {}, {QStringLiteral("in/a.jpg"), QStringLiteral("in/x/A.tif"), QStringLiteral("in/y/a.jpg")},
        {Clash::None, Clash::Result, Clash::Result});
    row("disk and each other", {QStringLiteral("out/a.png")},
        {QStringLiteral("in/a.jpg"), QStringLiteral("in/x/a.tif")}, {Clash::Disk, Clash::Result});
    row("itself", {QStringLiteral("out/a.png")}, {QStringLiteral("out/a.png")}, {Clash::Source});
    row("itself, other case", {QStringLiteral("out/a.PNG")}, {QStringLiteral("out/a.PNG")}, {Clash::Source});
    row("a later source", {QStringLiteral("out/b.png"), QStringLiteral("in/b.jpg")},
        {QStringLiteral("in/b.jpg"), QStringLiteral("out/b.png")}, {Clash::Source, Clash::Result});
}

void tst_OutputPlan::clashes()
{
    QFETCH(QStringList, onDisk);
    QFETCH(QStringList, inputs);
    for (const QString& name : onDisk) {
        Write(name);
    }
    for (QString& input : inputs) {
        input = Path(input);
    }
    const OutputPlan plan = Plan(inputs);
    QVector<int> found;
    for (int i = 0; i < plan.Count(); ++i) {
        found.append(int(plan.ClashOf(i)));
        if (plan.ClashOf(i) == Clash::Result) {
            QCOMPARE(plan.ClashesWith(i), 0);
        }
    }
    QTEST(found, "expected");
}

void tst_OutputPlan::sourcesThroughHardLinks()
{
    const QString source = Write(QStringLiteral("in/a.png"));
    std::filesystem::create_hard_link(source.toStdU16String(), Path(QStringLiteral("out/a.png")).toStdU16String());
    QCOMPARE(int(Plan({source}).ClashOf(0)), int(Clash::Source));
}

void tst_OutputPlan::sourcesThroughSymbolicLinks()
{
#ifdef Q_OS_UNIX
    const QString source = Write(QStringLiteral("in/a.png"));
    QVERIFY(QFile::link(source, Path(QStringLiteral("out/a.png"))));
    QCOMPARE(int(Plan({source}).ClashOf(0)), int(Clash::Source));

    QVERIFY(QFile::remove(Path(QStringLiteral("out/a.png"))));
    QVERIFY(QFile::link(Path(QStringLiteral("in")), Path(QStringLiteral("linked"))));
    settings.outputFolder = Path(QStringLiteral("linked"));
    QCOMPARE(int(Plan({source}).ClashOf(0)), int(Clash::Source));
#else
    QSKIP("Symbolic links need rights here.");
#endif
}

void tst_OutputPlan::anothersSource()
{
    const QString own = Write(QStringLiteral("out/a.png"));
    const QString other = Write(QStringLiteral("out/b.png"));
    const QString elsewhere = Write(QStringLiteral("in/b.jpg"));
    OutputPlan plan = Plan({own, elsewhere, other});
    QCOMPARE(int(plan.ClashOf(0)), int(Clash::Source));
    QVERIFY(!plan.IsAnothersSource(0));
    QCOMPARE(int(plan.ClashOf(1)), int(Clash::Source));
    QVERIFY(plan.IsAnothersSource(1));

    // The same file twice: each would take the other's source away.
    OutputPlan twice = Plan({own, own});
    QVERIFY(twice.IsAnothersSource(0));
}

void tst_OutputPlan::sharedSources()
{
    const QString mark = Write(QStringLiteral("out/a.png"));
    const QString background = Write(QStringLiteral("out/b.png"));
    const QStringList inputs{QStringLiteral("/in/a.jpg"), QStringLiteral("/in/b.jpg"), mark};
    settings.effects = {{FindEffect(QStringLiteral("watermark-image")), {{QStringLiteral("file"), mark}}}};
    settings.framing.backgroundType = int(BatchJob::BackgroundType::Image);
    settings.framing.backgroundImage = background;
    settings.framing.state = false; // So the background is none of its sources.
    OutputPlan unframed = Plan(inputs);
    QVERIFY(unframed.IsAnothersSource(0));
    QVERIFY(!unframed.IsAnothersSource(1));
    QVERIFY(unframed.IsAnothersSource(2)); // Its own, but others need it as it is.
    settings.framing.state = true;
    OutputPlan framed = Plan(inputs);
    QVERIFY(framed.IsAnothersSource(1));
    QCOMPARE(int(framed.ClashOf(1)), int(Clash::Source));
}

void tst_OutputPlan::renamedNamesAreFree()
{
    Write(QStringLiteral("out/a.png"));
    Write(QStringLiteral("out/A (3).png"));
    OutputPlan plan = Plan({QStringLiteral("/in/a.jpg"), QStringLiteral("/in/x/a.jpg"), QStringLiteral("/in/y/a.jpg"),
                            QStringLiteral("/in/a (5).jpg")});
    plan.Rename(0);
    QCOMPARE(int(plan.ClashOf(0)), int(Clash::None));
    plan.Rename(1);
    plan.Rename(2);
    QCOMPARE(OutputNames(plan), (QStringList{QStringLiteral("a (2).png"), QStringLiteral("a (4).png"),
                                             QStringLiteral("a (6).png"), QStringLiteral("a (5).png")}));
    // A name that turned out to be taken after all.
    plan.Rename(0);
    QCOMPARE(plan.OutputName(0), QStringLiteral("a (7).png"));
}

void tst_OutputPlan::changedFormatsAreCheckedAgain()
{
    Write(QStringLiteral("out/b.tif"));
    OutputPlan plan = Plan({QStringLiteral("/in/a.jpg"), QStringLiteral("/in/x/a.jpg"), QStringLiteral("/in/b.jpg")});
    const FormatSchema& tiff = *FindFormat(QStringLiteral("TIFF"));
    plan.Rename(1);
    plan.ChangeFormat(1, tiff);
    plan.ChangeFormat(2, tiff);
    QCOMPARE(OutputNames(plan),
             (QStringList{QStringLiteral("a.png"), QStringLiteral("a (2).tif"), QStringLiteral("b.tif")}));
    QCOMPARE(int(plan.ClashOf(1)), int(Clash::None));
    QCOMPARE(int(plan.ClashOf(2)), int(Clash::Disk));
    plan.Rename(2);
    QCOMPARE(plan.OutputName(2), QStringLiteral("b (2).tif"));
}

void tst_OutputPlan::namesAtTheLimitAreRenamed()
{
    const QString input = QStringLiteral("/in/%1.jpg").arg(QString(300, QLatin1Char('a')));
    OutputPlan plan = Plan({input, input});
    plan.Rename(1);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(plan.OutputName(i).toUtf8().size(), longestName);
        Write(QStringLiteral("out/") + plan.OutputName(i));
    }
    QVERIFY(plan.OutputName(1).endsWith(QStringLiteral("a (2).png")));
}

/// Two spellings of one name may be cut at different places to make room for a number. Then a number that the one has
/// taken is free for the other, whether the first was renamed by this part of the run or by an earlier one.
void tst_OutputPlan::spellingsAtTheLimitAreNumberedOnTheirOwn()
{
    const QString rest(100, QChar(0x4E00)); // three bytes each
    const QString composed = QStringLiteral("/in/aa") + QChar(0xE9) + rest;
    const QString decomposed = QStringLiteral("/in/aae") + QChar(0x301) + rest;
    OutputPlan plan = Plan({composed, decomposed, composed});
    plan.Rename(1);
    plan.Rename(2);
    for (const int file : {1, 2}) {
        QVERIFY2(plan.OutputName(file).endsWith(QStringLiteral(" (2).png")), qPrintable(plan.OutputName(file)));
    }
    QVERIFY(NameKey(plan.OutputName(1)) != NameKey(plan.OutputName(2)));

    OutputPlan resumed(AsFiles({composed, decomposed, composed}), settings);
    resumed.KeepResult(1, plan.Output(1));
    resumed.ReadInputs();
    resumed.MakeNames();
    resumed.Rename(2);
    QCOMPARE(OutputNames(resumed), OutputNames(plan));
}

void tst_OutputPlan::givenUp()
{
    settings.format = Settings::GetOriginalFormat();
    OutputPlan plan(AsFiles({QStringLiteral("/in/a.jpg"), QStringLiteral("/in/b.jpg")}), settings);
    int asked = 0;
    const auto atTheSecond = [&asked] { return ++asked == 2; };
    QVERIFY(!plan.ReadInputs(atTheSecond));
    asked = 0;
    QVERIFY(!plan.MakeNames(atTheSecond));
}

void tst_OutputPlan::manyFiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("each its own name") << QString();
    QTest::newRow("all the same name") << QStringLiteral("Sea");
}

void tst_OutputPlan::manyFiles()
{
    QFETCH(QString, text);
    constexpr int count = 100'000;
    settings.naming = NamingOf(text.isEmpty() ? Settings::TemplateNumber : Settings::TemplateCustomText, text);
    QStringList inputs;
    for (int i = 0; i < count; ++i) {
        inputs.append(QStringLiteral("/in/IMG_%1.jpg").arg(i));
    }
    QElapsedTimer time;
    time.start();
    OutputPlan plan = Plan(inputs);
    for (int i = 0; i < count; ++i) {
        if (plan.ClashOf(i) != Clash::None) {
            plan.Rename(i);
        }
    }
    // Seconds, even in a debug build under load; a search through the names for each name would take many minutes.
    QVERIFY2(time.elapsed() < 30'000, qPrintable(QString::number(time.elapsed())));
    QSet<QString> names;
    for (int i = 0; i < count; ++i) {
        names.insert(plan.OutputName(i));
    }
    QCOMPARE(names.size(), count);
}

QTEST_APPLESS_MAIN(tst_OutputPlan)
#include "tst_outputplan.moc"
