// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PlanarOperation.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace BatchWorker {

/// Maps a value of 0 to 1; what it gives outside 0 to 1 becomes 0 or 1.
using ValueFunction = std::function<double(double)>;

/// For each channel of colour what its values become.
class ValueTables
{
public:
    /// Tables of samples from 0 to `largest`, the same for all channels, or each its own.
    ValueTables(const ValueFunction& function, int largest);
    ValueTables(const std::array<ValueFunction, 3>& functions, int largest);

    /// The tables that do what these and then `later` do.
    ValueTables Then(const ValueTables& later) const;

    template<typename Sample>
    void Apply(const PlanarPixels<Sample>& pixels) const;

    /// Maps `count` pixels of `bands` channels (1 to 4) from `pixels` to `result`. Alpha stays.
    template<typename Sample>
    void Map(const Sample* pixels, Sample* result, int bands, int count) const;

private:
    using Table = std::vector<std::uint16_t>;
    using SharedTable = std::shared_ptr<const Table>;

    ValueTables() = default;
    const std::uint16_t* Of(int channel) const { return tables[static_cast<std::size_t>(channel)]->data(); }
    bool AreOne() const { return tables[0] == tables[1] && tables[0] == tables[2]; }

    std::array<SharedTable, 3> tables; ///< channels that are mapped alike share theirs
};

} // namespace BatchWorker
