// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureFiles.h"

#include "hosts/desktop/window/MainWindow.h"

#include "ZTBatchInputModel.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The main window on the screen, with settings, caches and pictures in a folder of its own.
class WindowStage
{
public:
    static constexpr int patience = 60'000; // ms

    WindowStage()
    {
        qputenv("XDG_CACHE_HOME", QFile::encodeName(Path(QStringLiteral("cache"))));
        qputenv("XDG_DATA_HOME", QFile::encodeName(Path(QStringLiteral("data"))));
    }

    QString Path(const QString& name) const { return folder.filePath(name); }
    QString SettingsFolder() const { return Path(QStringLiteral("settings")); }
    QString Photo(int number) const { return Path(QStringLiteral("photos/%1.jpg").arg(number)); }
    QString Result(int number) const { return Path(QStringLiteral("out/%1.jpg").arg(number)); }

    /// Each has other pixels.
    void MakePhotos(int count, int width = 64, int height = 48) const
    {
        for (int i = 1; i <= count; ++i) {
            PictureFiles::WriteJpeg(Photo(i), i, width, height);
        }
    }

    QByteArray Content(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool Open()
    {
        window = std::make_unique<BatchDesktop::MainWindow>(SettingsFolder(), Path(QStringLiteral("data")));
        window->resize(1280, 800); // A narrow one hides the preview, which then makes nothing.
        window->show();
        return QTest::qWaitForWindowExposed(window.get());
    }
    void Close() { window.reset(); }

    BatchDesktop::MainWindow& Window() { return *window; }
    BatchDesktop::JobRunner& Runner() { return window->Runner(); }

    template<typename Function>
    void Change(Function change)
    {
        BatchDesktop::Settings settings = window->Job().CurrentSettings();
        change(settings);
        window->Job().Change(settings, QStringLiteral("Test"));
    }

    /// Results go to the folder "out", and files are skipped instead of asking, unless `asks`.
    void SetOutput(bool asks = false)
    {
        Change([&](BatchDesktop::Settings& settings) {
            settings.outputFolder = Path(QStringLiteral("out"));
            settings.policies = asks ? BatchDesktop::Settings::AskingPolicies() : BatchJob::PolicyValues{};
        });
    }

    int Count() const { return window->Job().Document().GetInputModel()->GetFileNodesCount(); }

    /// Adds the photos; false if they do not become `count`.
    bool Add(int count)
    {
        window->AddPaths({Path(QStringLiteral("photos"))});
        return QTest::qWaitFor([&] { return Count() == count && Part("start")->isEnabled(); }, patience);
    }

    QWidget* Part(const char* name) const
    {
        auto* const part = window->findChild<QWidget*>(QString::fromLatin1(name));
        if (!part) {
            qFatal("No %s", name);
        }
        return part;
    }

    void Click(const char* name) const { QTest::mouseClick(Part(name), Qt::LeftButton); }
    bool IsVisible(const char* name) const { return Part(name)->isVisible(); }

    void Trigger(const char* action) const
    {
        window->findChild<QAction*>(QString::fromLatin1(action) + QStringLiteral("Action"))->trigger();
    }

    QString Text(const char* label = "status") const { return qobject_cast<QLabel*>(Part(label))->text(); }

    bool Says(const QString& text) const
    {
        return QTest::qWaitFor([&] { return Text().contains(text); }, patience);
    }

    bool WaitForState(BatchDesktop::JobRunner::State state)
    {
        return QTest::qWaitFor([&] { return Runner().CurrentState() == state; }, patience);
    }

    bool WaitForEnd()
    {
        return QTest::qWaitFor([&] { return Runner().LastEnd().has_value(); }, patience);
    }

    bool WaitForQuestion()
    {
        return QTest::qWaitFor([&] { return Runner().OpenQuestion() && IsVisible("questionBar"); }, patience);
    }

    /// Starts a run and lets it end.
    bool Run()
    {
        Click("start");
        return WaitForEnd();
    }

    BatchDesktop::RunStates::Record StateOf(int photo) { return window->Pictures().States().Of(Photo(photo)); }

private:
    QTemporaryDir folder;
    std::unique_ptr<BatchDesktop::MainWindow> window;
};
