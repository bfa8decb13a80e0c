#pragma once

#include <QStringList>

namespace BatchHost {

/// A text for each of `names`, the entries of one folder, whose plain order is the natural one: "2.jpg" before
/// "10.jpg". A job sorts its inputs by these texts. A name stays as it is unless numbers of different lengths stand at
/// the same place of the same words; then the shorter ones get zeros in front: "img-02.jpg", "img-10.jpg".
QStringList NaturalNames(const QStringList& names);

} // namespace BatchHost
