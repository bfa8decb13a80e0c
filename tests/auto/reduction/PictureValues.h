// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <vector>

/// Rows of pixels, value by value.
using Values = std::vector<double>;

/// The largest value of a format: 1 for floating point.
double LargestOf(VipsBandFormat format);

/// Values from 0 to `largest`, whole ones where that is above 1; the same in every call with the same arguments.
Values RandomValues(int width, int height, int bands, double largest);

BatchWorker::Picture PictureOf(const Values& values, int width, int height, int bands, VipsBandFormat format);
Values ExactValuesOf(const BatchWorker::Picture& picture);
