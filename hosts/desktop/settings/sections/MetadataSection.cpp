// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataSection.h"

#include "OptionParameters.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/settings/parameters/ShownNames.h"

#include <QJsonArray>

using BatchHost::Messages;

namespace BatchDesktop {

MetadataSection::MetadataSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : FormSection(Messages::tr("&Metadata"), QStringLiteral("metadata"), job, choosers, parent)
{
    MakeForm();
}

QVector<BoundParameter> MetadataSection::Parameters() const
{
    return OptionParameters(Now(), true);
}

QString MetadataSection::State() const
{
    const QVector<BoundParameter> options = Parameters();
    for (const BoundParameter& option : options) {
        if (option.row.schema.type == BatchJob::ParameterType::ChoiceList) {
            const QJsonValue kept = option.read(Now());
            QStringList names;
            for (const QJsonValue name : kept.toArray()) {
                names.append(ShownName(name.toString()));
            }
            if (kept.isUndefined() || kept == option.row.schema.defaultValue) {
                return Messages::tr("All metadata is kept");
            }
            return names.isEmpty() ? Messages::tr("No metadata is kept")
                                   : Messages::tr("Kept are %1").arg(names.join(QStringLiteral(", ")));
        }
    }
    return {};
}

QString MetadataSection::Problem() const
{
    return OptionProblem(Now(), true);
}

} // namespace BatchDesktop
