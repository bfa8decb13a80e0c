// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SettingsSection.h"

#include <QDateTime>

class QLabel;

namespace BatchDesktop {

class BoundForm;

/// The names of results and their folders, with the name that one picture would get.
class NamesSection : public SettingsSection
{
    Q_OBJECT

public:
    NamesSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

    /// The picture whose name is shown, its place in the job, counted from 0, and when it was taken, if that is known.
    /// An empty `file` stands for any picture.
    void SetExample(const QString& file, int position, const QDateTime& captured);

    /// The name without its folder.
    QString ExampleName() const;

protected:
    void Refresh() override;

private:
    QString ExampleText() const;

    QString exampleFile;
    int examplePosition = 0;
    QDateTime exampleTime;
    BoundForm* form;
    QLabel* example;
};

} // namespace BatchDesktop
