// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchJobWriter_p.h"

#include "ZTBatchInputOutline_p.h"
#include "ZTBatchOutputSettings.h"
#include "ZTBatchXml_p.h"
#include "ZTStyle.h"

#include <QStringList>

#include <initializer_list>

namespace {

using Settings = ZTBatchOutputSettings;

QLatin1String NameOf(Settings::NamingPart part)
{
    switch (part) {
    case Settings::PartPrefix:
        return ZTBatchXml::prefix;
    case Settings::PartMiddle:
        return ZTBatchXml::middle;
    case Settings::PartSuffix:
        return ZTBatchXml::suffix;
    }
    // A part that does not exist shows in the text instead of passing for another one.
    return QLatin1String("ERRORNAMINGTAG");
}

template<typename Integers>
QString Joined(const Integers& values)
{
    QStringList texts;
    for (const int value : values) {
        texts.append(QString::number(value));
    }
    return texts.join(QLatin1Char(' '));
}

QString Joined(const QMargins& margins)
{
    return Joined(std::initializer_list<int>{margins.left(), margins.top(), margins.right(), margins.bottom()});
}

} // namespace

ZTBatchJobWriter::ZTBatchJobWriter(const QString& documentName)
    : xml(ZTBatchXml::documentType)
{
    xml.StartElement(ZTBatchXml::root);
    xml.WriteAttribute(ZTBatchXml::name, documentName);
}

void ZTBatchJobWriter::WriteInput(const ZTBatchInputOutline& outline)
{
    xml.StartElement(ZTBatchXml::input);
    outline.ForEach(
        [this](const BatchNodeData& record) {
            xml.StartElement(ZTBatchXml::inputElement);
            xml.WriteAttribute(ZTBatchXml::inputText, record.inputText);
            xml.WriteAttribute(ZTBatchXml::inputInfo, record.inputInfo);
            xml.WriteAttribute(ZTBatchXml::fileName, record.fileName);
            xml.WriteAttribute(ZTBatchXml::type, record.type);
            xml.WriteAttribute(ZTBatchXml::lastModification, record.lastModification);
        },
        [this] { xml.EndElement(); });
    xml.EndElement();
}

void ZTBatchJobWriter::WriteStyle(const ZTStyle& style)
{
    xml.StartElement(ZTBatchXml::style);
    const int count = style.GetEffectCount();
    for (int i = 0; i < count; ++i) {
        xml.StartElement(ZTBatchXml::effect);
        xml.WriteAttribute(ZTBatchXml::uid, style.EffectAt(i));
        xml.WriteAttribute(ZTBatchXml::data, style.DataAt(i));
        xml.WriteAttribute(ZTBatchXml::enabled, style.IsEnabled(i));
        xml.EndElement();
    }
    xml.EndElement();
}

void ZTBatchJobWriter::WriteOutput(const ZTBatchOutputSettings& settings)
{
    xml.StartElement(ZTBatchXml::output);
    WriteImageSize(settings);
    WriteImageFormat(settings);

    xml.StartElement(ZTBatchXml::folder);
    xml.WriteAttribute(ZTBatchXml::fileName, settings.GetPath());
    xml.EndElement();

    xml.StartElement(ZTBatchXml::folderStructure);
    xml.WriteAttribute(ZTBatchXml::type, int(settings.GetFolderStructure()));
    xml.EndElement();

    WriteNaming(settings);
    WriteTransformation(settings);
    WriteCrop(settings);

    xml.StartElement(ZTBatchXml::advancedOutput);
    xml.WriteAttribute(ZTBatchXml::iccProfile, settings.GetICCProfile());
    xml.EndElement();
    xml.EndElement();
}

QString ZTBatchJobWriter::TakeText()
{
    xml.EndElement();
    return xml.TakeText();
}

void ZTBatchJobWriter::WriteImageSize(const ZTBatchOutputSettings& settings)
{
    const Settings::ImageSize imageSize = settings.GetImageSizeSettings();
    xml.StartElement(ZTBatchXml::imageSize);
    xml.WriteAttribute(ZTBatchXml::restriction, imageSize.restriction);
    if (imageSize.restriction != 0) {
        xml.WriteAttribute(ZTBatchXml::size, imageSize.size);
        xml.WriteAttribute(ZTBatchXml::side, imageSize.side);
        xml.WriteAttribute(ZTBatchXml::unit, imageSize.unit);
    }
    xml.WriteAttribute(ZTBatchXml::resolution, imageSize.resolution);
    xml.EndElement();
}

