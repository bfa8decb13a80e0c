// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PreviewPictures.h"

#include <QString>

namespace BatchDesktop {

/// What becomes of the picture: sizes in pixels and bytes, before and after.
QString FactsText(const PreviewPictures& pictures);

/// How exact that is, and how long it took.
QString ExactnessText(const PreviewPictures& pictures);

} // namespace BatchDesktop
