// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"
#include "SliderScale.h"

class QSlider;

namespace BatchDesktop {

class NumberBox;

/// A slider, and the number with its unit.
class NumberEditor : public ParameterEditor
{
    Q_OBJECT

public:
    NumberEditor(const ParameterRow& row, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    void MoveSliderTo(double value);

    const BatchJob::ParameterSchema schema;
    SliderScale scale;
    QSlider* slider;
    NumberBox* box;
};

} // namespace BatchDesktop
