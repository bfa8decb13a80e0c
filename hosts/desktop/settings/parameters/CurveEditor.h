// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

namespace BatchDesktop {

class CurveArea;

/// A curve through points.
class CurveEditor : public ParameterEditor
{
    Q_OBJECT

public:
    CurveEditor(const ParameterRow& row, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    CurveArea* area;
};

} // namespace BatchDesktop
