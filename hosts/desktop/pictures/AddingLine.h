// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QToolButton;

namespace BatchDesktop {

class InputAdder;

/// The line that says that pictures are being added, and what could not be added. Hidden when there is nothing to say.
class AddingLine : public QWidget
{
    Q_OBJECT

public:
    /// `adder` must outlive this object.
    explicit AddingLine(InputAdder& adder, QWidget* parent = nullptr);

    /// Those that were said and not closed yet.
    const QStringList& Problems() const { return problems; }

private:
    void ShowProblems(const QStringList& found);
    void Close();
    void Update();

    InputAdder& adder;
    QStringList problems;
    QLabel* text = nullptr;
    QToolButton* stop = nullptr;
    QToolButton* close = nullptr;
};

} // namespace BatchDesktop
