// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterForm.h"

#include "ParameterField.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace BatchDesktop {

ParameterForm::ParameterForm(const Choosers& dialogs, QWidget* parent)
    : QWidget(parent)
    , choosers(dialogs)
    , otherProblem(new ProblemLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(otherProblem);
}

void ParameterForm::SetRows(const QVector<ParameterRow>& wanted)
{
    if (content && rows == wanted) {
        return;
    }
    rows = wanted;
    const QWidget* const focused = focusWidget();
    const QString focusedName = focused && focused->hasFocus() ? focused->objectName() : QString();
    Rebuild();
    if (!focusedName.isEmpty()) {
        if (auto* const again = content->findChild<QWidget*>(focusedName)) {
            again->setFocus();
        }
    }
}

void ParameterForm::Rebuild()
{
    if (content) {
        // It may be one of its editors whose change has led here.
        content->hide();
        content->disconnect(this);
        content->setParent(nullptr);
        content->deleteLater();
    }
    content = new QWidget(this);
    auto* const form = new QFormLayout(content);
    form->setContentsMargins(0, 0, 0, 0);
    // Rows that are hidden would leave their spacing; each field has its own instead.
    form->setVerticalSpacing(0);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    lines.clear();
    for (const ParameterRow& row : qAsConst(rows)) {
        const Line line = MakeLine(row);
        if (line.label) {
            form->addRow(line.label, line.field);
        } else {
            form->addRow(line.field);
        }
        lines.append(line);
    }
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, content);
    content->setVisible(true);
    Q_EMIT Rebuilt();
}

ParameterForm::Line ParameterForm::MakeLine(const ParameterRow& row)
{
    auto* const field = new ParameterField(row, choosers, content);
    connect(field->Editor(), &ParameterEditor::Edited, this,
            [this, name = row.schema.name](const QJsonValue& value) { Q_EMIT Edited(name, value); });
    connect(field->Editor(), &ParameterEditor::EditEnded, this, &ParameterForm::EditEnded);
    if (field->Editor()->HasOwnLabel()) {
        return {nullptr, field};
    }
    auto* const label = new QLabel(row.label, content);
    label->setToolTip(row.help);
    label->setWordWrap(true);
    label->setBuddy(field->Editor()->MainControl());
    return {label, field};
}

void ParameterForm::SetValues(const QJsonObject& values)
{
    for (int i = 0; i < rows.size(); ++i) {
        const auto found = values.constFind(rows.at(i).schema.name);
        lines.at(i).field->Editor()->SetValue(found == values.constEnd() ? QJsonValue(QJsonValue::Undefined)
                                                                         : QJsonValue(*found));
    }
}

void ParameterForm::SetShown(const QString& name, bool isShown)
{
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i).schema.name == name) {
            lines.at(i).field->setVisible(isShown);
            if (lines.at(i).label) {
                lines.at(i).label->setVisible(isShown);
            }
        }
    }
}

void ParameterForm::SetProblem(const QString& problem)
{
    // "The image size" begins the problems of "The image size's side", too: the longest one counts.
    int named = -1;
    for (int i = 0; i < rows.size(); ++i) {
        const QString& start = rows.at(i).problemStart;
        if (!start.isEmpty() && problem.startsWith(start) &&
            (named < 0 || start.size() > rows.at(named).problemStart.size())) {
            named = i;
        }
    }
    for (int i = 0; i < lines.size(); ++i) {
        lines.at(i).field->SetProblem(i == named ? problem : QString());
    }
    otherProblem->Show(named < 0 ? problem : QString());
}

} // namespace BatchDesktop
