// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OptionalEditor.h"

#include "hosts/common/Language.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace BatchDesktop {

OptionalEditor::OptionalEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , box(new QCheckBox(BatchHost::Messages::tr("Set %1").arg(row.label), this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    Adopt(*box, row, QStringLiteral("isSet"));
    box->setAccessibleName(box->text());
    SetMainControl(box);
    connect(box, &QCheckBox::clicked, this, [this](bool isSet) {
        Q_EMIT Edited(isSet ? firstValue : QJsonValue(QJsonValue::Undefined));
        Q_EMIT EditEnded();
    });
}

void OptionalEditor::SetEditor(ParameterEditor* wanted, const QJsonValue& first)
{
    editor = wanted;
    firstValue = first;
    layout()->addWidget(editor);
    connect(editor, &ParameterEditor::Edited, this, &ParameterEditor::Edited);
    connect(editor, &ParameterEditor::EditEnded, this, &ParameterEditor::EditEnded);
    connect(editor, &ParameterEditor::Refused, this, &ParameterEditor::Refused);
}

void OptionalEditor::SetValue(const QJsonValue& value)
{
    box->setChecked(!value.isUndefined());
    editor->setVisible(!value.isUndefined());
    editor->SetValue(value.isUndefined() ? firstValue : value);
}

} // namespace BatchDesktop
