#pragma once

#include "Picture.h"

#include <QColor>

/// Conversions between the forms of pixels that say nothing about their colours: depth, alpha, access.
namespace BatchWorker {

/// Whether `picture` has 16 bits a channel; of the pictures between stages the others have 8.
bool HasSixteenBits(const Picture& picture);

/// `picture`, of the form that stages hand on or of CMYK, with `bits` (8 or 16) a channel; 0 and the largest value stay
/// what they are, the values between are rounded.
Picture WithDepth(const Picture& picture, int bits);

/// `picture` laid on `background`, without alpha channel; as it is when it has none.
Picture Flattened(const Picture& picture, const QColor& background);

/// The colour channels alone, and the alpha channel alone. There must be one.
Picture WithoutAlpha(const Picture& picture);
Picture AlphaOf(const Picture& picture);

/// The same pixels, which can be read in any order: in memory, or in a temporary file without a name. The first copy
/// since BeginMemoryAccount() goes to disk above 256 MiB, later ones above 96 MiB together with those before. Reads all
/// of `picture`; throws vips::VError when that fails.
Picture WithRandomAccess(const Picture& picture);

/// A new picture is begun: see WithRandomAccess(). A worker makes one at a time.
void BeginMemoryAccount();

} // namespace BatchWorker
