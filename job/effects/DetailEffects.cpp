#include "EffectGroups.h"

namespace BatchJob {

QVector<EffectSchema> DetailEffects()
{
    return {
        {QStringLiteral("blur"),
         QStringLiteral("Blurs evenly"),
         {NumberParameter("sigma", 2, 0, 200, "pixels",
                          "standard deviation of the blur in the result; 0 does nothing")}},

        {QStringLiteral("sharpen"),
         QStringLiteral("Sharpens edges by an unsharp mask"),
         {NumberParameter("sigma", 1, 0.1, 20, "pixels", "standard deviation of the mask in the result"),
          NumberParameter("amount", 60, 0, 500, "percent", "how much of the difference to the mask is added"),
          NumberParameter("threshold", 0, 0, 100, "percent", "differences below stay as they are")}},

        {QStringLiteral("denoise"),
         QStringLiteral("Smooths noise and keeps edges"),
         {NumberParameter("strength", 10, 0, 100, "percent", "differences of this size begin to count as edges"),
          NumberParameter("sigma", 1.5, 0.5, 5, "pixels", "how far neighbours are taken in, in the result")}},

        {QStringLiteral("clarity"),
         QStringLiteral("Raises or lowers the contrast of larger structures, mostly in the middle tones"),
         {NumberParameter("amount", 30, -100, 100, "percent", "below 0 softens"),
          NumberParameter("sigma", 40, 5, 500, "pixels", "size of the structures in the result")}},
    };
}

} // namespace BatchJob
