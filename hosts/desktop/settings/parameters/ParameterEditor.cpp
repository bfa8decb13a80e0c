// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterEditor.h"

#include "ChoiceEditor.h"
#include "ChoiceListEditor.h"
#include "ColourEditor.h"
#include "CurveEditor.h"
#include "FileEditor.h"
#include "NumberEditor.h"
#include "OptionalEditor.h"
#include "TextEditor.h"
#include "TruthEditor.h"

#include <QEvent>
#include <QJsonArray>

using BatchJob::ParameterType;

namespace BatchDesktop {

namespace {

ParameterEditor* EditorForType(const ParameterRow& row, const Choosers& choosers, QWidget* parent)
{
    switch (row.schema.type) {
    case ParameterType::Number:
    case ParameterType::Integer:
        return new NumberEditor(row, parent);
    case ParameterType::Truth:
        return new TruthEditor(row, parent);
    case ParameterType::Choice:
        return new ChoiceEditor(row, parent);
    case ParameterType::ChoiceList:
        return new ChoiceListEditor(row, parent);
    case ParameterType::Colour:
        return new ColourEditor(row, choosers, parent);
    case ParameterType::Text:
        return new TextEditor(row, parent);
    case ParameterType::File:
        return new FileEditor(row, choosers, parent);
    case ParameterType::Points:
        return new CurveEditor(row, parent);
    }
    return nullptr;
}

// What a parameter without a default is when a user sets it.
QJsonValue FirstValueOf(const ParameterRow& row)
{
    if (!row.firstValue.isNull() && !row.firstValue.isUndefined()) {
        return row.firstValue;
    }
    switch (row.schema.type) {
    case ParameterType::Number:
    case ParameterType::Integer:
        return row.schema.minimum;
    case ParameterType::Truth:
        return true;
    case ParameterType::ChoiceList:
        return QJsonArray();
    case ParameterType::Colour:
        return QStringLiteral("#ffffff");
    default:
        return QString();
    }
}

} // namespace

ParameterEditor::ParameterEditor(QWidget* parent)
    : QWidget(parent)
{
}

void ParameterEditor::Adopt(QWidget& control, const ParameterRow& row, const QString& suffix)
{
    control.setObjectName(suffix.isEmpty() ? row.id : row.id + QLatin1Char('.') + suffix);
    control.setAccessibleName(row.label);
    control.setToolTip(row.help);
    control.setFocusPolicy(Qt::StrongFocus);
    control.installEventFilter(this);
}

bool ParameterEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        Q_EMIT EditEnded();
    }
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

ParameterEditor* MakeParameterEditor(const ParameterRow& row, const Choosers& choosers, QWidget* parent)
{
    if (!row.choices.isEmpty()) {
        return new ChoiceEditor(row, parent);
    }
    if (!row.schema.defaultValue.isUndefined()) {
        return EditorForType(row, choosers, parent);
    }
    ParameterRow inner = row;
    inner.schema.defaultValue = FirstValueOf(row);
    auto* const optional = new OptionalEditor(row, parent);
    optional->SetEditor(EditorForType(inner, choosers, optional), inner.schema.defaultValue);
    return optional;
}

} // namespace BatchDesktop
