// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRules.h"

#include <QFile>

namespace {

void WriteRules(const QString& path, const QStringList& rules)
{
    QFile file(path);
    const QByteArray text = rules.join(QLatin1Char('\n')).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("%s cannot be written: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
    }
}

} // namespace

void WriteServerRules(const QString& server, const QStringList& rules)
{
    WriteRules(server + QStringLiteral(".script"), rules);
}

void WriteNextServerRules(const QString& server, const QStringList& rules)
{
    WriteRules(server + QStringLiteral(".script.next"), rules);
}
