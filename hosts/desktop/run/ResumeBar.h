// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InterruptedRunSearch.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QSet>

namespace BatchDesktop {

/// Offers to resume runs that were interrupted, one after the other. Nothing has to be answered.
class ResumeBar : public QFrame
{
    Q_OBJECT

public:
    explicit ResumeBar(QWidget* parent = nullptr);

    /// Adds to what is offered; a run is offered once.
    void Offer(const QVector<InterruptedRun>& newRuns);

    /// Runs cannot be resumed while another one is going on.
    void SetCanResume(bool isPossible);

Q_SIGNALS:
    void ResumeWanted(const BatchDesktop::InterruptedRun& run);
    void ForgetWanted(const BatchDesktop::InterruptedRun& run);

private:
    QPushButton* AddButton(const char* name, const QString& label, void (ResumeBar::*wanted)(const InterruptedRun&));
    void Refresh();

    QVector<InterruptedRun> runs; ///< the first one is offered
    QSet<QString> offered;        ///< journals
    QLabel* const text;
    QPushButton* resume = nullptr;
};

} // namespace BatchDesktop
