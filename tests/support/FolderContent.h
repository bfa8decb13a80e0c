// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDir>
#include <QMap>
#include <QString>

/// The contents of files by their paths, relative to a folder.
using Files = QMap<QString, QByteArray>;

/// Every file below `folder`, by default including hidden ones.
Files FilesBelow(const QString& folder, QDir::Filters filters = QDir::Files | QDir::Hidden);
