#pragma once

#include <QString>
#include <QStringList>

/// What there is: effects with their parameters, formats with their options. `names` picks some; none means all. Throws
/// RequestError for a name that is not there.
namespace BatchCli {

QString EffectListing(const QStringList& names);
QString EffectJson(const QStringList& names);

QString FormatListing(const QStringList& names);
QString FormatJson(const QStringList& names);

} // namespace BatchCli
