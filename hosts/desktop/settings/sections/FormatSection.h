// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SettingsSection.h"

namespace BatchDesktop {

class BoundForm;

/// The format of results, with the options that it takes.
class FormatSection : public SettingsSection
{
    Q_OBJECT

public:
    FormatSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

protected:
    void Refresh() override;

private:
    BoundForm* format;
    BoundForm* options;
};

} // namespace BatchDesktop
