#pragma once

#include <QByteArray>
#include <QString>

class ZTStyle;

/// Effects with their parameters and the options of formats, as users write them.
namespace BatchCli {

/// An effect of a style.
struct Effect
{
    QString id;
    QByteArray parameters; ///< a JSON object; empty when the effect has its defaults
    bool enabled = true;
};

/// "NAME", "NAME:KEY=VALUE,KEY=VALUE" or "NAME:{JSON}", with "off:" in front for an effect that is not applied. A comma
/// begins a parameter only where a word and "=" follow, so that texts may hold commas. Throws RequestError.
Effect EffectFromText(const QString& text);

/// The text of the effect at `index`; with JSON where the short form could not be read back.
QString EffectText(const ZTStyle& style, int index);

/// `options` of a job in `format`, with one more of the form "KEY=VALUE". Throws RequestError.
QByteArray WithFormatOption(const QString& format, const QByteArray& options, const QString& text);

/// "KEY=VALUE" for each of the options, in their order.
QStringList FormatOptionTexts(const QByteArray& options);

} // namespace BatchCli
