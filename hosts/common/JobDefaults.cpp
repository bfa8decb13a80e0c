// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobDefaults.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

namespace BatchHost {

void SetJobDefaults(ZTBatchDocument& job)
{
    using Settings = ZTBatchOutputSettings;
    Settings& output = *job.GetOutputSettings();
    output.SetNamingTemplate(Settings::PartPrefix, Settings::TemplateNothing);
    output.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateOriginalName);
    output.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    Settings::Transformation frame;
    frame.shadowEnabled = false;
    output.SetTransformationSettings(frame);
}

} // namespace BatchHost
