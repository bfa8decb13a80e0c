// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

/// What the templates of naming parts hold, which documents store and setters announce.
namespace ZTBatchNaming {

/// A text with tokens, which only the server reads.
inline constexpr auto templateTokens = ZTBatchOutputSettings::NamingTemplate(6);

constexpr bool HasText(ZTBatchOutputSettings::NamingTemplate kind)
{
    return kind == ZTBatchOutputSettings::TemplateCustomText || kind == templateTokens;
}

constexpr bool HasStartNumber(ZTBatchOutputSettings::NamingTemplate kind)
{
    return kind == ZTBatchOutputSettings::TemplateNumber || kind == templateTokens;
}

} // namespace ZTBatchNaming
