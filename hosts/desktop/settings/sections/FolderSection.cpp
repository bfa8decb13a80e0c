// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderSection.h"

#include "hosts/common/Language.h"
#include "job/settings/OutputChecks.h"

#include <QDir>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

FolderSection::FolderSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : FormSection(Messages::tr("O&utput folder"), QStringLiteral("folder"), job, choosers, parent)
{
    MakeForm();
}

QVector<BoundParameter> FolderSection::Parameters() const
{
    ParameterRow row = FileRow("path", Messages::tr("Folder for the results"), "The output folder");
    row.isFolder = true;
    return {{row, [](const Settings& settings) { return settings.outputFolder; },
             [](Settings& settings, const QJsonValue& value) { settings.outputFolder = value.toString(); }}};
}

QString FolderSection::State() const
{
    return QDir::toNativeSeparators(Now().outputFolder);
}

QString FolderSection::Problem() const
{
    ValueChecks checks;
    CheckOutputFolder(checks, *Job().Document().GetOutputSettings());
    return checks.Error();
}

} // namespace BatchDesktop
