// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

#include <QStringList>

class QCheckBox;

namespace BatchDesktop {

/// A check box for each choice.
class ChoiceListEditor : public ParameterEditor
{
    Q_OBJECT

public:
    ChoiceListEditor(const ParameterRow& row, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    QJsonValue Value() const;

    const QStringList choices;
    QVector<QCheckBox*> boxes;
};

} // namespace BatchDesktop
