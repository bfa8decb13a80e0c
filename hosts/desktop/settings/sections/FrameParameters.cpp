// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FrameParameters.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/settings/parameters/ColourText.h"

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

using Framing = ZTBatchOutputSettings::Transformation;
using Used = std::function<bool(const Settings&)>;

// The limits of the job's checks.
constexpr int longestSide = 1'000'000;
constexpr int largestShadow = 10'000;
constexpr int largestPatternScale = 10'000;
constexpr int fullTurn = 360;

bool IsFramed(const Settings& settings)
{
    return settings.framing.state;
}

bool HasShadow(const Settings& settings)
{
    return settings.framing.state && settings.framing.shadowEnabled;
}

bool HasOwnSize(const Settings& settings)
{
    return settings.framing.state && settings.framing.backgroundCustomOutput;
}

Used HasBackground(BackgroundType type)
{
    return [type](const Settings& settings) {
        return settings.framing.state && settings.framing.backgroundType == int(type);
    };
}

BoundParameter Number(const ParameterRow& row, int Framing::*field, const Used& isUsed)
{
    return {row, [field](const Settings& settings) { return settings.framing.*field; },
            [field](Settings& settings, const QJsonValue& value) { settings.framing.*field = value.toInt(); }, isUsed};
}

// Jobs have 0 to 1.
BoundParameter Opacity(const char* name, const QString& label, const char* checked, double Framing::*field,
                       const Used& isUsed)
{
    constexpr double full = 100;
    return {NumberRow(name, label, 0, full, "percent", checked),
            [field](const Settings& settings) { return settings.framing.*field * full; },
            [field](Settings& settings, const QJsonValue& value) { settings.framing.*field = value.toDouble() / full; },
            isUsed};
}

BoundParameter Truth(const char* name, const QString& label, bool Framing::*field, const Used& isUsed)
{
    return {TruthRow(name, label), [field](const Settings& settings) { return settings.framing.*field; },
            [field](Settings& settings, const QJsonValue& value) { settings.framing.*field = value.toBool(); }, isUsed};
}

// Jobs keep no alpha of these colours; the opacity stands beside them.
BoundParameter Colour(const char* name, const QString& label, QColor Framing::*field, const Used& isUsed)
{
    return {ColourRow(name, label),
            [field](const Settings& settings) { return (settings.framing.*field).name(QColor::HexRgb); },
            [field](Settings& settings, const QJsonValue& value) {
                QColor colour = ColourOfText(value.toString());
                colour.setAlpha(255);
                settings.framing.*field = colour;
            },
            isUsed};
}

BoundParameter Margin(const char* name, const QString& label, int (QMargins::*get)() const, void (QMargins::*set)(int))
{
    return {IntegerRow(name, label, -longestSide, longestSide, "pixels", "The frame's margin"),
            [get](const Settings& settings) { return (settings.framing.margins.*get)(); },
            [set](Settings& settings, const QJsonValue& value) { (settings.framing.margins.*set)(value.toInt()); },
            IsFramed};
}

BoundParameter FrameSide(const char* name, const QString& label, const char* checked, int (QSize::*get)() const,
                         void (QSize::*set)(int))
{
    return {IntegerRow(name, label, 1, longestSide, "pixels", checked),
            [get](const Settings& settings) { return (settings.framing.backgroundCustomSize.*get)(); },
            [set](Settings& settings, const QJsonValue& value) {
                (settings.framing.backgroundCustomSize.*set)(value.toInt());
            },
            HasOwnSize};
}

BoundParameter Pattern(const ParameterRow& row, std::size_t index)
{
    return {row, [index](const Settings& settings) { return settings.framing.backgroundPattern[index]; },
            [index](Settings& settings, const QJsonValue& value) {
                settings.framing.backgroundPattern[index] = value.toInt();
            },
            HasBackground(BackgroundType::Pattern)};
}

} // namespace

