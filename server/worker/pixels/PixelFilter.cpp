// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PixelFilter.h"

#include "PointPass.h"

namespace BatchWorker {

Picture MapValues(const Picture& picture, const ValueFunction& function)
{
    return WithOperation(picture, ValueTables(function, static_cast<int>(LargestValue(picture))));
}

Picture MapValues(const Picture& picture, const std::array<ValueFunction, 3>& functions)
{
    return WithOperation(picture, ValueTables(functions, static_cast<int>(LargestValue(picture))));
}

} // namespace BatchWorker
