// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/Language.h"
#include "hosts/common/UserPath.h"
#include "hosts/desktop/system/ApplicationColours.h"
#include "hosts/desktop/system/ApplicationFont.h"
#include "hosts/desktop/system/DesktopNames.h"
#include "hosts/desktop/system/SingleInstance.h"
#include "hosts/desktop/window/MainWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <algorithm>

using namespace BatchDesktop;
using BatchHost::Messages;

namespace {

const QString newJobOption = QStringLiteral("--new-job");

/// Of the command line: the option, if it is there, and the paths, absolute.
QStringList Arguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Messages::tr("Processes pictures in batches, in a window."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption newJob(newJobOption.mid(2), Messages::tr("Begins with a new job."));
    parser.addOption(newJob);
    parser.addPositionalArgument(QStringLiteral("path"), Messages::tr("Pictures and folders to add."),
                                 QStringLiteral("[path...]"));
    parser.process(*QCoreApplication::instance());
    QStringList paths = parser.positionalArguments();
    std::transform(paths.begin(), paths.end(), paths.begin(), BatchHost::AbsolutePath);
    return parser.isSet(newJob) ? QStringList(newJobOption) + paths : paths;
}

void Open(MainWindow& window, const QStringList& arguments)
{
    const bool isNewJob = !arguments.isEmpty() && arguments.first() == newJobOption;
    if (isNewJob) {
        window.Desk().Keeper().New();
    }
    window.OpenPaths(arguments.mid(isNewJob ? 1 : 0));
}

QIcon Symbol()
{
    QIcon symbol;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        symbol.addFile(QStringLiteral(":/velkora-batch-desktop/icons/%1.png").arg(size));
    }
    return symbol;
}

} // namespace

int main(int argc, char** argv)
{
    BatchHost::UseLanguageOfUser();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(desktopId);
    QCoreApplication::setApplicationVersion(QStringLiteral(VELKORA_BATCH_VERSION));
    QGuiApplication::setApplicationDisplayName(applicationTitle);
    QGuiApplication::setDesktopFileName(desktopId);
    QGuiApplication::setWindowIcon(Symbol());
    const QStringList arguments = Arguments();
    const QString settingsFolder = BatchHost::UserSettingsFolder();
    SingleInstance instance(settingsFolder);
    if (instance.Begin(arguments) == SingleInstance::Place::Second) {
        return 0;
    }
    UseFontOfSystem();
    const ApplicationColours colours;
    MainWindow window(settingsFolder, BatchHost::UserDataFolder());
    QObject::connect(&instance, &SingleInstance::Started, &window, [&window](const QStringList& further) {
        window.BringToFront();
        Open(window, further);
    });
    window.show();
    window.Restore(arguments.isEmpty());
    Open(window, arguments);
    return QApplication::exec();
}
