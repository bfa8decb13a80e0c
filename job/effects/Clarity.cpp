// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

// The blurred luma may be that of a reduced copy, which is complete before the picture itself is read.
bool Always(const QJsonObject&)
{
    return true;
}

} // namespace

EffectSchema ClarityEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("clarity");
    effect.description =
        Phrase::English("Raises or lowers the contrast of larger structures, mostly in the middle tones");
    effect.parameters = {
        NumberParameter("amount", 30, -100, 100, Phrase::Marked("percent"), Phrase::Marked("below 0 softens")),
        NumberParameter("sigma", 40, 5, 500, Phrase::Marked("pixels"),
                        Phrase::Marked("size of the structures in the result"))};
    effect.definition =
        QStringLiteral("Each channel changes by amount / 100 x 4 Y (1 - Y) (Y - B), where Y is the luma and B the "
                       "luma blurred as by blur.");
    effect.example = QByteArrayLiteral(R"({"amount": 80, "sigma": 15})");
    effect.randomAccess = Always;
    return effect;
}

} // namespace BatchJob
