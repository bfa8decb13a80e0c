// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace BatchHost {

/// A text for each of `names`, the entries of one folder. Sorted as plain text, these are in natural order: "2.jpg"
/// before "10.jpg". A job sorts its inputs by these texts. Where names differ in a number only, the shorter numbers get
/// leading zeros: "img-02.jpg", "img-10.jpg". Other names stay as they are.
QStringList NaturalNames(const QStringList& names);

} // namespace BatchHost
