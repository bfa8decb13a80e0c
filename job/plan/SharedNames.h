#pragma once

#include "RunPlan.h"

#include "job/settings/JobCheck.h"

namespace BatchJob {

/// Refuses a job whose plan has shared names, with how many there are and the first few; no error if there is none.
Refusal RefusalOfSharedNames(const RunPlan& plan);

} // namespace BatchJob
