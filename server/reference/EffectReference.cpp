// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectReference.h"

#include "job/effects/EffectCatalog.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace BatchJob;

namespace BatchReference {

namespace {

const char introduction[] =
    R"(# Effects

<!-- Made by scripts/make-effect-reference from the table of effects. Changes belong there. -->

A job's style is a list of effects. They are applied in the order of the list, after crop and size, so lengths in pixels
are pixels of the result. Each effect has an identifier and parameters, a JSON object; a parameter that is left out has
its default. On the command line an effect is written `--effect exposure:stops=1`.

Values run from 0, black, to 1, white, in the steps of 8 or 16 bits that a picture has; results are rounded to the
nearest step and clipped to that range. Effects work on the values that are stored in the picture, in the picture's own
colour profile. Colours in parameters are sRGB and are converted to that profile; the last two digits of `#rrggbbaa` are
the opacity. Size, bit depth and transparency do not change unless stated below.

![original](effects/original.jpg) The picture that the examples begin with.

)";

const char closing[] =
    R"(## About the pictures

The examples are made from *YellowFlower.jpg* of the package mate-backgrounds, copyright 2008 Charles Barbin, licensed
under the GNU General Public License, version 2 or later; so are they. The package names the photographers in its file
AUTHORS.
)";

QString DefaultText(const ParameterSchema& parameter)
{
    const QJsonValue& value = parameter.defaultValue;
    if (value.isNull()) {
        return QStringLiteral("needed");
    }
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QStringLiteral("`%1`").arg(QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2)));
}

QString ParameterTable(const QVector<ParameterSchema>& parameters)
{
    if (parameters.isEmpty()) {
        return QStringLiteral("It has no parameters.\n\n");
    }
    QString table = QStringLiteral("| parameter | takes | default | |\n|---|---|---|---|\n");
    for (const ParameterSchema& parameter : parameters) {
        table += QStringLiteral("| `%1` | %2 | %3 | %4 |\n")
                     .arg(parameter.name, AllowedValues(parameter), DefaultText(parameter), parameter.description);
    }
    return table + QLatin1Char('\n');
}

} // namespace

QString EffectReferencePage()
{
    QString page = QString::fromUtf8(introduction);
    for (const EffectSchema& effect : Effects()) {
        page += QStringLiteral("## %1\n\n%2.\n\n").arg(effect.id, effect.description);
        const QString picture =
            effect.changesPixels ? QStringLiteral("![%1](effects/%1.jpg) ").arg(effect.id) : QString();
        page += QStringLiteral("%1`%2`\n\n").arg(picture, QString::fromUtf8(effect.example));
        page += ParameterTable(effect.parameters);
        page += effect.definition + QStringLiteral("\n\n");
    }
    return page + QString::fromUtf8(closing);
}

} // namespace BatchReference
