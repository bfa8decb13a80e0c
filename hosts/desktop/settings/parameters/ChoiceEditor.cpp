// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ChoiceEditor.h"

#include <QComboBox>
#include <QVBoxLayout>

#include <algorithm>

namespace BatchDesktop {

ChoiceEditor::ChoiceEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , choices(row.choices)
    , box(new QComboBox(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    for (const ShownChoice& choice : choices) {
        box->addItem(choice.text);
        box->setItemData(box->count() - 1, choice.text, Qt::ToolTipRole);
    }
    // A long text must not make the pane wide.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int shortestText = 10;
    box->setMinimumContentsLength(shortestText);
    Adopt(*box, row);
    SetMainControl(box);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        Q_EMIT Edited(choices.at(index).value);
        Q_EMIT EditEnded();
    });
}

void ChoiceEditor::SetValue(const QJsonValue& value)
{
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&value](const ShownChoice& choice) { return choice.value == value; });
    box->setCurrentIndex(found == choices.end() ? -1 : int(found - choices.begin()));
}

} // namespace BatchDesktop
