// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "EffectList.h"

#include "job/values/ParameterSchema.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QVector>

/// The effects that a style can hold, as data. Everything here is safe on any thread.
namespace BatchJob {

/// Everything about an effect but its work on pixels.
struct EffectSchema
{
    EffectKind kind{};
    QString id;          ///< as jobs name it, such as "exposure"
    QString description; ///< one line
    QVector<ParameterSchema> parameters;
    QString definition; ///< what exactly it computes, with the source of formulas; for the reference page

    /// The parameters, as JSON, with which the reference page shows the effect. Those of effects that need a file hold
    /// a bare file name, "example.cube" or "example.png".
    QByteArray example;

    /// What the schema alone cannot say about parameters that are complete and within it: the reason why they are
    /// refused, or nothing. It may open files. Null when there is nothing more to check.
    QString (*extraProblem)(const QJsonObject& parameters) = nullptr;

    bool usesFonts = false; ///< whether it writes text

    bool changesPixels = true; ///< if not, it changes metadata

    /// The names of the parameters whose texts have tokens, with complete parameters. Null when there are none.
    QStringList (*tokenParameters)(const QJsonObject& parameters) = nullptr;

    /// See NeedsRandomAccess(). Null when the effect never does.
    bool (*randomAccess)(const QJsonObject& parameters) = nullptr;

    /// See SizeAfter(). Null when the effect keeps sizes.
    QSize (*changedSize)(const QSize& size, const QJsonObject& parameters) = nullptr;

    /// The size in pixels that the effect, with complete parameters, makes of `size`.
    QSize SizeAfter(const QSize& size, const QJsonObject& complete) const
    {
        return changedSize ? changedSize(size, complete) : size;
    }

    /// Whether the effect, with complete parameters, reads its picture more than once, or not from top to bottom.
    bool NeedsRandomAccess(const QJsonObject& complete) const { return randomAccess && randomAccess(complete); }
};

/// Every effect, in the order of the reference page.
const QVector<EffectSchema>& Effects();

/// The effect `id`; null when there is none.
const EffectSchema* FindEffect(const QString& id);

/// Checks the parameters `data` of `effect`, a UTF-8 JSON object or nothing. What the schema alone cannot say is
/// checked too, such as levels whose black is not below their white, and files that the parameters name are opened: a
/// table of colours is read whole, a picture only as far as its first bytes.
CheckedParameters CheckEffect(const EffectSchema& effect, const QByteArray& data);

} // namespace BatchJob
