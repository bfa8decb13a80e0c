// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

class QComboBox;

namespace BatchDesktop {

/// A combo box. A value that is no choice is shown as none of them.
class ChoiceEditor : public ParameterEditor
{
    Q_OBJECT

public:
    ChoiceEditor(const ParameterRow& row, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    const QVector<ShownChoice> choices;
    QComboBox* box;
};

} // namespace BatchDesktop
