// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormSection.h"

namespace BatchDesktop {

/// The size that results are scaled to, and their resolution.
class SizeSection : public FormSection
{
    Q_OBJECT

public:
    SizeSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

protected:
    QVector<BoundParameter> Parameters() const override;
    QString State() const override;
    QString Problem() const override;
};

} // namespace BatchDesktop
