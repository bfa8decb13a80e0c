// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"
#include "ProgramFiles.h"

#include "hosts/common/JobFile.h"
#include "hosts/desktop/settings/sections/SettingsSection.h"
#include "hosts/desktop/window/MainWindow.h"

#include "ZTBatchInputModel.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QColorSpace>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

#include <cstdio>

using namespace BatchDesktop;

/// Jobs and presets in the whole window, its end and its next start, and the command line that does the same.
class tst_JobWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTitleNamesTheJob();
    void everyActionHasAMenuAndItsOwnKeys();
    void argumentsAreOpened();
    void droppedJobsAreOpenedAnywhere_data();
    void droppedJobsAreOpenedAnywhere();
    void brokenJobsAreSaid();
    void openSectionsStayOpen();
    void closedWindowsComeBack();
    void killedWindowsComeBack();
    void copiedCommandsDoTheSame_data();
    void copiedCommandsDoTheSame();
    void commandsNeedARunnableJob();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void Open();
    QAction& Action(const char* name) const;
    QString WrittenJob(const QString& name) const;
    QStringList Inputs() const;
    QString Notice() const { return static_cast<NoticeLine&>(window->Desk().Notice()).Text(); }
    QString CopiedCommand() const;
    QMap<QString, QByteArray> TakeResults() const;

    std::unique_ptr<QTemporaryDir> folder;
    QProcessEnvironment environment; ///< without what a window adds
    std::unique_ptr<MainWindow> window;
};

using Change = std::function<void(MainWindow&)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr int patience = 60'000; // ms

void SetLength(EditedJob& job, double length)
{
    Settings settings = job.CurrentSettings();
    settings.imageSize.restriction = 2;
    settings.imageSize.size = length;
    job.Change(settings, QStringLiteral("Size"));
}

void WriteFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/// A window in a process of its own. It says when everything is on the disk, and waits for its end.
int RunWindow(const QString& folder)
{
    MainWindow window(folder + QStringLiteral("/settings"), folder + QStringLiteral("/data"));
    window.show();
    window.Restore(false);
    window.OpenPaths({folder + QStringLiteral("/job.vbatch.xml")});
    window.AddPaths({folder + QStringLiteral("/photos")});
    window.PresetChoice().Choose(QStringLiteral("mail"));
    SetLength(window.Job(), 234);
    QObject::connect(&window.Desk().Saving(), &Autosave::Saved, &window, [&window] {
        if (window.Job().Document().GetInputModel()->GetFileNodesCount() == 3) {
            std::puts("saved");
            std::fflush(stdout);
        }
    });
    return QApplication::exec();
}

} // namespace

void tst_JobWindow::init()
{
    environment = QProcessEnvironment::systemEnvironment();
    folder = std::make_unique<QTemporaryDir>();
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1 it's.jpg").arg(i)), i, 120, 80);
    }
    Open();
}

void tst_JobWindow::cleanup()
{
    window.reset();
}

void tst_JobWindow::Open()
{
    window.reset();
    window = std::make_unique<MainWindow>(Path(QStringLiteral("settings")), Path(QStringLiteral("data")));
    window->show();
    Settings settings = window->Job().CurrentSettings();
    settings.outputFolder = Path(QStringLiteral("out"));
    settings.policies = {};
    window->Job().Change(settings, QStringLiteral("Folder"));
    window->Job().History().clear();
}

QAction& tst_JobWindow::Action(const char* name) const
{
    auto* const action = window->findChild<QAction*>(QString::fromLatin1(name));
    if (!action) {
        qFatal("No action %s", name);
    }
    return *action;
}

QStringList tst_JobWindow::Inputs() const
{
    QStringList paths = window->Pictures().Inputs().Nodes().keys();
    paths.sort();
    return paths;
}

/// A job of 77 pixels.
QString tst_JobWindow::WrittenJob(const QString& name) const
{
    EditedJob job;
    SetLength(job, 77);
    const QString path = Path(name);
    BatchHost::SaveJob(job.Document(), path, true);
    return path;
}

QString tst_JobWindow::CopiedCommand() const
{
    QApplication::clipboard()->clear();
    Action("copyCommand").trigger();
    const bool isThere = QTest::qWaitFor([] { return !QApplication::clipboard()->text().isEmpty(); }, patience);
    return isThere ? QApplication::clipboard()->text() : QString();
}

/// The results by name; the folder is empty afterwards.
QMap<QString, QByteArray> tst_JobWindow::TakeResults() const
{
    QMap<QString, QByteArray> results;
    QDirIterator files(Path(QStringLiteral("out")), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly)) {
            results.insert(QDir(Path(QStringLiteral("out"))).relativeFilePath(file.fileName()), file.readAll());
        }
    }
    QDir(Path(QStringLiteral("out"))).removeRecursively();
    return results;
}

