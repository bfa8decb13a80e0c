// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobRunner.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVector>

namespace BatchDesktop {

/// Shows the open question of a run with a button for each answer. Other pictures go on meanwhile, so it takes no focus
/// and no key answers by accident.
class QuestionBar : public QFrame
{
    Q_OBJECT

public:
    explicit QuestionBar(JobRunner& runner, QWidget* parent = nullptr);

    /// Pictures of the existing file and of the input whose result would take its place; null ones are not shown.
    void SetPictures(const QPixmap& existing, const QPixmap& wanted);

Q_SIGNALS:
    /// A question about a taken name is open: SetPictures() may follow.
    void PicturesWanted(const QString& existing, const QString& wanted);

private:
    void Show(const QPixmap& picture, QLabel* label, const QString& description);
    void Refresh();
    void MakeButtons(BatchJob::PolicyKind kind);

    JobRunner& runner;
    QLabel* const text;
    QLabel* const existingPicture;
    QLabel* const wantedPicture;
    QHBoxLayout* const answers;
    QCheckBox* const forTheRest;
    QVector<QPushButton*> buttons;
};

} // namespace BatchDesktop
