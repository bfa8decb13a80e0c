// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/EditedJob.h"

#include <QMainWindow>

namespace BatchDesktop {

/// The window: pictures, preview and settings side by side, and the bar of the run below them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    EditedJob& Job() { return job; }

private:
    EditedJob job;
};

} // namespace BatchDesktop
