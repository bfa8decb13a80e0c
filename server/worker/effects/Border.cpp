// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourParameter.h"
#include "EffectFunctions.h"

#include "job/effects/EffectSizes.h"
#include "server/worker/colour/PictureColours.h"

namespace BatchWorker {

// The size changes. A grey picture becomes RGB for a colour that is not grey, and a colour that is not opaque gives an
// alpha channel.
Picture ApplyBorder(const Picture& picture, const QJsonObject& parameters)
{
    const QMargins border = BatchJob::BorderOf(QSize(picture.width(), picture.height()), parameters);
    if (border.isNull()) {
        return picture;
    }
    const PaintablePicture paintable = PaintableWith(ColourOf(parameters[QLatin1String("colour")].toString()), picture);
    return paintable.picture.embed(
        border.left(), border.top(), border.left() + picture.width() + border.right(),
        border.top() + picture.height() + border.bottom(),
        Picture::option()->set("extend", VIPS_EXTEND_BACKGROUND)->set("background", paintable.paint));
}

} // namespace BatchWorker
