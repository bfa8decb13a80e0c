// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTStyleGlobal.h"

#include <QObject>
#include <QString>

/// A named collection that styles can belong to.
class VELKORA_STYLECORE_EXPORT ZTStyleGroup : public QObject
{
    Q_OBJECT

public:
    explicit ZTStyleGroup(const QString& name, QObject* parent = nullptr);
    ~ZTStyleGroup() override;

    /// The name given to the constructor.
    QString Name() const;

private:
    Q_DISABLE_COPY(ZTStyleGroup)

    QString name;
};
