// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// What the server does about a problem with a file. The manager keeps the choice from one start to the next.
class PolicyPanel : public QWidget
{
    Q_OBJECT

public:
    PolicyPanel();
};
