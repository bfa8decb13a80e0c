// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BlurLimits.h"
#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

// The mask of a reduced copy is complete before the picture itself is read.
bool HasReducedMask(const QJsonObject& parameters)
{
    return parameters[QLatin1String("sigma")].toDouble() > largestDirectSigma;
}

} // namespace

EffectSchema SharpenEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("sharpen");
    effect.description = Phrase::English("Sharpens edges by an unsharp mask");
    effect.parameters = {NumberParameter("sigma", 1, 0.1, 20, Phrase::Marked("pixels"),
                                         Phrase::Marked("standard deviation of the mask in the result")),
                         NumberParameter("amount", 60, 0, 500, Phrase::Marked("percent"),
                                         Phrase::Marked("how much of the difference to the mask is added")),
                         NumberParameter("threshold", 0, 0, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("differences below stay as they are"))};
    effect.definition =
        QStringLiteral("v becomes v + amount / 100 (v - m), where m is the picture blurred as by blur, and where |v "
                       "- m| reaches the threshold.");
    effect.example = QByteArrayLiteral(R"({"sigma": 1.5, "amount": 150})");
    effect.randomAccess = HasReducedMask;
    return effect;
}

} // namespace BatchJob
