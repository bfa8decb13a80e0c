// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NamesSection.h"

#include "BoundForm.h"
#include "NameParameters.h"

#include "hosts/common/Language.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/NearestFormat.h"
#include "job/settings/OutputChecks.h"
#include "job/settings/OutputNaming.h"

#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

QString ExtensionOf(const QString& formatName, const QString& file)
{
    const FormatSchema* format = FindFormat(formatName);
    if (!format) {
        format = FindFormatByExtension(QFileInfo(file).suffix());
    }
    return (format ? *format : NearestFormat(FormatOf(FormatId::Raw).name)).extensions.first();
}

/// What names are made of until a worker has looked at the picture.
OutputNaming::Picture SamplePicture()
{
    return {QDateTime(QDate(2024, 7, 31), QTime(14, 5, 9)),
            QSize(6000, 4000),
            {Messages::tr("Camera"), Messages::tr("Lens"), QStringLiteral("50"), QStringLiteral("2.8"),
             QStringLiteral("1/250"), QStringLiteral("400"), Messages::tr("Title"), Messages::tr("Creator")}};
}

} // namespace

NamesSection::NamesSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : SettingsSection(Messages::tr("&Names"), QStringLiteral("names"), job, choosers, parent)
{
    auto* const content = new QWidget(this);
    form = new BoundForm(Title(), Id(), job, choosers, content);
    example = new QLabel(content);
    example->setObjectName(QStringLiteral("names.example"));
    example->setTextFormat(Qt::PlainText);
    example->setWordWrap(true);
    auto* const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
    layout->addWidget(example);
    SetContent(content);
}

void NamesSection::SetExample(const QString& file, int position, const QDateTime& captured)
{
    exampleFile = file;
    examplePosition = position;
    exampleTime = captured;
    Refresh();
}

QString NamesSection::ExampleName() const
{
    const OutputNaming naming(*Job().Document().GetOutputSettings());
    const QString file = exampleFile.isEmpty() ? QStringLiteral("IMG_0412.jpg") : exampleFile;
    OutputNaming::Picture picture = SamplePicture();
    if (exampleTime.isValid()) {
        picture.captured = exampleTime;
    }
    const QString stem = naming.Stem(file, examplePosition, picture);
    return FileName(stem, {}, ExtensionOf(Now().format, file));
}

QString NamesSection::ExampleText() const
{
    const OutputNaming naming(*Job().Document().GetOutputSettings());
    if (naming.NeedsPictureTexts()) {
        return Messages::tr("Example, with what a picture might say: %1").arg(ExampleName());
    }
    if (naming.NeedsCaptureTime() && !exampleTime.isValid()) {
        return Messages::tr("Example, as if it had been taken on 2024-07-31 at 14:05:09: %1").arg(ExampleName());
    }
    return Messages::tr("Example: %1").arg(ExampleName());
}

void NamesSection::Refresh()
{
    form->Show(NameParameters());
    ValueChecks checks;
    CheckNaming(checks, *Job().Document().GetOutputSettings());
    form->SetProblem(checks.Error());
    example->setText(ExampleText());
    ShowState(ExampleName(), checks.Error());
}

} // namespace BatchDesktop
