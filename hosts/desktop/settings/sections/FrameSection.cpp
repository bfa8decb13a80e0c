// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FrameSection.h"

#include "FrameParameters.h"

#include "hosts/common/Language.h"
#include "job/settings/OutputChecks.h"

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

FrameSection::FrameSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : FormSection(Messages::tr("Fr&ame"), QStringLiteral("frame"), job, choosers, parent)
{
    MakeForm();
}

QVector<BoundParameter> FrameSection::Parameters() const
{
    return PlacementParameters() + BackgroundParameters() + ShadowParameters();
}

QString FrameSection::State() const
{
    const ZTBatchOutputSettings::Transformation& framing = Now().framing;
    if (!framing.state) {
        return Messages::tr("No frame");
    }
    if (framing.backgroundCustomOutput) {
        const QString text = framing.shadowEnabled ? Messages::tr("A frame of %1 \u00d7 %2 px with a shadow")
                                                   : Messages::tr("A frame of %1 \u00d7 %2 px");
        return text.arg(framing.backgroundCustomSize.width()).arg(framing.backgroundCustomSize.height());
    }
    const QMargins& margins = framing.margins;
    const QString text = framing.shadowEnabled ? Messages::tr("Margins %1, %2, %3, %4 px with a shadow")
                                               : Messages::tr("Margins %1, %2, %3, %4 px");
    return text.arg(margins.left()).arg(margins.top()).arg(margins.right()).arg(margins.bottom());
}

QString FrameSection::Problem() const
{
    ValueChecks checks;
    CheckFraming(checks, Now().framing);
    return checks.Error();
}

} // namespace BatchDesktop
