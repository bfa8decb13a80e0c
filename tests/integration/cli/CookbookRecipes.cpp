// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CookbookRecipes.h"

#include <QFile>
#include <QRegularExpression>

namespace {

/// The paragraph that begins with `word`, in one line; empty when the section has no such paragraph.
QString Paragraph(const QStringList& paragraphs, const QString& word)
{
    for (const QString& paragraph : paragraphs) {
        if (paragraph.startsWith(word + QLatin1Char(' '))) {
            return paragraph.simplified();
        }
    }
    return {};
}

CookbookRecipe ReadRecipe(const QString& section)
{
    CookbookRecipe recipe;
    recipe.title = section.section(QLatin1Char('\n'), 0, 0);
    QString text;
    for (const QString& line : section.section(QLatin1Char('\n'), 1).split(QLatin1Char('\n'))) {
        if (line.startsWith(QStringLiteral("    "))) {
            recipe.script += line.mid(4).toUtf8() + '\n';
        } else {
            text += line + QLatin1Char('\n');
        }
    }
    const QStringList paragraphs = text.split(QStringLiteral("\n\n"));
    static const QRegularExpression file(QStringLiteral("`([^`]+)`(?: \\((\\d+) × (\\d+)\\))?"));
    auto files = file.globalMatch(Paragraph(paragraphs, QStringLiteral("Gives")));
    while (files.hasNext()) {
        const QRegularExpressionMatch match = files.next();
        recipe.files.insert(match.captured(1), match.captured(2).isEmpty()
                                                   ? QString()
                                                   : match.captured(2) + QLatin1Char('x') + match.captured(3));
    }
    const QString prints = Paragraph(paragraphs, QStringLiteral("Prints"));
    recipe.isSilent = prints == QLatin1String("Prints nothing.");
    auto texts = file.globalMatch(prints);
    while (texts.hasNext()) {
        recipe.printed.append(texts.next().captured(1));
    }
    return recipe;
}

} // namespace

QVector<CookbookRecipe> ReadCookbook(const QString& path)
{
    QVector<CookbookRecipe> recipes;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return recipes;
    }
    const QStringList sections = QString::fromUtf8(file.readAll()).split(QStringLiteral("\n### "));
    for (const QString& section : sections.mid(1)) {
        recipes.append(ReadRecipe(section.section(QStringLiteral("\n## "), 0, 0)));
    }
    return recipes;
}
