// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TextEditor.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace BatchJob;

namespace BatchDesktop {

TextEditor::TextEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , schema(row.schema)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    constexpr double longestField = 255;
    if (schema.maximum > longestField) {
        MakeLines(row);
    } else {
        MakeField(row);
    }
}

void TextEditor::MakeField(const ParameterRow& row)
{
    field = new QLineEdit(this);
    field->setMaxLength(int(schema.maximum));
    layout()->addWidget(field);
    Adopt(*field, row);
    SetMainControl(field);
    connect(field, &QLineEdit::textEdited, this, &TextEditor::Take);
}

void TextEditor::MakeLines(const ParameterRow& row)
{
    lines = new QPlainTextEdit(this);
    lines->setTabChangesFocus(true);
    constexpr int visibleLines = 3;
    lines->setFixedHeight(visibleLines * fontMetrics().lineSpacing() + 2 * lines->frameWidth() +
                          int(2 * lines->document()->documentMargin()));
    layout()->addWidget(lines);
    Adopt(*lines, row);
    SetMainControl(lines);
    connect(lines, &QPlainTextEdit::textChanged, this, [this] { Take(lines->toPlainText()); });
}

void TextEditor::SetValue(const QJsonValue& value)
{
    const QString text = value.toString();
    if (text == shown) {
        return;
    }
    shown = text;
    Q_EMIT Refused(QString());
    if (field) {
        field->setText(text);
    } else {
        const QSignalBlocker quiet(lines);
        lines->setPlainText(text);
    }
}

void TextEditor::Take(const QString& text)
{
    if (text == shown) {
        return;
    }
    const ParameterValue typed = ParameterFromText(schema, text);
    if (typed.IsValid()) {
        shown = text;
        Q_EMIT Edited(text);
    }
    Q_EMIT Refused(typed.error);
}

} // namespace BatchDesktop
