#pragma once

#include "Picture.h"

namespace BatchServer {

/// Brings what a decoder gives into the form that the stages expect: grey or RGB, 8 or 16 bits a channel, at most one
/// channel behind the colours, which is alpha. Colours without such a form (Lab, floating point) become sRGB of 16
/// bits.
Picture InWorkingForm(const Picture& decoded);

} // namespace BatchServer
