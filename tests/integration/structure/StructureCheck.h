// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

struct StructureReport
{
    int sources = 0;
    int includes = 0;
    int links = 0;
    // One line each: "path:line: what is wrong". Circles between folders come last.
    QStringList findings;
};

// Reads the #include lines and target_link_libraries calls of the source tree below root and compares them with
// FolderOrder. Folders that do not exist are skipped.
StructureReport CheckStructure(const QString& root);
