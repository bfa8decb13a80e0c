// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

namespace BatchWorker {

/// Some rows of a picture that follow each other, with values of any kind. Windows that overlap keep the rows that they
/// share, so strips from top to bottom make each row once.
class RowWindow
{
public:
    /// Rows `first` to `end` - 1.
    struct Range
    {
        int first;
        int end;
    };

    /// What the rows hold beside their numbers; rows of another layout are not kept.
    struct Layout
    {
        int left;
        int right;
        std::size_t bytes; ///< of a row

        bool operator==(const Layout& other) const
        {
            return left == other.left && right == other.right && bytes == other.bytes;
        }
    };

    /// More than a row has may be read and written behind it, so that loops can take several values at a time.
    static constexpr std::size_t bytesBehind = 256;

    /// A window of at most `capacity` rows.
    explicit RowWindow(int capacity)
        : capacity(capacity)
    {
    }

    /// Moves to `rows`. The result are those that are new: their values have to be made.
    Range Hold(Range rows, const Layout& layout);

    /// No row counts as made any more.
    void Forget() { held = {0, 0}; }

    /// The first value of a row, one of those last held. Every row begins as all vectors like it.
    template<typename T>
    T* Row(int y)
    {
        return static_cast<T*>(At(y));
    }

private:
    void* At(int y);

    int capacity;
    Layout layout{0, 0, 0};
    Range held{0, 0};
    std::size_t stride = 0;
    std::vector<unsigned char> memory;
    unsigned char* aligned = nullptr;
};

} // namespace BatchWorker
