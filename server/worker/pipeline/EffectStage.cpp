// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectStage.h"

#include "job/effects/EffectTokens.h"
#include "job/values/Phrase.h"

#include "server/worker/effects/Effects.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/RandomAccess.h"
#include "server/worker/pixels/VipsText.h"

using namespace BatchJob;

namespace BatchWorker {

namespace {

Picture Applied(const JobEffect& effect, const Picture& picture)
{
    const auto failed = [&effect](const QString& reason, const QString& detail) {
        return ProcessingFailed(Phrase::English("effect \"%1\": %2").arg(effect.schema->id, reason), detail);
    };
    try {
        return ApplyEffect(*effect.schema, effect.parameters, picture);
    } catch (const PictureFailure& problem) {
        throw failed(problem.reason, problem.detail);
    } catch (const vips::VError& problem) {
        throw failed(Phrase::English("it cannot be applied to the picture"), TextOf(problem));
    }
}

} // namespace

QVector<JobEffect> WithTokens(const QVector<JobEffect>& effects, const TokenValues& values)
{
    QVector<JobEffect> filled = effects;
    for (JobEffect& effect : filled) {
        effect.parameters = WithTokens(*effect.schema, effect.parameters, values);
    }
    return filled;
}

// `picture` is the only reference: what it refers to before an assignment is freed by that, which may be a large copy.
Picture WithEffects(Picture picture, const QVector<JobEffect>& effects)
{
    for (const JobEffect& effect : effects) {
        if (effect.schema->NeedsRandomAccess(effect.parameters)) {
            picture = WithRandomAccess(picture);
        }
        picture = Applied(effect, picture);
    }
    return picture;
}

} // namespace BatchWorker
