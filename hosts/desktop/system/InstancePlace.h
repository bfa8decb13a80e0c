// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchDesktop::InstancePlace {

/// Where the lock of the first window is. Only the user has access to this folder.
QString Folder();

/// The socket or pipe of the first window, for `name`, which tells users and folders of settings apart.
QString Socket(const QString& name);

/// Before the first window is told to come to the front: some systems allow that only to the program that the user works
/// with, which is this one.
void LetOthersComeToFront();

} // namespace BatchDesktop::InstancePlace
