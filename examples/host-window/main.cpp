// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// A host with a window, built step by step in docs/guide/a-host-in-an-hour.md. Lines between "step N begins" and "step
// N ends" come with that step; a test builds the program as it is after each.

#include "HostWindow.h"
// step 3 begins
#include "PictureDrop.h"
#include "PictureUpdate.h"
// step 3 ends
// step 7 begins
#include "ServerNotes.h"
// step 7 ends

#include <ZTBatchManager.h>

#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("host-window"));
    const QTemporaryDir pipeFolder;
    qputenv("TMPDIR", QFile::encodeName(pipeFolder.path()));
    // step 7 begins
    ServerNotes::Install();
    // step 7 ends

    ZTBatchManager::InitInstance(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    int exitCode = 0;
    {
        // step 3 begins
        PictureDrop drop;
        ZTBatchManager::Instance()->RegisterDragAndDropHandler(&drop);
        PictureUpdate update;
        ZTBatchManager::Instance()->RegisterInputUpdateHandler(&update);
        // step 3 ends
        HostWindow window;
        window.show();
        exitCode = QApplication::exec();
    }
    ZTBatchManager::ReleaseInstance();
    return exitCode;
}
