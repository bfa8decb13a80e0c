// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayList>
#include <QVector>

#include <exiv2/exiv2.hpp>

#include <string>

namespace BatchWorker {

/// One name on the way to a property of XMP, such as "City" of "Iptc4xmpExt" in LocationCreated[1]/Iptc4xmpExt:City.
struct XmpStep
{
    QByteArray space; ///< the prefix of its namespace, as the metadata library names it
    QByteArray name;
};

/// The names on the way to `entry`, the outermost first. Indices of arrays are left out; a qualifier counts as a name.
QVector<XmpStep> StepsOf(const Exiv2::Xmpdatum& entry);

/// The address of the namespace with the prefix `space`; empty if the metadata library knows none.
std::string SpaceOf(const QByteArray& space);

} // namespace BatchWorker
