// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterRow.h"

#include <QWidget>

namespace BatchDesktop {

struct Choosers;

/// Shows one value and lets a user change it to what the parameter allows.
class ParameterEditor : public QWidget
{
    Q_OBJECT

public:
    /// Shows `value`; undefined is a parameter without a value. What was typed and refused is gone.
    virtual void SetValue(const QJsonValue& value) = 0;

    /// Whether it says itself what it is about, and needs no label in front of it.
    virtual bool HasOwnLabel() const { return false; }

    /// The one that a label in front stands for. It is no focus proxy: Tab would pass by the controls before it.
    QWidget* MainControl() const { return mainControl; }

Q_SIGNALS:
    /// The user has changed the value; undefined is a parameter without a value.
    void Edited(const QJsonValue& value);

    /// The user has let go of the control: what was changed until now is one step.
    void EditEnded();

    /// What is typed now is refused, and why; empty: it is no longer.
    void Refused(const QString& problem);

protected:
    explicit ParameterEditor(QWidget* parent);

    /// Names `control` for tests and for assistive technology, and watches it: leaving it ends an edit, and the wheel
    /// scrolls the pane instead of changing a value by accident.
    void Adopt(QWidget& control, const ParameterRow& row, const QString& suffix = QString());

    void SetMainControl(QWidget* control) { mainControl = control; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* mainControl = nullptr;
};

/// The editor for the type of `row`. `choosers` must outlive it.
ParameterEditor* MakeParameterEditor(const ParameterRow& row, const Choosers& choosers, QWidget* parent);

} // namespace BatchDesktop
