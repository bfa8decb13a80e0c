// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NearestFormat.h"

#include "FormatCatalog.h"

#include <algorithm>

namespace BatchJob {

namespace {

// Camera RAW is: its pixels have no form of 8 bits.
bool IsAlwaysDeep(const FormatSchema* format)
{
    return format && format->bitDepths.first() > 8;
}

} // namespace

const FormatSchema& NearestFormat(const QString& input, const FormatNeeds& needs)
{
    const FormatSchema& holdsAll = FormatOf(FormatId::Tiff);
    if (needs.isDeep || IsAlwaysDeep(FindReadableFormat(input))) {
        return holdsAll;
    }
    const bool needsAlpha = needs.hasAlpha && !needs.isCmyk; // CMYK goes without: it is laid on the background
    const FormatSchema& usual = FormatOf(needsAlpha ? FormatId::Png : FormatId::Jpeg);
    const bool fits = std::max(needs.size.width(), needs.size.height()) <= usual.longestSide;
    return fits ? usual : holdsAll;
}

} // namespace BatchJob
