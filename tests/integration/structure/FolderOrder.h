// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

// Which source folders may use which. A part of the project is a folder with everything below it; it may use its own
// files and whatever the parts below it in the order may use.
namespace FolderOrder {

// Folders whose sources must all belong to a part.
QStringList TopFolders();

// Folders below root whose headers are included by their bare names.
QStringList HeaderFolders(const QString& root);

// The part that the file or folder belongs to, empty if it belongs to none. Paths are relative to the root.
QString PartOf(const QString& path);

bool MayUse(const QString& part, const QString& usedPart);

// The worker alone decodes pictures.
bool IsImagingHeader(const QString& include);
bool IsImagingTarget(const QString& target);
bool MayUseImaging(const QString& part);

// False if the part links nothing but Qt and other parts.
bool MayLinkOtherLibraries(const QString& part);
} // namespace FolderOrder
