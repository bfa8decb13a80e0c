// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ChoiceListEditor.h"

#include "ShownNames.h"

#include "hosts/common/Language.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QJsonArray>

namespace BatchDesktop {

ChoiceListEditor::ChoiceListEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , choices(row.schema.choices)
{
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    constexpr int columns = 2;
    for (int i = 0; i < choices.size(); ++i) {
        const QString shown = ShownName(choices.at(i));
        auto* const box = new QCheckBox(shown, this);
        Adopt(*box, row, choices.at(i));
        box->setAccessibleName(BatchHost::Messages::tr("%1: %2").arg(row.label, shown));
        layout->addWidget(box, i / columns, i % columns);
        connect(box, &QCheckBox::clicked, this, [this] {
            Q_EMIT Edited(Value());
            Q_EMIT EditEnded();
        });
        boxes.append(box);
    }
    SetMainControl(boxes.isEmpty() ? nullptr : boxes.first());
}

void ChoiceListEditor::SetValue(const QJsonValue& value)
{
    const QJsonArray chosen = value.toArray();
    for (int i = 0; i < boxes.size(); ++i) {
        boxes.at(i)->setChecked(chosen.contains(choices.at(i)));
    }
}

QJsonValue ChoiceListEditor::Value() const
{
    QJsonArray chosen;
    for (int i = 0; i < boxes.size(); ++i) {
        if (boxes.at(i)->isChecked()) {
            chosen.append(choices.at(i));
        }
    }
    return chosen;
}

} // namespace BatchDesktop
