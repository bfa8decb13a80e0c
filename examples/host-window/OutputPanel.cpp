// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OutputPanel.h"

#include <ZTBatchOutputSettings.h>
#include <ZTBatchValues.h>

#include <QDir>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStandardPaths>

OutputPanel::OutputPanel(ZTBatchOutputSettings& output)
{
    output.SetFormat(QStringLiteral("JPEG"), R"({"quality": 88})");
    output.SetNamingTemplate(ZTBatchOutputSettings::PartMiddle, ZTBatchOutputSettings::TemplateOriginalName);
    output.SetNamingTemplate(ZTBatchOutputSettings::PartSuffix, ZTBatchOutputSettings::TemplateNothing);
    output.SetFolderStructure(ZTBatchOutputSettings::StructureAsInput);

    auto* const folder = new QLineEdit;
    folder->setObjectName(QStringLiteral("folder"));
    connect(folder, &QLineEdit::textChanged, &output,
            [&output](const QString& path) { output.SetPath(QDir(path).absolutePath()); });
    folder->setText(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QStringLiteral("/batch"));

    auto* const length = new QSpinBox;
    length->setObjectName(QStringLiteral("length"));
    length->setRange(16, 20000);
    connect(length, QOverload<int>::of(&QSpinBox::valueChanged), &output, [&output](int pixels) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(ZTBatchValues::SizeRestriction::ReduceOnly);
        size.side = int(ZTBatchValues::SizeSide::LongSide);
        size.unit = int(ZTBatchValues::SizeUnit::Pixels);
        size.size = pixels;
        output.SetImageSizeSettings(size);
    });
    length->setValue(1600);

    auto* const form = new QFormLayout(this);
    form->addRow(tr("Output folder"), folder);
    form->addRow(tr("Long side, in pixels"), length);
}
