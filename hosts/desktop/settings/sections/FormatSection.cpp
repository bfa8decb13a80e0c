// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatSection.h"

#include "BoundForm.h"
#include "OptionParameters.h"

#include "hosts/common/Language.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"

#include <QVBoxLayout>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

QVector<BoundParameter> FormatParameter(const QString& current)
{
    QVector<ShownChoice> choices{
        {ZTBatchOutputSettings::GetOriginalFormat(), Messages::tr("The format of each input")}};
    for (const FormatSchema& format : Formats()) {
        choices.append({format.name, format.name});
    }
    ParameterRow row = ChoiceRow("format", Messages::tr("Format"), choices, "the format");
    if (const FormatSchema* const format = FindFormat(current)) {
        row.help = ShownDescription(format->description.toUtf8().constData());
    }
    return {{row, [](const Settings& settings) { return settings.format; },
             [](Settings& settings, const QJsonValue& value) { ChangeFormat(settings, value.toString()); }}};
}

QString StateOf(const Settings& settings)
{
    const FormatSchema* const format = FindFormat(settings.format);
    if (!format) {
        return settings.format == ZTBatchOutputSettings::GetOriginalFormat() ? Messages::tr("The format of each input")
                                                                             : settings.format;
    }
    const CheckedParameters checked = CheckFormatOptions(settings.format, settings.formatOptions);
    const int quality = checked.IsValid() ? QualityUsed(checked.values) : 0;
    return quality > 0 ? Messages::tr("%1, quality %2").arg(format->name).arg(quality) : format->name;
}

} // namespace

FormatSection::FormatSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : SettingsSection(Messages::tr("F&ormat"), QStringLiteral("format"), job, choosers, parent)
{
    auto* const both = new QWidget(this);
    auto* const layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    format = new BoundForm(Title(), Id(), job, choosers, both);
    options = new BoundForm(Title(), Id(), job, choosers, both);
    layout->addWidget(format);
    layout->addWidget(options);
    SetContent(both);
}

void FormatSection::Refresh()
{
    format->Show(FormatParameter(Now().format));
    options->Show(OptionParameters(Now(), false));
    const QString problem = OptionProblem(Now(), false);
    options->SetProblem(problem);
    ShowState(StateOf(Now()), problem);
}

} // namespace BatchDesktop
