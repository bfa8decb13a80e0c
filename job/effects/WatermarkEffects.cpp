#include "EffectGroups.h"

namespace BatchJob {

namespace {

QVector<ParameterSchema> Placement(double opacity, const char* size)
{
    return {
        NumberParameter("size", 20, 0.1, 10'000, "", size),
        NumberParameter("margin", 3, 0, 10'000, "", "space to the sides of the picture, and between tiles"),
        ChoiceParameter(
            "unit", {QStringLiteral("percent"), QStringLiteral("pixels")},
            "of size and margin; a margin in percent is of the picture's short side; percent is at most 100"),
        NumberParameter("opacity", opacity, 0, 100, "percent", "0 is invisible"),
        ChoiceParameter("position",
                        {QStringLiteral("bottom-right"), QStringLiteral("bottom"), QStringLiteral("bottom-left"),
                         QStringLiteral("right"), QStringLiteral("centre"), QStringLiteral("left"),
                         QStringLiteral("top-right"), QStringLiteral("top"), QStringLiteral("top-left")},
                        "where the mark stands"),
        TruthParameter("tile", false, "repeats the mark over the whole picture"),
    };
}

QVector<ParameterSchema> TextParameters()
{
    ParameterSchema text;
    text.name = QStringLiteral("text");
    text.type = ParameterType::Text;
    text.defaultValue = QJsonValue();
    text.description = QStringLiteral("what is written; it may have several lines");
    text.minimum = 1;
    text.maximum = 1000;

    ParameterSchema font = text;
    font.name = QStringLiteral("font");
    font.defaultValue = QStringLiteral("sans bold");
    font.description = QStringLiteral("family and style, without a size; a family that is missing is replaced");
    font.maximum = 200;

    QVector<ParameterSchema> parameters{text, font, ColourParameter("colour", "#ffffff", "of the letters")};
    parameters += Placement(60, "height of a line of text; in percent of the picture's short side");
    parameters[3].defaultValue = 5;
    return parameters;
}

} // namespace

QVector<EffectSchema> WatermarkEffects()
{
    return {
        {QStringLiteral("watermark-text"), QStringLiteral("Writes a text over a picture"), TextParameters()},
        {QStringLiteral("watermark-image"), QStringLiteral("Lays another picture, such as a logo, over a picture"),
         QVector<ParameterSchema>{FileParameter("file", "the picture that is laid over, best with transparency")} +
             Placement(100, "width of the mark; in percent of the picture's width")},
    };
}

} // namespace BatchJob
