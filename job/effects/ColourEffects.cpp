#include "EffectGroups.h"

namespace BatchJob {

QVector<EffectSchema> ColourEffects()
{
    return {
        {QStringLiteral("white-balance"),
         QStringLiteral("Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance"),
         {NumberParameter("temperature", 0, -100, 100, "percent", "above 0 warmer, below 0 cooler"),
          NumberParameter("tint", 0, -100, 100, "percent", "above 0 more magenta, below 0 greener")}},

        {QStringLiteral("saturation"),
         QStringLiteral("Makes all colours stronger or weaker"),
         {NumberParameter("amount", 0, -100, 100, "percent", "-100 leaves grey, 100 doubles the strength")}},

        {QStringLiteral("vibrance"),
         QStringLiteral("Makes weak colours stronger or weaker, and spares those that are strong"),
         {NumberParameter("amount", 0, -100, 100, "percent", "how much the weakest colours change")}},

        {QStringLiteral("hue"),
         QStringLiteral("Turns all colours around the colour circle"),
         {NumberParameter("angle", 0, -180, 180, "degrees", "120 turns red towards green")}},

        {QStringLiteral("grayscale"),
         QStringLiteral("Takes all colour away"),
         {ChoiceParameter("method", {QStringLiteral("luminance"), QStringLiteral("luma"), QStringLiteral("average")},
                          "luminance weighs the light, luma the stored values, average is their plain mean")}},

        {QStringLiteral("sepia"),
         QStringLiteral("Tones a picture brown; a grey picture becomes a colour picture"),
         {NumberParameter("amount", 100, 0, 100, "percent", "0 leaves the picture as it is")}},

        {QStringLiteral("invert"), QStringLiteral("Turns a picture into its negative"), {}},

        {QStringLiteral("posterize"),
         QStringLiteral("Leaves few steps of each colour"),
         {IntegerParameter("levels", 4, 2, 256, "levels", "steps from black to white")}},
    };
}

} // namespace BatchJob
