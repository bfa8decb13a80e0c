// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

class QCheckBox;

namespace BatchDesktop {

/// A check box, and the editor of the value that is there if it is checked.
class OptionalEditor : public ParameterEditor
{
    Q_OBJECT

public:
    OptionalEditor(const ParameterRow& row, QWidget* parent);

    /// Must be called once. `first` is the value that checking the box gives.
    void SetEditor(ParameterEditor* wanted, const QJsonValue& first);

    void SetValue(const QJsonValue& value) override;
    bool HasOwnLabel() const override { return true; }

private:
    QCheckBox* box;
    ParameterEditor* editor = nullptr;
    QJsonValue firstValue;
};

} // namespace BatchDesktop
