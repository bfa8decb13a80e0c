// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultFolder.h"

#include "job/values/Phrase.h"

#include <QDir>
#include <QStringList>

namespace BatchProtocol {

namespace {

/// `path` relative to `root`, both cleaned; null when it does not lie there.
QString PathBelow(const QString& root, const QString& path)
{
    if (path == root) {
        return QStringLiteral("");
    }
    const QString start = root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/');
    return path.startsWith(start) ? path.mid(start.size()) : QString();
}

} // namespace

bool ResultFolder::Open(const QString& root, const QString& path, Missing missing)
{
    const QString cleanPath = QDir::cleanPath(path);
    const QString cleanRoot = root.isEmpty() ? cleanPath : QDir::cleanPath(root);
    const QString below = PathBelow(cleanRoot, cleanPath);
    if (below.isNull()) {
        error = BatchJob::Phrase::English("%1 does not lie in the output folder %2").arg(path, root);
        return false;
    }
    if (!OpenRoot(cleanRoot, missing)) {
        return false;
    }
    if (below.isEmpty() || EnterAtOnce(below)) {
        return true;
    }
    QString folder = cleanRoot;
    for (const QString& name : below.split(QLatin1Char('/'))) {
        folder += (folder.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/")) + name;
        if (!Enter(folder, name, missing)) {
            return false;
        }
    }
    return true;
}

} // namespace BatchProtocol
