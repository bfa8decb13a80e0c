// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NumberEditor.h"

#include "NumberBox.h"
#include "ShownNames.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>

namespace BatchDesktop {

NumberEditor::NumberEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , schema(row.schema)
    , scale(row.schema.minimum, row.schema.maximum, row.schema.type == BatchJob::ParameterType::Integer)
    , slider(new QSlider(Qt::Horizontal, this))
    , box(new NumberBox(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 1);
    layout->addWidget(box);
    Adopt(*slider, row, QStringLiteral("slider"));
    Adopt(*box, row);
    SetMainControl(box);

    slider->setRange(scale.Minimum(), scale.Maximum());
    constexpr int pages = 10;
    slider->setPageStep(qMax(1, (scale.Maximum() - scale.Minimum()) / pages));
    constexpr int fractionDigits = 3;
    box->setDecimals(row.schema.type == BatchJob::ParameterType::Integer ? 0 : fractionDigits);
    box->setRange(row.schema.minimum, row.schema.maximum);
    if (scale.Step() > 0) {
        box->setSingleStep(scale.Step());
    } else {
        box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    }
    if (!row.schema.unit.isEmpty()) {
        box->setSuffix(QLatin1Char(' ') + ShownUnit(row.schema.unit));
    }

    connect(slider, &QSlider::valueChanged, this, [this](int position) {
        const QSignalBlocker quiet(box);
        box->setValue(scale.ValueAt(position));
        Q_EMIT Edited(scale.ValueAt(position));
    });
    connect(slider, &QSlider::sliderReleased, this, &ParameterEditor::EditEnded);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double value) {
        MoveSliderTo(value);
        Q_EMIT Edited(value);
    });
}

void NumberEditor::SetValue(const QJsonValue& value)
{
    const QSignalBlocker quiet(box);
    // A value of a job that is not allowed is shown as it is; the check says what is wrong with it.
    box->setRange(qMin(schema.minimum, value.toDouble()), qMax(schema.maximum, value.toDouble()));
    box->setValue(value.toDouble());
    MoveSliderTo(value.toDouble());
}

// Several positions may stand for one value: the slider stays where the user has moved it.
void NumberEditor::MoveSliderTo(double value)
{
    if (!qFuzzyCompare(1.0 + scale.ValueAt(slider->value()), 1.0 + value)) {
        const QSignalBlocker quiet(slider);
        slider->setValue(scale.PositionOf(value));
    }
}

} // namespace BatchDesktop
