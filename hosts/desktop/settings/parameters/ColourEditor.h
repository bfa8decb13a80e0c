// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

class QLineEdit;
class QToolButton;

namespace BatchDesktop {

/// A button that shows the colour and opens a dialog, and a field for its number or name.
class ColourEditor : public ParameterEditor
{
    Q_OBJECT

public:
    ColourEditor(const ParameterRow& row, const Choosers& choosers, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    void Choose(const Choosers& choosers, const QString& title);
    void ShowSwatch();

    QString shown; ///< "#rrggbb" or "#rrggbbaa"
    QToolButton* button;
    QLineEdit* field;
};

} // namespace BatchDesktop
