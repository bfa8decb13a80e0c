// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Forecast.h"

#include "hosts/common/ByteText.h"
#include "hosts/common/Language.h"

#include <QStringList>

using BatchHost::ByteText;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

QString CountText(int files)
{
    return files == 1 ? Messages::tr("1 picture.") : Messages::tr("%1 pictures.").arg(files);
}

QString NewText(const Forecast& forecast)
{
    if (!forecast.areNamesKnown) {
        return CountText(forecast.files);
    }
    return forecast.files == 1 ? Messages::tr("1 picture, %1 new.").arg(forecast.newNames)
                               : Messages::tr("%1 pictures, %2 new.").arg(forecast.files).arg(forecast.newNames);
}

QString TakenText(int names)
{
    return names == 1 ? Messages::tr("1 name is taken.") : Messages::tr("%1 names are taken.").arg(names);
}

QString ReplacedText(int files)
{
    return files == 1 ? Messages::tr("1 file that exists will be replaced.")
                      : Messages::tr("%1 files that exist will be replaced.").arg(files);
}

QString UnwritableText(int files)
{
    return files == 1 ? Messages::tr("1 picture cannot be written.")
                      : Messages::tr("%1 pictures cannot be written.").arg(files);
}

QString RoomText(const Forecast& forecast)
{
    const ByteSum& sum = *forecast.sum;
    const QString bytes = ByteText(qint64(sum.bytes));
    const QString room = ByteText(forecast.freeBytes);
    if (forecast.IsRoomShort()) {
        return sum.Percent() == 0
                   ? Messages::tr("There is too little room: the results take %1, but only %2 are free.")
                         .arg(bytes, room)
                   : Messages::tr("There may be too little room: the results take about %1 (± %2 %), but only %3 "
                                  "are free.")
                         .arg(bytes)
                         .arg(sum.Percent())
                         .arg(room);
    }
    if (forecast.freeBytes < 0) {
        return sum.Percent() == 0 ? Messages::tr("The results take %1.").arg(bytes)
                                  : Messages::tr("The results take about %1 (± %2 %).").arg(bytes).arg(sum.Percent());
    }
    return sum.Percent() == 0 ? Messages::tr("The results take %1; %2 are free.").arg(bytes, room)
                              : Messages::tr("The results take about %1 (± %2 %); %3 are free.")
                                    .arg(bytes)
                                    .arg(sum.Percent())
                                    .arg(room);
}

} // namespace

bool Forecast::IsRoomShort() const
{
    return sum && freeBytes >= 0 && sum->bytes + sum->error > double(freeBytes);
}

QString Forecast::Text() const
{
    if (files == 0) {
        return Messages::tr("Add pictures to begin.");
    }
    QStringList sentences{NewText(*this)};
    if (areNamesKnown && takenNames > 0) {
        sentences.append(TakenText(takenNames));
    }
    if (areNamesKnown && replaced > 0) {
        sentences.append(ReplacedText(replaced));
    }
    if (areNamesKnown && unwritable > 0) {
        sentences.append(UnwritableText(unwritable));
    }
    if (sum) {
        sentences.append(RoomText(*this));
    }
    return sentences.join(QLatin1Char(' '));
}

} // namespace BatchDesktop
