// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

#include <QLabel>

namespace BatchDesktop {

/// What is wrong, in the user's language; hidden as long as nothing is.
class ProblemLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ProblemLabel(QWidget* parent);

    /// `problem` is a text of the job's checks, in English.
    void Show(const QString& problem);
};

/// An editor, and below it what is wrong with its value.
class ParameterField : public QWidget
{
    Q_OBJECT

public:
    ParameterField(const ParameterRow& row, const Choosers& choosers, QWidget* parent);
    ~ParameterField() override;

    ParameterEditor* Editor() const { return editor; }

    /// What is wrong with the value that the job has. What is being typed comes first.
    void SetProblem(const QString& problem);

private:
    void Show();

    QString problemOfValue;
    QString problemOfTyping;
    ParameterEditor* editor;
    ProblemLabel* label;
};

} // namespace BatchDesktop
