// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

class QLineEdit;

namespace BatchDesktop {

/// The path of a file or folder, and a button that opens a dialog.
class FileEditor : public ParameterEditor
{
    Q_OBJECT

public:
    FileEditor(const ParameterRow& row, const Choosers& choosers, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    QString shown;
    QLineEdit* field;
};

} // namespace BatchDesktop
