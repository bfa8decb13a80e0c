// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ParameterEditor.h"

class QLineEdit;
class QPlainTextEdit;

namespace BatchDesktop {

/// A text; a long one may have several lines.
class TextEditor : public ParameterEditor
{
    Q_OBJECT

public:
    TextEditor(const ParameterRow& row, QWidget* parent);

    void SetValue(const QJsonValue& value) override;

private:
    void MakeField(const ParameterRow& row);
    void MakeLines(const ParameterRow& row);
    void Take(const QString& text);

    const BatchJob::ParameterSchema schema;
    QString shown;
    QLineEdit* field = nullptr;      ///< of a short text
    QPlainTextEdit* lines = nullptr; ///< of a long one
};

} // namespace BatchDesktop
