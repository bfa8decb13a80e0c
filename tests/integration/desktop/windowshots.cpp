// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/Language.h"
#include "hosts/desktop/settings/sections/SettingsSection.h"
#include "hosts/desktop/system/ApplicationColours.h"
#include "hosts/desktop/window/MainWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <utility>

using namespace BatchDesktop;

// Pictures of the window in its states, made by the window itself with real photos and a real run. Language and scale
// come from the environment.
//   windowshots PHOTOS FOLDER --state NAME [--size WIDTHxHEIGHT] [--dark] [--prefix TEXT]

namespace {

constexpr int patience = 60'000; // ms

class Shots
{
public:
    Shots(QString photosFolder, QString shotsFolder, const QSize& size)
        : photos(std::move(photosFolder))
        , folder(std::move(shotsFolder))
        , window(Path("settings"), Path("data"))
    {
        window.resize(size);
        window.show();
        Settings settings = window.Job().CurrentSettings();
        settings.outputFolder = Path("results");
        window.Job().Change(settings, QStringLiteral("Start"));
    }

    bool Take(const QString& state)
    {
        const std::pair<const char*, std::function<void()>> states[] = {
            {"empty", [] {}},
            {"editing", [this] { Edit(); }},
            {"running", [this] { Run(); }},
            {"question", [this] { Ask(); }},
            {"finished", [this] { Finish(); }},
        };
        for (const auto& [name, reach] : states) {
            if (state == QLatin1String(name)) {
                reach();
                QTest::qWait(settling);
                return window.grab().save(folder + state + QStringLiteral(".png"));
            }
        }
        return false;
    }

private:
    static constexpr int settling = 3000; // ms, for what is shown at leisure, such as the estimate

    QString Path(const char* name) const { return temporary.filePath(QLatin1String(name)); }

    template<typename Condition>
    static void WaitFor(Condition condition, const char* what)
    {
        if (!QTest::qWaitFor(condition, patience)) {
            qFatal("waited in vain for %s", what);
        }
    }

    void AddPhotos()
    {
        window.AddPaths({photos});
        WaitFor([this] { return !window.Preview().File().isEmpty(); }, "pictures");
    }

    /// In a narrow window it is behind a tab.
    void ShowPreview()
    {
        if (!window.Preview().isVisible()) {
            return;
        }
        QSignalSpy made(&window.Preview().Maker(), &PreviewMaker::Made);
        WaitFor([&made] { return !made.isEmpty(); }, "the preview");
    }

    void Edit()
    {
        AddPhotos();
        window.PresetChoice().Choose(QStringLiteral("web"));
        Settings settings = window.Job().CurrentSettings();
        settings.outputFolder = Path("results");
        settings.effects = {{QStringLiteral("exposure"), R"({"stops": 0.4})"},
                            {QStringLiteral("vibrance"), R"({"amount": 50})"},
                            {QStringLiteral("vignette"), R"({"amount": -60})"}};
        window.Job().Change(settings, QStringLiteral("Effects"));
        for (SettingsSection* const section : window.findChildren<SettingsSection*>()) {
            section->SetFolded(section->objectName() != QLatin1String("effects"));
        }
        ShowPreview();
    }

    void Run()
    {
        Edit();
        window.StartRun();
        WaitFor([this] { return window.Runner().CurrentProgress().Done() >= 3; }, "the third picture");
        window.Runner().Pause(); // It stays as it is for the picture.
    }

    /// The names of the results are taken.
    void Ask()
    {
        Edit();
        const QString taken = Path("results/") + QFileInfo(photos).fileName();
        QDir().mkpath(taken);
        const QFileInfoList files = QDir(photos).entryInfoList(QDir::Files);
        for (const QFileInfo& file : files) {
            QFile::copy(file.filePath(), taken + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".jpg"));
        }
        window.StartRun();
        WaitFor([this] { return window.Runner().OpenQuestion().has_value(); }, "the question");
    }

    /// One picture is broken.
    void Finish()
    {
        Edit();
        QFile broken(Path("Broken.jpg"));
        if (!broken.open(QIODevice::WriteOnly)) {
            qFatal("%s cannot be written", qPrintable(broken.fileName()));
        }
        broken.write("no picture");
        broken.close();
        window.AddPaths({broken.fileName()});
        Settings settings = window.Job().CurrentSettings();
        settings.policies.fill(0);
        window.Job().Change(settings, QStringLiteral("Errors"));
        WaitFor([this] { return window.Job().Document().GetInputModel()->GetFileNodesCount() == 13; }, "13 pictures");
        window.StartRun();
        WaitFor([this] { return window.Runner().LastEnd().has_value(); }, "the end");
    }

    const QString photos;
    const QString folder; ///< with the prefix of the files
    QTemporaryDir temporary;
    MainWindow window;
};

} // namespace

int main(int argc, char** argv)
{
    BatchHost::UseLanguageOfUser();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));

    QCommandLineParser parser;
    const QCommandLineOption size(QStringLiteral("size"), {}, QStringLiteral("WxH"), QStringLiteral("1280x800"));
    const QCommandLineOption dark(QStringLiteral("dark"));
    const QCommandLineOption prefix(QStringLiteral("prefix"), {}, QStringLiteral("TEXT"));
    const QCommandLineOption state(QStringLiteral("state"), {}, QStringLiteral("NAME"));
    parser.addOptions({size, dark, prefix, state});
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    const QStringList sides = parser.value(size).split(QLatin1Char('x'));
    if (arguments.size() != 2 || sides.size() != 2) {
        qFatal("windowshots PHOTOS FOLDER --state NAME [--size WxH] [--dark] [--prefix TEXT]");
    }
    if (parser.isSet(dark)) {
        QApplication::setPalette(DarkPalette());
    }
    Shots shots(arguments.first(), arguments.last() + QLatin1Char('/') + parser.value(prefix),
                QSize(sides.first().toInt(), sides.last().toInt()));
    if (!shots.Take(parser.value(state))) {
        qFatal("%s is no state, or its picture could not be written", qPrintable(parser.value(state)));
    }
    return 0;
}
