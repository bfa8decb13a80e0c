// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// Lists of effects with their parameters and of formats with their options: of those in `names`, or of all when it is
/// empty. Throw RequestError for an unknown name.
namespace BatchCli {

QString EffectListing(const QStringList& names);
QString EffectJson(const QStringList& names);

QString FormatListing(const QStringList& names);
QString FormatJson(const QStringList& names);

} // namespace BatchCli
