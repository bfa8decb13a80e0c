// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CarriedFailure.h"

#include <vips/vips8>

#include <mutex>
#include <utility>

namespace BatchWorker {

namespace {

std::mutex carriedMutex;
std::optional<PictureFailure> carried;

} // namespace

void CarryFailure(const PictureFailure& failure)
{
    vips_error(nullptr, "%s", failure.what());
    const std::lock_guard<std::mutex> lock(carriedMutex);
    if (!carried) {
        carried = failure;
    }
}

std::optional<PictureFailure> TakeCarriedFailure()
{
    const std::lock_guard<std::mutex> lock(carriedMutex);
    return std::exchange(carried, std::nullopt);
}

} // namespace BatchWorker