void tst_JobWindow::theTitleNamesTheJob()
{
    const QString path = WrittenJob(QStringLiteral("Summer.vbatch.xml"));
    window->OpenPaths({path});
    QVERIFY(window->windowTitle().startsWith(QStringLiteral("Summer[*]")));
    QVERIFY(!window->isWindowModified());
    SetLength(window->Job(), 78);
    QVERIFY(window->isWindowModified());
    Action("saveJob").trigger();
    QVERIFY(!window->isWindowModified());
    window->Job().History().undo();
    QVERIFY(window->isWindowModified());
}

void tst_JobWindow::everyActionHasAMenuAndItsOwnKeys()
{
    for (const char* name : {"newJob", "openJob", "saveJob", "saveJobAs", "copyCommand", "savePreset", "renamePreset",
                             "removePreset", "importPreset", "exportPreset"}) {
        QVERIFY2(qobject_cast<QMenu*>(Action(name).parent()), name);
    }
    QStringList mnemonics;
    const auto menus = window->menuBar()->actions();
    for (const QAction* const menu : menus) {
        mnemonics.append(QKeySequence::mnemonic(menu->text()).toString());
    }
    const auto headings = window->findChildren<QAbstractButton*>(QRegularExpression(QStringLiteral("\\.heading$")));
    for (const QAbstractButton* const heading : headings) {
        mnemonics.append(QKeySequence::mnemonic(heading->text()).toString());
    }
    QVERIFY(mnemonics.size() > 10);
    mnemonics.removeAll(QString());
    QCOMPARE(mnemonics.removeDuplicates(), 0);
    QHash<QKeySequence, QString> keys;
    const auto actions = window->findChildren<QAction*>();
    for (const QAction* const action : actions) {
        const QKeySequence key = action->shortcut();
        if (!key.isEmpty() && !action->objectName().isEmpty()) {
            QVERIFY2(!keys.contains(key), qPrintable(key.toString() + keys.value(key) + action->objectName()));
            keys.insert(key, action->objectName());
        }
    }
}

void tst_JobWindow::argumentsAreOpened()
{
    const QString path = WrittenJob(QStringLiteral("job.vbatch.xml"));
    const QString picture = Path(QStringLiteral("photos/1 it's.jpg"));
    window->Restore(false);
    window->OpenPaths({path, picture});
    QCOMPARE(window->Desk().Keeper().File(), path);
    QTRY_COMPARE(Inputs(), QStringList{picture});
    QCOMPARE(window->Job().CurrentSettings().imageSize.size, 77.0);
}

void tst_JobWindow::droppedJobsAreOpenedAnywhere_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("window") << QString();
    QTest::newRow("pictures") << QStringLiteral("picturesPane");
}

