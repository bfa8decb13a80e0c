// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OrderOption.h"

#include "hosts/common/RequestError.h"
#include "hosts/common/options/Words.h"

using namespace BatchHost;

namespace BatchCli {

const QString orderOption = QStringLiteral("--order");

std::optional<InputOrder> OrderIn(const ParsedArguments& arguments)
{
    if (!arguments.Has(orderOption)) {
        return std::nullopt;
    }
    try {
        return InputOrder(ValueOf(inputOrderWords, arguments.Value(orderOption)));
    } catch (const RequestError& error) {
        throw error.In(orderOption);
    }
}

} // namespace BatchCli
