// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema WhiteBalanceEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("white-balance");
    effect.description =
        Phrase::English("Makes a picture warmer or cooler, greener or more magenta; greys keep their luminance");
    effect.parameters = {NumberParameter("temperature", 0, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("above 0 warmer, below 0 cooler")),
                         NumberParameter("tint", 0, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("above 0 more magenta, below 0 greener"))};
    effect.definition =
        QStringLiteral("Light is multiplied by 2^(temperature / 200) in red, 2^(-tint / 200) in green and "
                       "2^(-temperature / 200) in blue; then all by one factor, so that the luminance of grey "
                       "(weights of Rec. ITU-R BT.709) stays.");
    effect.example = QByteArrayLiteral(R"({"temperature": 40})");
    return effect;
}

} // namespace BatchJob
