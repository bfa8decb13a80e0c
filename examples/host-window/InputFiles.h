// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class ZTBatchInputModel;

/// Adds files, and folders with the pictures in and below them, to the top level of `inputs`.
void AddInputs(ZTBatchInputModel& inputs, const QStringList& paths);
