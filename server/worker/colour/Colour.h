// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>

/// Colours on their way into the stages and out of them. Warnings, for users, are appended to the list given.
namespace BatchWorker {

/// Whether `picture` is one of inks: cyan, magenta, yellow, black.
bool IsCmyk(const Picture& picture);

/// `decoded` in the form that the stages expect, with its profile if that fits. A grey picture with a profile of RGB
/// gets the profile of its greys, and the other way round. Any other profile that does not fit is removed, with a
/// warning: sRGB, or a common set of inks, is used instead. A picture of inks stays one with `keepsCmyk`; else it
/// becomes sRGB. RGB whose equal values are no greys, such as XYB, becomes sRGB, with a warning.
Picture InWorkingColours(const Picture& decoded, bool keepsCmyk, BatchJob::Warnings& warnings);

/// `picture`, of the form that stages hand on or of inks, converted to `profile` (relative colorimetric, as far as
/// profiles have that, with black point compensation), which it carries then. If that profile cannot be used, the
/// picture stays as it is, with a warning.
Picture ConvertedTo(const QByteArray& profile, const Picture& picture, BatchJob::Warnings& warnings);

/// `picture` converted to sRGB where its profile is another, without any profile. Grey stays grey.
Picture InPlainSrgb(const Picture& picture, BatchJob::Warnings& warnings);

/// `grey` as RGB with equal values, and with a profile of RGB that shows them as the profile of `grey` does.
Picture AsRgbWithItsCurve(const Picture& grey);

/// `picture` as it is, or, where its values are proportional to light, in the same primaries with the curve of sRGB:
/// of light, 8 bits a channel show steps in the shadows.
Picture WithCurveForEightBits(const Picture& picture);

/// `picture`, which is RGB or grey, as inks: those of `profile`, or of a common set when it is empty.
Picture AsCmyk(const QByteArray& profile, const Picture& picture, BatchJob::Warnings& warnings);

} // namespace BatchWorker
