// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormSection.h"

namespace BatchDesktop {

/// The frame around the picture: margins, background, shadow.
class FrameSection : public FormSection
{
    Q_OBJECT

public:
    FrameSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

protected:
    QVector<BoundParameter> Parameters() const override;
    QString State() const override;
    QString Problem() const override;
};

} // namespace BatchDesktop
