// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewTexts.h"

#include "hosts/common/ByteText.h"
#include "hosts/common/Language.h"

using BatchHost::ByteText;
using BatchHost::Messages;

namespace BatchDesktop {

QString FactsText(const PreviewPictures& pictures)
{
    if (pictures.inputSize.isEmpty() || pictures.inputBytes < 0) {
        return Messages::tr("%1 \u00d7 %2 px, %3")
            .arg(pictures.size.width())
            .arg(pictures.size.height())
            .arg(ByteText(pictures.bytes));
    }
    return Messages::tr("%1 \u00d7 %2 px, %3 \u2192 %4 \u00d7 %5 px, %6")
        .arg(pictures.inputSize.width())
        .arg(pictures.inputSize.height())
        .arg(ByteText(pictures.inputBytes))
        .arg(pictures.size.width())
        .arg(pictures.size.height())
        .arg(ByteText(pictures.bytes));
}

QString ExactnessText(const PreviewPictures& pictures)
{
    return Messages::tr("Exact: %1 of %2 bytes, as a run writes it; made in %3 s")
        .arg(pictures.format)
        .arg(pictures.bytes)
        .arg(pictures.seconds, 0, 'f', 1);
}

} // namespace BatchDesktop
