// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ColourScheme.h"

#include <QDBusVariant>

namespace BatchDesktop {

/// Reads what the desktop's portal tells and hears of changes.
class ColourScheme::Link : public QObject
{
    Q_OBJECT

public:
    explicit Link(ColourScheme& owner);

private Q_SLOTS:
    void OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    ColourScheme& owner;
};

} // namespace BatchDesktop
