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
    // Only folders stand apart: the types behind them have no order among each other, and saved jobs keep the order
    // that this gives.
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
