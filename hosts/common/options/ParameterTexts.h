// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

class ZTStyle;

/// Effects and format options as users write them.
namespace BatchHost {

/// An effect of a style.
struct Effect
{
    QString id;
    QByteArray parameters; ///< a JSON object; empty when the effect has its defaults
    bool enabled = true;
};

/// Reads "NAME", "NAME:KEY=VALUE,KEY=VALUE" or "NAME:{JSON}", with "off:" in front for a disabled effect. A comma
/// begins a parameter only if a word and "=" follow, so texts may contain commas. Throws RequestError.
Effect EffectFromText(const QString& text);

/// The text of the effect at `index`, with JSON if the short form could not be read back.
QString EffectText(const ZTStyle& style, int index);

/// The format options `options` of a job in `format`, with the one in `text`, "KEY=VALUE", set. Throws RequestError.
QByteArray WithFormatOption(const QString& format, const QByteArray& options, const QString& text);

/// `value` as users write it: the elements of a list joined with "+", points as x:y, "none" for an empty list.
QString TypedValue(const QJsonValue& value);

/// "KEY=VALUE" for each of the options, in their order.
QStringList FormatOptionTexts(const QByteArray& options);

} // namespace BatchHost
