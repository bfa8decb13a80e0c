#pragma once

#include "server/worker/pixels/Picture.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace BatchWorker {

/// An effect could not be applied; the message says why, for users.
class EffectError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Applies the effect `id` of the catalogue, with checked, complete parameters, to `picture`. Throws EffectError, or
/// vips::VError from the library. An id that the catalogue does not have is an EffectError.
///
/// The pixels flow later, line by line from top to bottom, unless NeedsRandomAccess() says that the picture must be
/// readable in any order: then some of them, or all, are read at once.
Picture ApplyEffect(const QString& id, const QJsonObject& parameters, const Picture& picture);

/// Whether the effect reads its picture more than once, or not from top to bottom. The caller sees to it beforehand, as
/// with WithRandomAccess(), so that a file that cannot be read is not taken for a failure of the effect.
bool NeedsRandomAccess(const QString& id, const QJsonObject& parameters);

/// The ids of all effects that there are functions for, sorted.
QStringList EffectFunctionNames();

} // namespace BatchWorker
