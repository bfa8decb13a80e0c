#include "EffectGroups.h"

namespace BatchJob {

QVector<EffectSchema> GeometryEffects()
{
    return {
        {QStringLiteral("rotate"),
         QStringLiteral("Turns a picture clockwise; the result is as large as it needs"),
         {NumberParameter("angle", 0, -360, 360, "degrees", "multiples of 90 keep every pixel as it is"),
          ColourParameter("background", "#ffffff",
                          "fills the corners; with transparency the result has an alpha channel")}},

        {QStringLiteral("flip"),
         QStringLiteral("Mirrors a picture"),
         {ChoiceParameter("direction",
                          {QStringLiteral("horizontal"), QStringLiteral("vertical"), QStringLiteral("both")},
                          "horizontal swaps left and right")}},

        {QStringLiteral("border"),
         QStringLiteral("Adds a border around a picture"),
         {NumberParameter("left", 0, 0, 10'000, "", "width on the left"),
          NumberParameter("top", 0, 0, 10'000, "", "height at the top"),
          NumberParameter("right", 0, 0, 10'000, "", "width on the right"),
          NumberParameter("bottom", 0, 0, 10'000, "", "height at the bottom"),
          ChoiceParameter("unit", {QStringLiteral("pixels"), QStringLiteral("percent")},
                          "of the four; percent is of the picture's short side, at most 100"),
          ColourParameter("colour", "#ffffff", "of the border; with transparency the result has an alpha channel")}},
    };
}

} // namespace BatchJob
