// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteTexts.h"

#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace BatchHost {

qint64 BytesFromText(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("\\A([0-9]+(?:\\.[0-9]+)?) ?([kmg]?)(i?)b?\\z"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    const QString unit = match.captured(2).toLower();
    const bool isBinary = !match.captured(3).isEmpty();
    if (!match.hasMatch() || (isBinary && unit.isEmpty())) {
        throw RequestError{
            BatchJob::Phrase::English("\"%1\" is no number of bytes; write it like 500kB, 1.5MB or 300KiB").arg(text)};
    }
    const QString units = QStringLiteral("kmg");
    const int power = unit.isEmpty() ? 0 : units.indexOf(unit) + 1;
    const double bytes = match.captured(1).toDouble() * std::pow(isBinary ? 1024.0 : 1000.0, power);
    constexpr double most = 1e15;
    return qint64(std::min(std::floor(bytes), most));
}

} // namespace BatchHost
