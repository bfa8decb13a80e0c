#include "EffectGroups.h"

#include <QJsonArray>

namespace BatchJob {

namespace {

ParameterSchema CurvePoints()
{
    ParameterSchema points;
    points.name = QStringLiteral("points");
    points.type = ParameterType::Points;
    points.defaultValue = QJsonArray{QJsonArray{0, 0}, QJsonArray{100, 100}};
    points.description = QStringLiteral(
        "input and output, from black to white; between them the curve never turns, beyond them it is level");
    points.maximum = 100;
    points.unit = QStringLiteral("percent");
    return points;
}

} // namespace

QVector<EffectSchema> ToneEffects()
{
    return {
        {QStringLiteral("exposure"),
         QStringLiteral("Brightens or darkens as a longer or shorter exposure would"),
         {NumberParameter("stops", 0, -10, 10, "stops", "how much; 1 doubles the light")}},

        {QStringLiteral("brightness-contrast"),
         QStringLiteral("Shifts all values, then spreads them around the middle"),
         {NumberParameter("brightness", 0, -100, 100, "percent", "shift of every value; 100 turns black into white"),
          NumberParameter("contrast", 0, -100, 100, "percent", "-100 is flat grey, 50 doubles all differences")}},

        {QStringLiteral("levels"),
         QStringLiteral("Sets what becomes black, what becomes white, and the tone between them"),
         {NumberParameter("black", 0, 0, 100, "percent", "this value and those below become black"),
          NumberParameter("white", 100, 0, 100, "percent", "this value and those above become white"),
          NumberParameter("gamma", 1, 0.1, 10, "", "above 1 brightens the tones between them")}},

        {QStringLiteral("curve"),
         QStringLiteral("Maps values along a smooth curve through points"),
         {CurvePoints(),
          ChoiceParameter(
              "channel",
              {QStringLiteral("all"), QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")},
              "which values are mapped; a grey picture has no single colours and stays as it is")}},

        {QStringLiteral("auto-levels"),
         QStringLiteral("Spreads the values that a picture has from black to white"),
         {NumberParameter("clip", 0.1, 0, 10, "percent",
                          "how many of the darkest and of the brightest pixels may clip"),
          ChoiceParameter("channels", {QStringLiteral("together"), QStringLiteral("each")},
                          "together keeps colours as they are; each for itself removes a cast")}},
    };
}

} // namespace BatchJob
