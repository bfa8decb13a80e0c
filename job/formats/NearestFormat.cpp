#include "NearestFormat.h"

#include <algorithm>

namespace BatchJob {

const FormatSchema& NearestFormat(const QString& input, const FormatNeeds& needs)
{
    const FormatSchema& holdsAll = *FindFormat(QStringLiteral("TIFF"));
    if (input == QLatin1String("RAW") || needs.isDeep) {
        return holdsAll;
    }
    const bool needsAlpha = needs.hasAlpha && !needs.isCmyk; // CMYK goes without: the background lies under it
    const FormatSchema& usual = *FindFormat(needsAlpha ? QStringLiteral("PNG") : QStringLiteral("JPEG"));
    const bool fits = std::max(needs.size.width(), needs.size.height()) <= usual.longestSide;
    return fits ? usual : holdsAll;
}

} // namespace BatchJob