void ZTBatchJobWriter::WriteImageFormat(const ZTBatchOutputSettings& settings)
{
    QString format;
    QByteArray options;
    settings.GetFormat(format, options);
    xml.StartElement(ZTBatchXml::imageFormat);
    xml.WriteAttribute(ZTBatchXml::format, format);
    xml.WriteAttribute(ZTBatchXml::data, options);
    xml.EndElement();
}

void ZTBatchJobWriter::WriteNaming(const ZTBatchOutputSettings& settings)
{
    xml.StartElement(ZTBatchXml::naming);
    xml.WriteAttribute(ZTBatchXml::prefixSeparator, settings.GetPrefixSeparator());
    xml.WriteAttribute(ZTBatchXml::suffixSeparator, settings.GetSuffixSeparator());
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        const Settings::NamingTemplate namingTemplate = settings.GetNamingTemplate(part);
        xml.StartElement(NameOf(part));
        xml.WriteAttribute(ZTBatchXml::type, int(namingTemplate));
        if (namingTemplate == Settings::TemplateCustomText) {
            xml.WriteAttribute(ZTBatchXml::name, settings.GetCustomTemplate(part));
        }
        if (namingTemplate == Settings::TemplateNumber) {
            xml.WriteAttribute(ZTBatchXml::startAt, settings.GetStartNumber(part));
            xml.WriteAttribute(ZTBatchXml::count, settings.GetDigitsCount(part));
        }
        xml.EndElement();
    }
    xml.EndElement();
}

void ZTBatchJobWriter::WriteTransformation(const ZTBatchOutputSettings& settings)
{
    using namespace ZTBatchXml;
    const Settings::Transformation record = settings.GetTransformationSettings();
    xml.StartElement(transformation);
    xml.WriteAttribute(transformationState, record.state);
    xml.WriteAttribute(transformationAngle, record.angle);
    xml.WriteAttribute(transformationBlending, static_cast<uint>(record.blending));
    xml.WriteAttribute(transformationOpacity, record.opacity);
    xml.WriteAttribute(transformationMargins, Joined(record.margins));
    xml.WriteAttribute(transformationShadowEnabled, record.shadowEnabled);
    xml.WriteAttribute(transformationShadowMode, static_cast<uint>(record.shadowMode));
    xml.WriteAttribute(transformationShadowOpacity, record.shadowOpacity);
    xml.WriteAttribute(transformationShadowAngle, record.shadowAngle);
    xml.WriteAttribute(transformationShadowDistance, record.shadowDistance);
    xml.WriteAttribute(transformationShadowSize, record.shadowSize);
    xml.WriteAttribute(transformationShadowColor, record.shadowColor.name());
    xml.WriteAttribute(transformationBackgroundType, record.backgroundType);
    xml.WriteAttribute(transformationBackgroundColor, record.backgroundColor.name());
    xml.WriteAttribute(transformationBackgroundPattern, Joined(record.backgroundPattern));
    xml.WriteAttribute(transformationBackgroundImage, record.backgroundImage);
    xml.WriteAttribute(transformationBackgroundOpacity, record.backgroundOpacity);
    xml.WriteAttribute(transformationBackgroundCustomOutput, record.backgroundCustomOutput);
    xml.WriteAttribute(transformationBackgroundCustomWidth, record.backgroundCustomSize.width());
    xml.WriteAttribute(transformationBackgroundCustomHeight, record.backgroundCustomSize.height());
    xml.EndElement();
}

void ZTBatchJobWriter::WriteCrop(const ZTBatchOutputSettings& settings)
{
    const Settings::Crop crop = settings.GetCropSettings();
    xml.StartElement(ZTBatchXml::crop);
    xml.WriteAttribute(ZTBatchXml::cropAlignment, crop.alignment);
    xml.WriteAttribute(ZTBatchXml::cropWidth, crop.size.width());
    xml.WriteAttribute(ZTBatchXml::cropHeight, crop.size.height());
    xml.WriteAttribute(ZTBatchXml::cropType, crop.type);
    xml.EndElement();
}
