// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/settings/SettingsPane.h"
#include "hosts/desktop/settings/sections/SettingsSection.h"

#include <QtTest>

/// The pane of the settings on the screen, with a job of its own.
struct PaneStage
{
    PaneStage()
        : pane(job, nullptr, FakeChoosers())
    {
        BatchDesktop::Settings settings = job.CurrentSettings();
        settings.outputFolder = QStringLiteral("/results");
        job.Change(settings, QStringLiteral("Start"));
        job.History().clear();
        pane.resize(500, 900);
        pane.show();
        pane.activateWindow();
        isReady = QTest::qWaitForWindowActive(&pane);
    }

    template<typename Control>
    Control& The(const char* name)
    {
        auto* const found = pane.findChild<Control*>(QString::fromLatin1(name));
        if (!found) {
            qFatal("No %s", name);
        }
        return *found;
    }

    BatchDesktop::SettingsSection& Section(const char* id) { return The<BatchDesktop::SettingsSection>(id); }

    template<typename Function>
    void Set(Function change)
    {
        BatchDesktop::Settings settings = job.CurrentSettings();
        change(settings);
        job.Change(settings, QStringLiteral("Test"));
    }

    void Unfold()
    {
        for (BatchDesktop::SettingsSection* const section : pane.Sections()) {
            section->SetFolded(false);
        }
    }

    BatchDesktop::Choosers FakeChoosers()
    {
        const auto path = [this](QWidget*, const QString&, const QString&) { return chosenPath; };
        return {path, path,
                [](QWidget*, const QString&, const QColor&, const std::function<void(const QColor&)>& chosen) {
                    chosen(QColor(1, 2, 3));
                }};
    }

    QString chosenPath;
    BatchDesktop::EditedJob job;
    BatchDesktop::SettingsPane pane;
    bool isReady = false;
};
