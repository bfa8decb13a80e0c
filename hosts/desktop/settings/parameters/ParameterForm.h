// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterRow.h"

#include <QJsonObject>
#include <QWidget>

class QLabel;

namespace BatchDesktop {

class ParameterField;
class ProblemLabel;
struct Choosers;

/// The editors of several parameters, one below the other.
class ParameterForm : public QWidget
{
    Q_OBJECT

public:
    /// `dialogs` must outlive it.
    ParameterForm(const Choosers& dialogs, QWidget* parent);

    /// The editors are made anew only if the rows are others.
    void SetRows(const QVector<ParameterRow>& wanted);

    /// Shows the values; a parameter that is missing has none. Emits nothing.
    void SetValues(const QJsonObject& values);

    void SetShown(const QString& name, bool isShown);

    /// Shows `problem`, an English text of the job's checks, beside the parameter that it names, or below all; empty
    /// for none.
    void SetProblem(const QString& problem);

Q_SIGNALS:
    /// The user has changed a parameter; an undefined value is to be removed.
    void Edited(const QString& name, const QJsonValue& value);
    void EditEnded();

    /// The editors are new ones, which are last in the window's tab order.
    void Rebuilt();

private:
    struct Line
    {
        QLabel* label; ///< null if the editor says what it is about
        ParameterField* field;
    };

    void Rebuild();
    Line MakeLine(const ParameterRow& row);

    const Choosers& choosers;
    QVector<ParameterRow> rows;
    QVector<Line> lines;
    QWidget* content = nullptr;
    ProblemLabel* otherProblem;
};

} // namespace BatchDesktop
