// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchDesktop {

/// The thumbnails on the disk: those of the desktop, which other programs have made, and those of this one.
/// Const functions are safe on any thread.
class ThumbnailFiles
{
public:
    /// `ownFolder` is made if it is missing. `desktopFolder` has the folders "normal", "large" and so on.
    ThumbnailFiles(const QString& ownFolder, const QString& desktopFolder);

    /// The folders of the user.
    static ThumbnailFiles OfUser();

    QString OwnFolder() const { return ownFolder; }

    /// What there is for a picture as it is now.
    struct Place
    {
        QString own;     ///< path of our thumbnail, whether it exists or not; empty if there is no such picture
        QString desktop; ///< path of the desktop's thumbnail, if that has a valid one
        bool isMade = false;
        bool isBroken = false; ///< it was tried before, in vain
    };
    Place Find(const QString& picture) const;

    /// The picture behind `own` is not to be tried again until it changes.
    static void MarkBroken(const QString& own);

    /// Removes the oldest of our thumbnails until the others take `bytes` at most.
    void Prune(qint64 bytes) const;

private:
    QString ownFolder;
    QString desktopFolder;
};

} // namespace BatchDesktop
