// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BoundForm.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/job/EditedJob.h"

#include <algorithm>

namespace BatchDesktop {

BoundForm::BoundForm(const QString& shownTitle, const QString& wantedId, EditedJob& editedJob, const Choosers& choosers,
                     QWidget* parent)
    : ParameterForm(choosers, parent)
    , title(shownTitle)
    , id(wantedId)
    , job(editedJob)
{
    connect(this, &ParameterForm::Edited, this, &BoundForm::Change);
    connect(this, &ParameterForm::EditEnded, this, [this] { job.EndStep(); });
}

void BoundForm::Show(const QVector<BoundParameter>& wanted)
{
    parameters = wanted;
    const Settings& settings = job.CurrentSettings();
    QVector<ParameterRow> rows;
    QJsonObject values;
    for (BoundParameter& parameter : parameters) {
        parameter.row.id = id + QLatin1Char('.') + parameter.row.schema.name;
        rows.append(parameter.row);
        const QJsonValue value = parameter.read(settings);
        if (!value.isUndefined()) {
            values.insert(parameter.row.schema.name, value);
        }
    }
    SetRows(rows);
    SetValues(values);
    for (const BoundParameter& parameter : qAsConst(parameters)) {
        SetShown(parameter.row.schema.name, !parameter.isUsed || parameter.isUsed(settings));
    }
}

void BoundForm::Change(const QString& name, const QJsonValue& value)
{
    const auto isNamed = [&name](const BoundParameter& parameter) { return parameter.row.schema.name == name; };
    const auto found = std::find_if(parameters.cbegin(), parameters.cend(), isNamed);
    if (found == parameters.cend()) {
        return;
    }
    BoundParameter parameter = *found; // The change leads back to Show(), which replaces the parameters.
    Settings wanted = job.CurrentSettings();
    parameter.write(wanted, value);
    job.Change(wanted, BatchHost::Messages::tr("%1: %2").arg(title, parameter.row.label), parameter.row.id);
}

} // namespace BatchDesktop
