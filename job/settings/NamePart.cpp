// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NamePart.h"

#include "job/values/JobValues.h"

#include <QRegularExpression>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

/// How a text with tokens begins.
const QRegularExpression& Beginning()
{
    static const QRegularExpression beginning(QStringLiteral("^\\{tokens(?::([0-9]{1,9}))?\\}"));
    return beginning;
}

QString WithBeginning(const QString& text, int startNumber)
{
    return startNumber == 1 ? QStringLiteral("{tokens}") + text : QStringLiteral("{tokens:%1}").arg(startNumber) + text;
}

/// `text` as a text with tokens that has none.
QString Escaped(QString text)
{
    return text.replace(QLatin1Char('{'), QLatin1String("{{")).replace(QLatin1Char('}'), QLatin1String("}}"));
}

} // namespace

NamePart NamePartOf(const Settings& settings, Settings::NamingPart part)
{
    NamePart found{settings.GetNamingTemplate(part), settings.GetCustomTemplate(part), settings.GetStartNumber(part),
                   settings.GetDigitsCount(part)};
    const QRegularExpressionMatch tokens =
        found.kind == Settings::TemplateCustomText ? Beginning().match(found.text) : QRegularExpressionMatch();
    if (tokens.hasMatch()) {
        found.kind = TemplateTokens;
        found.text = found.text.mid(tokens.capturedLength());
        found.startNumber = tokens.captured(1).isEmpty() ? 1 : tokens.captured(1).toInt();
    }
    return found;
}

void SetNamePart(Settings& settings, Settings::NamingPart part, const NamePart& wanted)
{
    QString text = wanted.text;
    if (wanted.kind == TemplateTokens) {
        text = WithBeginning(wanted.text, wanted.startNumber);
    } else if (wanted.kind == Settings::TemplateCustomText && Beginning().match(text).hasMatch()) {
        text = WithBeginning(Escaped(text), 1);
    }
    settings.SetNamingTemplate(part, wanted.kind == TemplateTokens ? Settings::TemplateCustomText : wanted.kind);
    settings.SetCustomTemplate(part, text);
    if (wanted.kind != TemplateTokens) {
        settings.SetStartNumber(part, wanted.startNumber);
    }
    settings.SetDigitsCount(part, wanted.digits);
}

} // namespace BatchJob
