// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BoundParameter.h"

#include "hosts/desktop/settings/parameters/ParameterForm.h"

namespace BatchDesktop {

class EditedJob;

/// A form whose parameters are parts of the job's settings. Each change is a step of the job's history.
class BoundForm : public ParameterForm
{
    Q_OBJECT

public:
    /// `title` names the steps, `id` the editors.
    BoundForm(const QString& title, const QString& id, EditedJob& job, const Choosers& choosers, QWidget* parent);

    /// Shows the settings that the job has now.
    void Show(const QVector<BoundParameter>& wanted);

private:
    void Change(const QString& name, const QJsonValue& value);

    const QString title;
    const QString id;
    EditedJob& job;
    QVector<BoundParameter> parameters;
};

} // namespace BatchDesktop
