// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchReference {

/// The reference page of all effects, in Markdown, from the table of effects. It shows a picture for each,
/// "effects/ID.jpg".
QString EffectReferencePage();

} // namespace BatchReference
