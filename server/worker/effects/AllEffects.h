#pragma once

#include "Picture.h"

#include <QJsonObject>

/// The functions behind the effects, one source file each. They take checked, complete parameters.
namespace BatchServer {

Picture ApplyExposure(const Picture& picture, const QJsonObject& parameters);

} // namespace BatchServer
