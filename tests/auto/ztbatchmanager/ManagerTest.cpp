// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerTest.h"

void ManagerTest::init()
{
    folder = std::make_unique<PrivateTempDir>();
}

void ManagerTest::cleanup()
{
    ZTBatchManager::ReleaseInstance();
    folder.reset();
}

Policies CurrentPolicies()
{
    const ZTBatchManager* manager = ZTBatchManager::Instance();
    return {manager->GetInputPolicy(), manager->GetOutputPolicy(), manager->GetProcessingPolicy(),
            manager->GetNamingPolicy(), manager->GetWriteToFormatPolicy()};
}
