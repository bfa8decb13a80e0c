// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormSection.h"

namespace BatchDesktop {

/// What happens when something goes wrong: the five policies.
class ErrorsSection : public FormSection
{
    Q_OBJECT

public:
    ErrorsSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

protected:
    QVector<BoundParameter> Parameters() const override;
    QString State() const override;
    QString Problem() const override;
};

} // namespace BatchDesktop
