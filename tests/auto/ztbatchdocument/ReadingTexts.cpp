// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ReadingTexts.h"

#include "JobTexts.h"
#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

using Settings = ZTBatchOutputSettings;

QString Job(const QString& content)
{
    return QLatin1String("<!DOCTYPE batch><root name=\"x\">") + content + QLatin1String("</root>");
}

QString OutputJob(const QString& content)
{
    return Job(QLatin1String("<output>") + content + QLatin1String("</output>"));
}

QString Repeated(const char* text, int count)
{
    return QString::fromLatin1(text).repeated(count);
}

void Fill(ZTBatchDocument& document)
{
    document.SetDocumentName(QStringLiteral("name"));
    document.SetFileName(QStringLiteral("file"));
    document.SetGroupFilter(QStringLiteral("filter"));
    AddInput(document, File, QStringLiteral("/old/file"));
    AddInput(document, File, QStringLiteral("/old/folder/file"),
             AddInput(document, Folder, QStringLiteral("/old/folder")));
    document.GetStyle()->AppendEffect(QStringLiteral("old"), QByteArrayLiteral("old"), true);
    Settings* const settings = document.GetOutputSettings();
    settings->SetFormat(QStringLiteral("PNG"), QByteArrayLiteral("{}"));
    settings->SetPath(QStringLiteral("/old/out"));
    settings->SetICCProfile(QByteArrayLiteral("old"));
    settings->SetFolderStructure(Settings::StructureByCaptureDate);
    settings->SetPrefixSeparator(QStringLiteral("old-"));
    settings->SetSuffixSeparator(QStringLiteral("-old"));
    settings->SetNamingTemplate(Settings::PartMiddle, Settings::TemplateCaptureTime);
    settings->SetImageSizeSettings({1, 2, 3, 4.5, 6});
    settings->SetCropSettings({1, QSize(2, 3), 4});
    Settings::Transformation record;
    record.angle = 45;
    record.state = true;
    settings->SetTransformationSettings(record);
}

QStringList OutputOf(const ZTBatchDocument& document)
{
    const QStringList lines = ElementLines(document.Serialize(nullptr));
    return lines.mid(lines.indexOf(QStringLiteral(" output")));
}

QStringList EffectsOf(const ZTBatchDocument& document)
{
    QStringList effects;
    const ZTStyle* const style = document.GetStyle();
    for (int i = 0; i < style->GetEffectCount(); ++i) {
        effects.append(style->EffectAt(i) + QLatin1Char(' ') + QString::fromLatin1(style->DataAt(i).toHex()) +
                       (style->IsEnabled(i) ? QLatin1String(" on") : QLatin1String(" off")));
    }
    return effects;
}
