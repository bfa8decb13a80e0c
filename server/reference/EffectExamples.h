#pragma once

#include <QByteArray>
#include <QString>

namespace BatchReference {

/// The parameters, as JSON, with which the reference page shows the effect `id`. Those of effects that need a file hold
/// a bare file name, "example.cube" or "example.png".
QByteArray ExampleOf(const QString& id);

} // namespace BatchReference
