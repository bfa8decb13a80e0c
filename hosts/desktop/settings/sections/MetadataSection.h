// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormSection.h"

namespace BatchDesktop {

/// Which metadata results keep.
class MetadataSection : public FormSection
{
    Q_OBJECT

public:
    MetadataSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

protected:
    QVector<BoundParameter> Parameters() const override;
    QString State() const override;
    QString Problem() const override;
};

} // namespace BatchDesktop
