// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/Language.h"
#include "hosts/common/UserPath.h"
#include "hosts/desktop/window/MainWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    BatchHost::UseLanguageOfUser();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velkora-batch-desktop"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELKORA_BATCH_VERSION));
    BatchDesktop::MainWindow window(BatchHost::UserSettingsFolder(), BatchHost::UserDataFolder());
    window.show();
    window.Begin(QCoreApplication::arguments().mid(1));
    return QApplication::exec();
}
