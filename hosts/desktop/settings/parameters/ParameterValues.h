// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/ParameterSchema.h"

namespace BatchDesktop {

/// The JSON text of `given` with `value` for the parameter. A default is left out, as is an undefined value; no
/// parameter at all is an empty text.
QByteArray WithValue(const QByteArray& given, const BatchJob::ParameterSchema& parameter, const QJsonValue& value);

/// What `given` has for the parameter, else its default; undefined for neither.
QJsonValue ValueIn(const QByteArray& given, const BatchJob::ParameterSchema& parameter);

/// The object of `given`; empty if it is none.
QJsonObject ObjectOf(const QByteArray& given);

/// The text of `object`, as above.
QByteArray TextOfObject(const QJsonObject& object);

} // namespace BatchDesktop
