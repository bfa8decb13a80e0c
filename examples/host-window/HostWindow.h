// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ZTBatchDocument.h>

#include <QWidget>

/// The window: one job, and the panels that show and run it.
class HostWindow : public QWidget
{
    Q_OBJECT

public:
    HostWindow();

private:
    ZTBatchDocument job;
};
