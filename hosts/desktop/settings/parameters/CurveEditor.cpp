// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CurveEditor.h"

#include "CurveArea.h"

#include "hosts/common/Language.h"

#include <QJsonArray>
#include <QVBoxLayout>

namespace BatchDesktop {

CurveEditor::CurveEditor(const ParameterRow& row, QWidget* parent)
    : ParameterEditor(parent)
    , area(new CurveArea(row.schema.minimum, row.schema.maximum, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    Adopt(*area, row);
    area->setToolTip(
        BatchHost::Messages::tr("Click to add a point and drag to move it; a double click removes it. With "
                                "keys: Page Up and Page Down choose a point, arrows move it, Insert adds "
                                "one, Delete removes it."));
    SetMainControl(area);
    connect(area, &CurveArea::Changed, this, [this] { Q_EMIT Edited(area->Points().ToJson()); });
    connect(area, &CurveArea::Released, this, &ParameterEditor::EditEnded);
}

void CurveEditor::SetValue(const QJsonValue& value)
{
    area->SetPoints(value.toArray());
}

} // namespace BatchDesktop
