// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <lcms2.h>

namespace BatchWorker {

/// Whether colours come from a profile or go to it.
enum class IccUse : cmsUInt32Number { Source = LCMS_USED_AS_INPUT, Target = LCMS_USED_AS_OUTPUT };

/// The rendering intent with which `profile` is used: relative colorimetric if it has that, otherwise the first that it
/// has of perceptual, saturation and absolute colorimetric. A profile that has none gets the first and fails later.
inline cmsUInt32Number IntentOf(cmsHPROFILE profile, IccUse use)
{
    for (const cmsUInt32Number intent :
         {INTENT_RELATIVE_COLORIMETRIC, INTENT_PERCEPTUAL, INTENT_SATURATION, INTENT_ABSOLUTE_COLORIMETRIC}) {
        if (cmsIsIntentSupported(profile, intent, cmsUInt32Number(use))) {
            return intent;
        }
    }
    return INTENT_RELATIVE_COLORIMETRIC;
}

} // namespace BatchWorker
