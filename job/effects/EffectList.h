// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// The one list of the effects, in the order of the catalogue and of the reference page. Each name has two functions,
/// in a source file of that name in each of two folders:
///   - `EffectSchema NAMEEffect()`, its record, in job/effects/;
///   - `Picture ApplyNAME(...)`, its work on pixels, in server/worker/effects/, which alone links the imaging library.
/// The catalogue and the worker's table of functions are both made from this list; a name that lacks one of its
/// functions does not link.
#define BATCH_EFFECTS(EFFECT)                                                                                          \
    EFFECT(Exposure)                                                                                                   \
    EFFECT(BrightnessContrast)                                                                                         \
    EFFECT(Levels)                                                                                                     \
    EFFECT(Curve)                                                                                                      \
    EFFECT(AutoLevels)                                                                                                 \
    EFFECT(WhiteBalance)                                                                                               \
    EFFECT(Saturation)                                                                                                 \
    EFFECT(Vibrance)                                                                                                   \
    EFFECT(Hue)                                                                                                        \
    EFFECT(Grayscale)                                                                                                  \
    EFFECT(Sepia)                                                                                                      \
    EFFECT(Invert)                                                                                                     \
    EFFECT(Posterize)                                                                                                  \
    EFFECT(Blur)                                                                                                       \
    EFFECT(Sharpen)                                                                                                    \
    EFFECT(Denoise)                                                                                                    \
    EFFECT(Clarity)                                                                                                    \
    EFFECT(Vignette)                                                                                                   \
    EFFECT(Lut)                                                                                                        \
    EFFECT(Rotate)                                                                                                     \
    EFFECT(Flip)                                                                                                       \
    EFFECT(Border)                                                                                                     \
    EFFECT(WatermarkText)                                                                                              \
    EFFECT(WatermarkImage)                                                                                             \
    EFFECT(SetMetadata)

namespace BatchJob {

#define BATCH_EFFECT_KIND(name) name,
/// The effects, numbered from 0 in the order of the list.
enum class EffectKind { BATCH_EFFECTS(BATCH_EFFECT_KIND) };
#undef BATCH_EFFECT_KIND

} // namespace BatchJob
