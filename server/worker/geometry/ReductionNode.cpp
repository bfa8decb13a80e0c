// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ReductionNode.h"

#include <algorithm>
#include <deque>
#include <mutex>

namespace BatchWorker {

namespace {

using Plan = std::shared_ptr<const ReductionPlan>;

void ReleasePlan(void* plan)
{
    delete static_cast<Plan*>(plan);
}

} // namespace

Picture ReducedPicture(const Picture& picture, const QSize& size, Plan plan, VipsGenerateFn generate)
{
    VipsImage* const input = picture.get_image();
    VipsImage* const output = vips_image_new();
    const Picture reduced(output);
    // The output reads from its input as long as it lives.
    g_object_ref(input);
    vips_object_local(output, input);
    auto* const client = const_cast<ReductionPlan*>(plan.get());
    g_object_set_data_full(G_OBJECT(output), "reduction-plan", new Plan(std::move(plan)), ReleasePlan);
    if (vips_image_pipelinev(output, VIPS_DEMAND_STYLE_FATSTRIP, input, nullptr) != 0) {
        throw vips::VError();
    }
    output->Xsize = size.width();
    output->Ysize = size.height();
    if (vips_image_generate(output, vips_start_one, generate, vips_stop_one, input, client) != 0) {
        throw vips::VError();
    }
    return reduced;
}

Plan KnownReductionPlan(int oldCount, int newCount, ReductionPlan::Arithmetic arithmetic)
{
    constexpr std::size_t most = 16;
    static std::mutex mutex;
    static std::deque<Plan> latest;
    const std::lock_guard<std::mutex> lock(mutex);
    const auto known = std::find_if(latest.begin(), latest.end(), [=](const Plan& plan) {
        return plan->oldCount == oldCount && int(plan->firsts.size()) == newCount && plan->arithmetic == arithmetic;
    });
    if (known != latest.end()) {
        return *known;
    }
    if (latest.size() == most) {
        latest.pop_front();
    }
    latest.push_back(std::make_shared<const ReductionPlan>(oldCount, newCount, arithmetic));
    return latest.back();
}

} // namespace BatchWorker
