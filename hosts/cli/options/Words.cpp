#include "Words.h"

using namespace BatchHost;

namespace BatchCli {

QString NearestHint(const QString& text, const QStringList& words)
{
    const QString nearest = BatchJob::NearestWord(text, words);
    return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
}

QString WithFullStop(const QString& text)
{
    const bool isWhole = text.endsWith(QLatin1Char('?')) || text.endsWith(QLatin1Char('.'));
    return isWhole ? text : text + QLatin1Char('.');
}

RequestError NoSuchWord(const QString& text, const QStringList& words)
{
    return {QStringLiteral("\"%1\" is not one of %2%3")
                .arg(text, words.join(QStringLiteral(", ")), NearestHint(text, words))};
}

} // namespace BatchCli
