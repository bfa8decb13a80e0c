// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// A task of the cookbook: its command, and what the text says about it.
struct CookbookRecipe
{
    QString title;
    QByteArray script;
    QMap<QString, QString> files; ///< those after "Gives", with their size as "600x400" where the text says it
    QStringList printed;          ///< the texts after "Prints"
    bool isSilent = false;        ///< "Prints nothing."

    bool SaysWhatHappens() const { return !files.isEmpty() || !printed.isEmpty() || isSilent; }
};

/// The tasks of the file `path`: sections with headings of the third level.
QVector<CookbookRecipe> ReadCookbook(const QString& path);
