// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchInputModel.h"

BatchNodeData::BatchNodeData() = default;

BatchNodeData::BatchNodeData(const BatchNodeData& other) = default;

BatchNodeData::BatchNodeData(BatchNodeData&& other) noexcept = default;

BatchNodeData::~BatchNodeData() = default;

BatchNodeData& BatchNodeData::operator=(const BatchNodeData& other) = default;

BatchNodeData& BatchNodeData::operator=(BatchNodeData&& other) noexcept = default;

bool BatchNodeData::operator==(const BatchNodeData& other) const
{
    return type == other.type && inputText == other.inputText;
}

bool BatchNodeData::operator!=(const BatchNodeData& other) const
{
    return !(*this == other);
}

bool BatchNodeData::operator<(const BatchNodeData& other) const
{
    if (type == other.type) {
        return QString::compare(inputText, other.inputText, Qt::CaseSensitive) < 0;
    }
    // Only folders sort before other types, which have no order among each other. Saved jobs depend on this order.
    return type == Folder;
}

bool BatchNodeData::operator<=(const BatchNodeData& other) const
{
    return *this < other || *this == other;
}

bool BatchNodeData::operator>(const BatchNodeData& other) const
{
    return !(*this < other) && !(*this == other);
}

bool BatchNodeData::operator>=(const BatchNodeData& other) const
{
    return !(*this < other);
}
