// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SettingsSection.h"

class QPushButton;

namespace BatchDesktop {

class ProblemLabel;

/// The colour profile that results are converted to.
class ProfileSection : public SettingsSection
{
    Q_OBJECT

public:
    ProfileSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

protected:
    void Refresh() override;

private:
    void Choose();
    void Set(const QByteArray& profile);

    QPushButton* remove;
    ProblemLabel* problem;
};

} // namespace BatchDesktop
