#pragma once

#include "Picture.h"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <stdexcept>

namespace BatchServer {

/// An effect could not be applied; the message says why, for users.
class EffectError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What an effect is made of: a function that takes a picture and the effect's checked, complete parameters.
using EffectFunction = std::function<Picture(const Picture&, const QJsonObject&)>;

/// Applies the effect `id` of the catalogue to `picture`. Throws EffectError, or vips::VError from the library. An id
/// that the catalogue does not have is a programming error.
Picture ApplyEffect(const QString& id, const QJsonObject& parameters, const Picture& picture);

} // namespace BatchServer
