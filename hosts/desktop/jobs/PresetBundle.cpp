// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetBundle.h"

#include "hosts/common/JobBundles.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/desktop/job/Settings.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <memory>
#include <vector>

using namespace BatchHost;

namespace BatchDesktop {

BatchJob::JobBundle BundleOfPresets(const ZTBatchDocument& edited, const Presets& presets, const QStringList& names,
                                    ZTBatchDocument& first)
{
    first.Deserialize(edited.Serialize(nullptr));
    std::vector<std::unique_ptr<ZTBatchDocument>> others;
    QVector<NamedJob> jobs;
    for (const QString& name : names) {
        ZTBatchDocument preset;
        SetJobDefaults(preset);
        presets.Load(preset, name);
        if (!jobs.isEmpty()) {
            others.push_back(std::make_unique<ZTBatchDocument>());
        }
        ZTBatchDocument& job = jobs.isEmpty() ? first : *others.back();
        Settings::Of(preset).ApplyTo(job);
        jobs.append({name, &job});
    }
    BatchJob::JobBundle bundle = BundleOf(jobs, edited.GetOutputSettings()->GetPath());
    bundle.parts.first().document = first.Serialize(nullptr);
    return bundle;
}

} // namespace BatchDesktop
