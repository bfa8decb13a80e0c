// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerPolicies.h"

#include "ZTBatchManager.h"

using namespace BatchJob;

namespace BatchHost {

PolicyValues PoliciesOfManager()
{
    const ZTBatchManager& manager = *ZTBatchManager::Instance();
    return {manager.GetInputPolicy(), manager.GetOutputPolicy(), manager.GetProcessingPolicy(),
            manager.GetNamingPolicy(), manager.GetWriteToFormatPolicy()};
}

void SetPoliciesOfManager(const PolicyValues& values)
{
    ZTBatchManager& manager = *ZTBatchManager::Instance();
    manager.SetInputPolicy(ZTBatchManager::InputPolicy(values[0]));
    manager.SetOutputPolicy(ZTBatchManager::OutputPolicy(values[1]));
    manager.SetProcessingPolicy(ZTBatchManager::ProcessingPolicy(values[2]));
    manager.SetNamingPolicy(ZTBatchManager::NamingPolicy(values[3]));
    manager.SetWriteToFormatPolicy(ZTBatchManager::WriteToFormatPolicy(values[4]));
}

} // namespace BatchHost
