// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TokenValues.h"

#include "job/values/VisibleText.h"

namespace BatchJob {

namespace {

QString CleanText(const QString& text)
{
    constexpr int longest = 255;
    // What is behind it would be cut off anyway, and need not be looked at.
    constexpr int longestLookedAt = 4 * longest;
    QString clean = text.left(longestLookedAt);
    for (QChar& character : clean) {
        if (IsControl(character.unicode())) {
            character = QLatin1Char(' ');
        }
    }
    clean = clean.simplified().left(longest);
    if (!clean.isEmpty() && clean.at(clean.size() - 1).isHighSurrogate()) {
        clean.chop(1);
    }
    return clean.trimmed();
}

} // namespace

PictureTexts CleanTexts(const PictureTexts& texts)
{
    return {CleanText(texts.camera),  CleanText(texts.lens), CleanText(texts.focal), CleanText(texts.aperture),
            CleanText(texts.shutter), CleanText(texts.iso),  CleanText(texts.title), CleanText(texts.creator)};
}

QString BaseNameOf(const QString& path)
{
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    return dot == -1 ? name : name.left(dot);
}

TokenValues ValuesOfFile(const QString& path, qint64 number)
{
    TokenValues values;
    values.name = BaseNameOf(path);
    values.folder = path.section(QLatin1Char('/'), -2, -2);
    values.number = number;
    return values;
}

} // namespace BatchJob
