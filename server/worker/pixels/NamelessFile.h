// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace BatchWorker {

/// An empty file in the temporary folder that is gone with this object, and with the process, however that ends: it has
/// no name, so nothing can be left behind.
class NamelessFile
{
public:
    NamelessFile();
    ~NamelessFile();

    int Descriptor() const { return descriptor; } ///< -1 when there is no file

    /// The file's path for this process; empty when there is no file.
    QByteArray Path() const;

private:
    Q_DISABLE_COPY(NamelessFile)

    int descriptor;
};

} // namespace BatchWorker
