// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureFailure.h"

#include <new>
#include <optional>

/// The way of a failure through the imaging library. Its callbacks return a number and leave a text, from which nobody
/// could tell any more what kind of failure it was.
namespace BatchWorker {

/// For the library `failure` becomes an error of the same text. Safe on any thread.
void CarryFailure(const PictureFailure& failure);

/// The first failure that was carried since the last call. Safe on any thread.
std::optional<PictureFailure> TakeCarriedFailure();

/// What a callback that fills pixels by `fill` returns to the library.
template<typename Fill>
int ResultOfFilling(const Fill& fill)
{
    try {
        fill();
        return 0;
    } catch (const PictureFailure& failure) {
        CarryFailure(failure);
    } catch (const std::bad_alloc&) {
        CarryFailure(NotEnoughMemory());
    }
    return -1;
}

} // namespace BatchWorker
