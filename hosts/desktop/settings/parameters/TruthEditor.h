// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

class QCheckBox;

namespace BatchDesktop {

/// A check box.
class TruthEditor : public ParameterEditor
{
    Q_OBJECT

public:
    TruthEditor(const ParameterRow& row, QWidget* parent);

    void SetValue(const QJsonValue& value) override;
    bool HasOwnLabel() const override { return true; }

private:
    QCheckBox* box;
};

} // namespace BatchDesktop
