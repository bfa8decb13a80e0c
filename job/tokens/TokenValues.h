// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>

/// What tokens stand for in the texts of one file. Everything here is safe on any thread.
namespace BatchJob {

/// What the metadata of a picture say; empty where they say nothing.
struct PictureTexts
{
    QString camera;
    QString lens;
    QString focal;    ///< millimetres, such as "35" or "4.2"
    QString aperture; ///< such as "2.8"
    QString shutter;  ///< seconds, such as "1/250", "0.5" or "30"
    QString iso;
    QString title;
    QString creator;
};

/// `texts` as they may become parts of names and texts: each in one line, without control characters, and not longer
/// than a name can be.
PictureTexts CleanTexts(const PictureTexts& texts);

/// What the tokens of one file stand for.
struct TokenValues
{
    QString name;
    QString folder;
    qint64 number = 1;
    QDateTime captured; ///< invalid if it is not known
    QSize size;         ///< of the original, upright; empty if it is not known
    PictureTexts texts;
};

/// The name of the file `path` without its extension.
QString BaseNameOf(const QString& path);

/// The values of the file `path` that are known without looking at it.
TokenValues ValuesOfFile(const QString& path, qint64 number);

} // namespace BatchJob
