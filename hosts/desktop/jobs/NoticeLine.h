// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QToolButton;

namespace BatchDesktop {

/// A line that says what happened, until it is put away or something else happens. It takes no focus.
class NoticeLine : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeLine(QWidget* parent = nullptr);

    void Show(const QString& text);

    /// The same with a button that does `action` and puts the line away.
    void Show(const QString& text, const QString& label, const std::function<void()>& action);

    QString Text() const;

private:
    QLabel* const text;
    QToolButton* const button;
    QToolButton* const close;
    std::function<void()> action;
};

} // namespace BatchDesktop
