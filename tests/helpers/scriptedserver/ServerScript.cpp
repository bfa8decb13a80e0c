// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerScript.h"

#include <QFile>

ServerScript ServerScript::Load(const QString& path)
{
    ServerScript script;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return script;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const int colon = line.indexOf(QLatin1Char(':'));
        QStringList& actions = script.rules[line.left(colon).trimmed()];
        for (const QString& action : line.mid(colon + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            actions.append(action.trimmed());
        }
    }
    return script;
}
