// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunForecast.h"

#include "job/values/Phrase.h"

#include "FolderCheck.h"

#include <QFileInfo>

#include <utility>

namespace BatchJob {

RunForecast::RunForecast(RunPlan names, const Policies& policies, const QHash<int, Trouble>& unreadable)
    : plan(std::move(names))
    , policies(policies)
    , unreadable(unreadable)
{
    // No policy settles a name yet: what it does about a file is to be seen file by file.
    plan.MakeNames(Policies());
    prospects.reserve(plan.Count());
    for (int i = 0; i < plan.Count(); ++i) {
        prospects.append(Foresee(i));
    }
}

RunForecast::Prospect RunForecast::Foresee(int file)
{
    plan.SettleFormat(file, policies);
    Prospect prospect{plan.TroubleOf(file), {}, plan.IsInPlace(file)};
    if (prospect.trouble.kind != PolicyKind::None) {
        prospect.decision = policies.Of(prospect.trouble.kind);
        if (*prospect.decision != Decision::Overwrite && *prospect.decision != Decision::Rename) {
            return prospect;
        }
        prospect.decision = plan.ResolveName(file, *prospect.decision);
    }
    const Trouble ofFiles = TroubleOfFiles(file);
    return ofFiles.kind == PolicyKind::None ? prospect : Prospect{ofFiles, policies.Of(ofFiles.kind)};
}

/// The troubles that a run meets last: the folder when the file is handed out, the input when a worker opens it.
Trouble RunForecast::TroubleOfFiles(int file)
{
    const QString folder = plan.Names().Folder(file);
    if (!folderProblems.contains(folder)) {
        folderProblems.insert(folder, WhyNotWritable(folder));
    }
    const QString folderProblem = folderProblems.value(folder);
    if (!folderProblem.isEmpty()) {
        return {PolicyKind::Output, ZTBatchMessage::WriteOutputFormatError, folderProblem, {}};
    }
    if (!QFileInfo::exists(plan.Names().Input(file))) {
        return {PolicyKind::Input, ZTBatchMessage::ReadFileError, Phrase::English("it does not exist"), {}};
    }
    return unreadable.value(file);
}

} // namespace BatchJob
