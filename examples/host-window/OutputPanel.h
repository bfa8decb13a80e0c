// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class ZTBatchOutputSettings;

/// Where the results go, and how large they become.
class OutputPanel : public QWidget
{
    Q_OBJECT

public:
    explicit OutputPanel(ZTBatchOutputSettings& output);
};
