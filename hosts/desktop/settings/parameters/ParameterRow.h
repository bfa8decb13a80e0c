// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/ParameterSchema.h"

#include <QJsonValue>
#include <QString>
#include <QVector>

namespace BatchDesktop {

/// A value of a parameter as it is shown.
struct ShownChoice
{
    QJsonValue value; ///< undefined: the parameter is not set
    QString text;
};

/// How a parameter is shown and edited.
struct ParameterRow
{
    BatchJob::ParameterSchema schema;
    QString label;
    QString id;                        ///< of its editor, such as "crop.width"
    QString help = {};                 ///< the tool tip
    QString problemStart = {};         ///< the problems that are about this parameter begin with it
    QVector<ShownChoice> choices = {}; ///< what is chosen from, for a parameter of any type; empty: by the schema
    QJsonValue firstValue = {};        ///< of a parameter without a default, when it is set
    bool isFolder = false;             ///< a File that is a folder

    bool operator==(const ParameterRow& other) const;
};

/// The row of `schema`, which all texts come from; its id is `prefix`.NAME.
ParameterRow RowOf(const BatchJob::ParameterSchema& schema, const QString& prefix);

} // namespace BatchDesktop
