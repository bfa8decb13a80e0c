// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputNodes.h"

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/jobs/JobDesk.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

/// A window with nothing but what belongs to jobs and presets as files.
class DeskStage
{
public:
    /// A second stage in the folder of the first one is the window that is opened next.
    explicit DeskStage(const QString& folder)
        : folder(folder)
        , presets(new BatchDesktop::PresetBox(job, Path("settings")))
        , desk(std::make_unique<BatchDesktop::JobDesk>(job, *presets, window, Path("data")))
    {
        auto* const column = new QVBoxLayout(&window);
        column->addWidget(presets);
        column->addWidget(&desk->Naming());
        column->addWidget(&desk->Notice());
        desk->FillJobMenu(jobMenu);
        desk->FillPresetMenu(presetMenu);
        desk->WatchDrops(window);
        window.addActions(jobMenu.actions() + presetMenu.actions());
        window.show();
        window.activateWindow();
        isReady = QTest::qWaitForWindowActive(&window);
    }

    ~DeskStage() { desk.reset(); }

    QString Path(const char* name) const { return folder + QLatin1Char('/') + QString::fromLatin1(name); }

    template<typename Widget>
    Widget& The(const char* name)
    {
        auto* const found = window.findChild<Widget*>(QString::fromLatin1(name));
        if (!found) {
            qFatal("No %s", name);
        }
        return *found;
    }

    QAction& Action(const char* name)
    {
        for (QMenu* const menu : {&jobMenu, &presetMenu}) {
            if (auto* const found = menu->findChild<QAction*>(QString::fromLatin1(name))) {
                return *found;
            }
        }
        qFatal("No action %s", name);
    }

    QString Notice() { return static_cast<BatchDesktop::NoticeLine&>(desk->Notice()).Text(); }

    void SetLength(double length)
    {
        BatchDesktop::Settings settings = job.CurrentSettings();
        settings.imageSize.restriction = 2;
        settings.imageSize.size = length;
        job.Change(settings, QStringLiteral("Size"));
    }

    double Length() const { return job.CurrentSettings().imageSize.size; }

    /// Pictures that need not exist.
    void AddInputs(const QStringList& names)
    {
        for (const QString& name : names) {
            job.Document().GetInputModel()->InsertBranch(NewFile(name), QModelIndex());
        }
    }

    QStringList Inputs() const { return InputTexts(*job.Document().GetInputModel()); }

    static void Write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
            file.write(content) != content.size()) {
            qFatal("%s cannot be written", qPrintable(path));
        }
    }

    const QString folder;
    bool isReady = false;
    BatchDesktop::EditedJob job;
    QMenu jobMenu;
    QMenu presetMenu;
    QWidget window;
    BatchDesktop::PresetBox* const presets;
    std::unique_ptr<BatchDesktop::JobDesk> desk;
};