void tst_JobWindow::droppedJobsAreOpenedAnywhere()
{
    QFETCH(QString, target);
    auto* const widget = target.isEmpty() ? window.get() : window->findChild<QWidget*>(target);
    const QString path = WrittenJob(QStringLiteral("job.vbatch.xml"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
    QTRY_COMPARE(window->Desk().Keeper().File(), path);
    QVERIFY(Inputs().isEmpty());
}

void tst_JobWindow::brokenJobsAreSaid()
{
    const QString broken = Path(QStringLiteral("broken.vbatch.xml"));
    WriteFile(broken, "<!DOCTYPE batch>\n<root>\n");
    window->AddPaths({Path(QStringLiteral("photos"))});
    QTRY_COMPARE(window->Pictures().Inputs().FileCount(), 3);
    window->Desk().Keeper().dialogs.askForChanges = [](QWidget*, const QString&) {
        return JobDialogs::Answer::Discard;
    };
    window->OpenPaths({broken});
    QVERIFY2(Notice().contains(broken), qPrintable(Notice()));
    QCOMPARE(window->Pictures().Inputs().FileCount(), 3);
    QCOMPARE(window->Job().CurrentSettings().outputFolder, Path(QStringLiteral("out")));
}

void tst_JobWindow::openSectionsStayOpen()
{
    auto* const size = window->findChild<SettingsSection*>(QStringLiteral("size"));
    QVERIFY(size && size->IsFolded());
    size->SetFolded(false);
    window->close();
    Open();
    QVERIFY(!window->findChild<SettingsSection*>(QStringLiteral("size"))->IsFolded());
    QVERIFY(window->findChild<SettingsSection*>(QStringLiteral("folder"))->IsFolded());
}

void tst_JobWindow::closedWindowsComeBack()
{
    window->AddPaths({Path(QStringLiteral("photos"))});
    QTRY_COMPARE(window->Pictures().Inputs().FileCount(), 3);
    SetLength(window->Job(), 345);
    const Settings before = window->Job().CurrentSettings();
    window->close();
    window.reset();
    window = std::make_unique<MainWindow>(Path(QStringLiteral("settings")), Path(QStringLiteral("data")));
    window->show();
    window->Restore(true);
    QCOMPARE(Notice(), QString());
    QCOMPARE(window->Pictures().Inputs().FileCount(), 3);
    QVERIFY(window->Job().CurrentSettings() == before);
    window->close();
    window.reset();
    window = std::make_unique<MainWindow>(Path(QStringLiteral("settings")), Path(QStringLiteral("data")));
    const QString picture = Path(QStringLiteral("photos/1 it's.jpg"));
    window->Restore(false);
    window->OpenPaths({picture});
    QTRY_COMPARE(Inputs(), QStringList{picture});
    QCOMPARE(window->Job().CurrentSettings().imageSize.size, 345.0);
}

void tst_JobWindow::killedWindowsComeBack()
{
    window.reset();
    QDir(Path(QStringLiteral("data"))).removeRecursively();
    const QString job = WrittenJob(QStringLiteral("job.vbatch.xml"));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--window"), folder->path()});
    QVERIFY(process.waitForStarted());
    QByteArray said;
    while (!said.contains("saved") && process.waitForReadyRead(patience)) {
        said += process.readAllStandardOutput();
    }
    QVERIFY(said.contains("saved"));
    process.kill();
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);

    window = std::make_unique<MainWindow>(Path(QStringLiteral("settings")), Path(QStringLiteral("data")));
    window->show();
    window->Restore(true);
    QCOMPARE(window->Pictures().Inputs().FileCount(), 3);
    QCOMPARE(window->Job().CurrentSettings().imageSize.size, 234.0);
    QCOMPARE(window->PresetChoice().Active(), QStringLiteral("mail"));
    QCOMPARE(window->Desk().Keeper().File(), job);
    QVERIFY(window->isWindowModified());
    QVERIFY(!Notice().isEmpty());
}

void tst_JobWindow::copiedCommandsDoTheSame_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("needsFile");
    const auto row = [](const char* name, bool needsFile, const Change& change) {
        QTest::newRow(name) << change << needsFile;
    };
    row("as it is", false, [](MainWindow&) {});
    row("preset with a profile, changed", false, [](MainWindow& window) {
        window.PresetChoice().Choose(QStringLiteral("web"));
        Settings settings = window.Job().CurrentSettings();
        settings.imageSize.size = 60;
        settings.profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
        settings.effects.append({QStringLiteral("exposure"), R"({"stops":0.5})", true});
        settings.effects.append({QStringLiteral("blur"), R"({"sigma":2})", false});
        settings.nameParts[0] = {ZTBatchOutputSettings::TemplateCustomText, QStringLiteral("it's $HOME"), 0, 1};
        settings.prefixSeparator = QStringLiteral("-");
        window.Job().Change(settings, QStringLiteral("Test"));
    });
    row("folder with a picture removed", true, [](MainWindow& window) {
        const QStringList files = window.Pictures().Inputs().Nodes().keys();
        for (const QString& file : files) {
            if (file.endsWith(QStringLiteral("2 it's.jpg"))) {
                window.Pictures().Select(file);
            }
        }
        window.Pictures().RemoveSelected();
        SetLength(window.Job(), 50);
    });
}

// The line goes through a real shell; its results and those of the window are the same files.
void tst_JobWindow::copiedCommandsDoTheSame()
{
#ifdef Q_OS_UNIX
    QFETCH(Change, change);
    QFETCH(bool, needsFile);
    window->AddPaths({Path(QStringLiteral("photos"))});
    QTRY_COMPARE(window->Pictures().Inputs().FileCount(), 3);
    change(*window);
    window->StartRun();
    QTRY_VERIFY_WITH_TIMEOUT(window->Runner().LastEnd(), patience);
    window->Runner().Dismiss();
    const QMap<QString, QByteArray> ofWindow = TakeResults();
    QCOMPARE(ofWindow.size(), window->Pictures().Inputs().FileCount());

    const QString line = CopiedCommand();
    QVERIFY2(line.startsWith(QStringLiteral("velkora-batch run ")), qPrintable(line));
    QCOMPARE(line.contains(QStringLiteral(".vbatch.xml")), needsFile);
    QCOMPARE(line.contains(QStringLiteral("--output")), !needsFile);
    window.reset();
    QTemporaryDir other;
    environment.insert(QStringLiteral("PATH"), QCoreApplication::applicationDirPath() + QLatin1Char(':') +
                                                   environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), other.path());
    environment.insert(QStringLiteral("TMPDIR"), other.path());
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), line});
    QVERIFY(shell.waitForFinished(patience));
    const QByteArray output = shell.readAll();
    QVERIFY2(shell.exitCode() == 0, output.constData());
    const QMap<QString, QByteArray> ofCommand = TakeResults();
    QCOMPARE(ofCommand.keys(), ofWindow.keys());
    QVERIFY(ofCommand == ofWindow);
#endif
}

void tst_JobWindow::commandsNeedARunnableJob()
{
    Action("copyCommand").trigger();
    QTRY_VERIFY(!Notice().isEmpty());
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--window") == 0) {
        return RunWindow(QString::fromLocal8Bit(argv[2]));
    }
    tst_JobWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_jobwindow.moc"
