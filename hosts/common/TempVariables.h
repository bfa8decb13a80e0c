// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace BatchHost {

/// Makes a folder the one for temporary files, for this process and those that it starts. This object's end puts the
/// former one back.
class TempVariables
{
public:
    explicit TempVariables(const QString& folder);
    ~TempVariables();

private:
    Q_DISABLE_COPY(TempVariables)

#ifdef Q_OS_UNIX
    const QByteArray before; ///< null if it was not set
#else
    QVector<std::optional<QString>> before;
#endif
};

} // namespace BatchHost
