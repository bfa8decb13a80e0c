// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDoubleSpinBox>

namespace BatchDesktop {

/// A number with its unit, written as everywhere in the product: a point, no grouping, no zeros behind that say
/// nothing.
class NumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit NumberBox(QWidget* parent);

    QString textFromValue(double value) const override;
};

} // namespace BatchDesktop
