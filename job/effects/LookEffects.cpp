#include "EffectGroups.h"

namespace BatchJob {

QVector<EffectSchema> LookEffects()
{
    return {
        {QStringLiteral("vignette"),
         QStringLiteral("Darkens or brightens towards the corners"),
         {NumberParameter("amount", -40, -100, 100, "percent", "of the corners; -100 is black, 100 is white"),
          NumberParameter("start", 40, 0, 100, "percent", "where it begins on the way from the centre to a corner"),
          NumberParameter("softness", 60, 0, 100, "percent", "length of the transition on the same way")}},

        {QStringLiteral("lut"),
         QStringLiteral("Maps colours by the table of a .cube file; a grey picture becomes a colour picture"),
         {FileParameter("file", "the .cube file, with a table of one or three dimensions"),
          NumberParameter("strength", 100, 0, 100, "percent", "0 leaves the picture as it is"),
          ChoiceParameter("interpolation", {QStringLiteral("tetrahedral"), QStringLiteral("trilinear")},
                          "between the entries of a table of three dimensions")}},
    };
}

} // namespace BatchJob