QVector<BoundParameter> PlacementParameters()
{
    return {
        Truth("state", Messages::tr("Lay pictures on a frame"), &Framing::state, {}),
        Margin("left", Messages::tr("Left margin"), &QMargins::left, &QMargins::setLeft),
        Margin("top", Messages::tr("Top margin"), &QMargins::top, &QMargins::setTop),
        Margin("right", Messages::tr("Right margin"), &QMargins::right, &QMargins::setRight),
        Margin("bottom", Messages::tr("Bottom margin"), &QMargins::bottom, &QMargins::setBottom),
        Number(IntegerRow("angle", Messages::tr("Angle"), -fullTurn, fullTurn, "degrees", "The frame's angle"),
               &Framing::angle, IsFramed),
        Number(ChoiceRow("blending", Messages::tr("Blending"), ChoicesOf(BlendingWords), "The frame's blending"),
               &Framing::blending, IsFramed),
        Opacity("opacity", Messages::tr("Opacity of the picture"), "The picture's opacity", &Framing::opacity,
                IsFramed),
        Truth("ownSize", Messages::tr("A frame of its own size"), &Framing::backgroundCustomOutput, IsFramed),
        FrameSide("width", Messages::tr("Width of the frame"), "The frame's width", &QSize::width, &QSize::setWidth),
        FrameSide("height", Messages::tr("Height of the frame"), "The frame's height", &QSize::height,
                  &QSize::setHeight),
    };
}

QVector<BoundParameter> BackgroundParameters()
{
    return {
        Number(ChoiceRow("background", Messages::tr("Background"), ChoicesOf(BackgroundTypeWords),
                         "The background's type"),
               &Framing::backgroundType, IsFramed),
        Colour("backgroundColour", Messages::tr("Colour of the background"), &Framing::backgroundColor,
               HasBackground(BackgroundType::Colour)),
        Pattern(IntegerRow("pattern", Messages::tr("Pattern"), 0, builtInPatterns - 1, "", "The background's pattern"),
                0),
        Pattern(IntegerRow("patternScale", Messages::tr("Scale of the pattern"), 0, largestPatternScale, "percent",
                           "The scale of the background's pattern"),
                1),
        {FileRow("image", Messages::tr("Picture of the background"), "The background's image"),
         [](const Settings& settings) { return settings.framing.backgroundImage; },
         [](Settings& settings, const QJsonValue& value) { settings.framing.backgroundImage = value.toString(); },
         HasBackground(BackgroundType::Image)},
        Opacity("backgroundOpacity", Messages::tr("Opacity of the background"), "The background's opacity",
                &Framing::backgroundOpacity,
                [](const Settings& settings) {
                    return settings.framing.state && settings.framing.backgroundType != int(BackgroundType::None);
                }),
    };
}

QVector<BoundParameter> ShadowParameters()
{
    return {
        Truth("shadow", Messages::tr("Shadow"), &Framing::shadowEnabled, IsFramed),
        Number(ChoiceRow("shadowMode", Messages::tr("Kind of shadow"), ChoicesOf(ShadowModeWords), "The shadow's mode"),
               &Framing::shadowMode, HasShadow),
        Colour("shadowColour", Messages::tr("Colour of the shadow"), &Framing::shadowColor, HasShadow),
        Opacity("shadowOpacity", Messages::tr("Opacity of the shadow"), "The shadow's opacity", &Framing::shadowOpacity,
                HasShadow),
        Number(IntegerRow("shadowAngle", Messages::tr("Direction of the light"), -fullTurn, fullTurn, "degrees",
                          "The shadow's angle"),
               &Framing::shadowAngle, HasShadow),
        Number(IntegerRow("shadowDistance", Messages::tr("Distance of the shadow"), 0, largestShadow, "pixels",
                          "The shadow's distance"),
               &Framing::shadowDistance, HasShadow),
        Number(IntegerRow("shadowSize", Messages::tr("Softness of the shadow"), 0, largestShadow, "pixels",
                          "The shadow's size"),
               &Framing::shadowSize, HasShadow),
    };
}

} // namespace BatchDesktop
