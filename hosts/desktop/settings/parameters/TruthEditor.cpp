// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TruthEditor.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace BatchDesktop {

TruthEditor::TruthEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , box(new QCheckBox(row.label, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    Adopt(*box, row);
    SetMainControl(box);
    connect(box, &QCheckBox::clicked, this, [this](bool isChecked) {
        Q_EMIT Edited(isChecked);
        Q_EMIT EditEnded();
    });
}

void TruthEditor::SetValue(const QJsonValue& value)
{
    box->setChecked(value.toBool());
}

} // namespace BatchDesktop
