// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterField.h"

#include "hosts/common/Language.h"

#include <QVBoxLayout>

namespace BatchDesktop {

ProblemLabel::ProblemLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void ProblemLabel::Show(const QString& problem)
{
    // A sign besides the words, so that it is seen without reading; no colour, which not everybody sees.
    setText(problem.isEmpty() ? QString() : QStringLiteral("\u26A0 ") + BatchHost::Translated(problem));
    setVisible(!problem.isEmpty());
}

ParameterField::ParameterField(const ParameterRow& row, const Choosers& choosers, QWidget* parent)
    : QWidget(parent)
    , editor(MakeParameterEditor(row, choosers, this))
    , label(new ProblemLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    constexpr int linesOfSpace = 3;
    layout->setContentsMargins(0, 0, 0, fontMetrics().height() / linesOfSpace);
    layout->addWidget(editor);
    layout->addWidget(label);
    label->setObjectName(row.id + QStringLiteral(".problem"));
    connect(editor, &ParameterEditor::Refused, this, [this](const QString& problem) {
        problemOfTyping = problem;
        Show();
    });
}

// A field with the focus says what was typed in it when it is destroyed.
ParameterField::~ParameterField()
{
    editor->disconnect(this);
}

void ParameterField::SetProblem(const QString& problem)
{
    problemOfValue = problem;
    Show();
}

void ParameterField::Show()
{
    const QString& problem = problemOfTyping.isEmpty() ? problemOfValue : problemOfTyping;
    const QString before = label->text();
    label->Show(problem);
    QWidget* const control = editor->MainControl();
    if (control && label->text() != before) {
        control->setAccessibleDescription(label->text());
    }
}

} // namespace BatchDesktop
