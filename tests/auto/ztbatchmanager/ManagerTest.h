// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PrivateTempDir.h"
#include "ZTBatchManager.h"

#include <QList>
#include <QObject>

#include <memory>

/// Base class of the tests of a manager without a server. Each test function gets a folder of its own; the manager is
/// released after it.
class ManagerTest : public QObject
{
    Q_OBJECT

protected:
    /// The folder of the manager's settings: the test function's own.
    QString SettingsDir() const { return folder->FilePath(QString()); }

    std::unique_ptr<PrivateTempDir> folder;

private Q_SLOTS:
    void init();
    void cleanup();
};

/// The manager, initialised and released with this object.
class ManagerLife
{
public:
    explicit ManagerLife(const QString& settingsDir) { ZTBatchManager::InitInstance(settingsDir); }
    ~ManagerLife() { ZTBatchManager::ReleaseInstance(); }

    ZTBatchManager* operator->() const { return ZTBatchManager::Instance(); }
    ZTBatchManager* Get() const { return ZTBatchManager::Instance(); }

private:
    Q_DISABLE_COPY(ManagerLife)
};

/// The manager's policies as numbers: input, output, processing, naming, write to format.
using Policies = QList<int>;
Policies CurrentPolicies();
