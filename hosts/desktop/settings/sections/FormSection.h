// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BoundForm.h"
#include "SettingsSection.h"

#include "job/settings/ValueChecks.h"

namespace BatchDesktop {

/// A section that is a form of parts of the settings.
class FormSection : public SettingsSection
{
    Q_OBJECT

protected:
    using SettingsSection::SettingsSection;

    /// Must be called at the end of the constructor.
    void MakeForm();

    virtual QVector<BoundParameter> Parameters() const = 0;

    /// The state in one line.
    virtual QString State() const = 0;

    /// What the job's checks say, in English; empty if all is well.
    virtual QString Problem() const = 0;

    void Refresh() override;

private:
    BoundForm* form = nullptr;
};

} // namespace BatchDesktop
