// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchOutputSettings.h"

#include "ZTBatchOutput_p.h"
#include "ZTDiagnostics_p.h"
#include "ZTOutputPlacement_p.h"

#include <QPointer>

namespace {

constexpr ZTDiagnostics diagnostics("src\\ZTBatchOutput");

/// Neither is less. A NaN equals every number: otherwise a record with a NaN would differ from itself, and every call
/// of its setter would be a change.
bool SameNumber(double a, double b)
{
    return !(a < b) && !(a > b);
}

} // namespace

bool ZTBatchOutputSettings::ImageSize::operator==(const ImageSize& other) const
{
    return restriction == other.restriction && unit == other.unit && side == other.side &&
           SameNumber(size, other.size) && resolution == other.resolution;
}

bool ZTBatchOutputSettings::Crop::operator==(const Crop& other) const
{
    return alignment == other.alignment && size == other.size && type == other.type;
}

bool ZTBatchOutputSettings::Transformation::operator==(const Transformation& other) const
{
    return state == other.state && angle == other.angle && blending == other.blending && margins == other.margins &&
           SameNumber(opacity, other.opacity) && backgroundColor == other.backgroundColor &&
           backgroundType == other.backgroundType && SameNumber(backgroundOpacity, other.backgroundOpacity) &&
           backgroundPattern == other.backgroundPattern && backgroundImage == other.backgroundImage &&
           shadowEnabled == other.shadowEnabled && shadowColor == other.shadowColor &&
           shadowAngle == other.shadowAngle && shadowDistance == other.shadowDistance &&
           shadowSize == other.shadowSize && shadowMode == other.shadowMode &&
           SameNumber(shadowOpacity, other.shadowOpacity) && backgroundCustomOutput == other.backgroundCustomOutput &&
           backgroundCustomSize == other.backgroundCustomSize;
}

ZTBatchOutputSettings::ZTBatchOutputSettings(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
}

ZTBatchOutputSettings::~ZTBatchOutputSettings() = default;

QString ZTBatchOutputSettings::GetOriginalFormat()
{
    return QStringLiteral("Original");
}

QString ZTBatchOutputSettings::GetOriginalFormatName()
{
    //: Appears among the names of file formats and means that each picture keeps its own format.
    return tr("Original");
}

QTransform ZTBatchOutputSettings::CalculateOutputTransformation(const QSize& size, int angle, const QMargins& margins,
                                                                QSize* outputSize)
{
    const ZTOutputPlacement placement(size, angle, margins);
    if (outputSize != nullptr) {
        *outputSize = placement.OutputSize();
    }
    return placement.Transform();
}

QString ZTBatchOutputSettings::GetPath() const
{
    diagnostics.Assert(d != nullptr);
    return d->path;
}

void ZTBatchOutputSettings::GetFormat(QString& format, QByteArray& options) const
{
    diagnostics.Assert(d != nullptr);
    format = d->format;
    options = d->formatOptions;
}

QByteArray ZTBatchOutputSettings::GetICCProfile() const
{
    diagnostics.Assert(d != nullptr);
    return d->iccProfile;
}

ZTBatchOutputSettings::FolderStructure ZTBatchOutputSettings::GetFolderStructure() const
{
    diagnostics.Assert(d != nullptr);
    return d->folderStructure;
}

ZTBatchOutputSettings::NamingTemplate ZTBatchOutputSettings::GetNamingTemplate(NamingPart part) const
{
    diagnostics.Assert(d != nullptr);
    return d->Naming(part).namingTemplate;
}

QString ZTBatchOutputSettings::GetCustomTemplate(NamingPart part) const
{
    diagnostics.Assert(d != nullptr);
    return d->Naming(part).customTemplate;
}

int ZTBatchOutputSettings::GetStartNumber(NamingPart part) const
{
    diagnostics.Assert(d != nullptr);
    return d->Naming(part).startNumber;
}

int ZTBatchOutputSettings::GetDigitsCount(NamingPart part) const
{
    diagnostics.Assert(d != nullptr);
    return d->Naming(part).digitsCount;
}

QString ZTBatchOutputSettings::GetPrefixSeparator() const
{
    diagnostics.Assert(d != nullptr);
    return d->prefixSeparator;
}

QString ZTBatchOutputSettings::GetSuffixSeparator() const
{
    diagnostics.Assert(d != nullptr);
    return d->suffixSeparator;
}

ZTBatchOutputSettings::ImageSize ZTBatchOutputSettings::GetImageSizeSettings() const
{
    diagnostics.Assert(d != nullptr);
    return d->imageSize;
}

ZTBatchOutputSettings::Crop ZTBatchOutputSettings::GetCropSettings() const
{
    diagnostics.Assert(d != nullptr);
    return d->crop;
}

ZTBatchOutputSettings::Transformation ZTBatchOutputSettings::GetTransformationSettings() const
{
    diagnostics.Assert(d != nullptr);
    return d->transformation;
}

void ZTBatchOutputSettings::SetPath(const QString& path)
{
    diagnostics.Assert(d != nullptr);
    if (d->path == path) {
        return;
    }
    d->path = path;
    d->pathBookmark = ZVFileBookmark(path);
    Q_EMIT PathChanged();
}

void ZTBatchOutputSettings::SetFormat(const QString& format, const QByteArray& options)
{
    diagnostics.Assert(d != nullptr);
    if (d->format == format && d->formatOptions == options) {
        return;
    }
    d->format = format;
    d->formatOptions = options;
    Q_EMIT FormatChanged();
}

void ZTBatchOutputSettings::SetICCProfile(const QByteArray& profile)
{
    diagnostics.Assert(d != nullptr);
    d->iccProfile = profile;
    // Emitted without a comparison: hosts refresh the profile that they show at each call.
    Q_EMIT AdvancedSettingsChanged();
}

void ZTBatchOutputSettings::SetFolderStructure(FolderStructure structure)
{
    diagnostics.Assert(d != nullptr);
    if (d->folderStructure == structure) {
        return;
    }
    d->folderStructure = structure;
    Q_EMIT FolderStructureChanged();
}

void ZTBatchOutputSettings::SetNamingTemplate(NamingPart part, NamingTemplate namingTemplate)
{
    diagnostics.Assert(d != nullptr);
    Private::NamingPartSettings& naming = d->Naming(part);
    if (naming.namingTemplate == namingTemplate) {
        return;
    }
    naming.namingTemplate = namingTemplate;
    Q_EMIT NamingChanged();
}

void ZTBatchOutputSettings::SetCustomTemplate(NamingPart part, const QString& text)
{
    diagnostics.Assert(d != nullptr);
    Private::NamingPartSettings& naming = d->Naming(part);
    if (naming.customTemplate == text) {
        return;
    }
    naming.customTemplate = text;
    if (naming.namingTemplate == TemplateCustomText) {
        Q_EMIT NamingChanged();
    }
}

void ZTBatchOutputSettings::SetStartNumber(NamingPart part, int number)
{
    diagnostics.Assert(d != nullptr);
    Private::NamingPartSettings& naming = d->Naming(part);
    if (number < 0 || naming.startNumber == number) {
        return;
    }
    naming.startNumber = number;
    if (naming.namingTemplate == TemplateNumber) {
        Q_EMIT NamingChanged();
    }
}

void ZTBatchOutputSettings::SetDigitsCount(NamingPart part, int count)
{
    diagnostics.Assert(d != nullptr);
    Private::NamingPartSettings& naming = d->Naming(part);
    if (count <= 0 || naming.digitsCount == count) {
        return;
    }
    naming.digitsCount = count;
    if (naming.namingTemplate == TemplateNumber) {
        Q_EMIT NamingChanged();
    }
}

void ZTBatchOutputSettings::SetPrefixSeparator(const QString& separator)
{
    diagnostics.Assert(d != nullptr);
    if (d->prefixSeparator == separator) {
        return;
    }
    d->prefixSeparator = separator;
    // Each separator emits the signal of the other. Hosts rely on that.
    Q_EMIT SuffixSeparatorChanged();
}

void ZTBatchOutputSettings::SetSuffixSeparator(const QString& separator)
{
    diagnostics.Assert(d != nullptr);
    if (d->suffixSeparator == separator) {
        return;
    }
    d->suffixSeparator = separator;
    // See SetPrefixSeparator().
    Q_EMIT PrefixSeparatorChanged();
}

void ZTBatchOutputSettings::SetImageSizeSettings(const ImageSize& settings)
{
    diagnostics.Assert(d != nullptr);
    if (d->imageSize == settings) {
        return;
    }
    d->imageSize = settings;
    Q_EMIT RestrictionChanged();
}

void ZTBatchOutputSettings::SetCropSettings(const Crop& settings)
{
    diagnostics.Assert(d != nullptr);
    if (d->crop == settings) {
        return;
    }
    d->crop = settings;
    Q_EMIT CropChanged();
}

void ZTBatchOutputSettings::SetTransformationSettings(const Transformation& settings)
{
    diagnostics.Assert(d != nullptr);
    if (d->transformation == settings) {
        return;
    }
    d->transformation = settings;
    Q_EMIT TransformationChanged();
}

void ZTBatchOutputSettings::RefreshPath()
{
    // Released first: a platform may refuse a second grant for a path while the first is held.
    d->pathBookmark = ZVFileBookmark();
    d->pathBookmark = ZVFileBookmark(d->path);
}

void ZTBatchOutputSettings::RestoreDefault()
{
    diagnostics.Assert(d != nullptr);
    using Step = void (*)(ZTBatchOutputSettings&);
    static constexpr Step steps[] = {
        [](ZTBatchOutputSettings& settings) { settings.SetFormat(GetOriginalFormat(), QByteArray()); },
        [](ZTBatchOutputSettings& settings) { settings.SetFolderStructure(StructureFlat); },

        [](ZTBatchOutputSettings& settings) { settings.SetNamingTemplate(PartPrefix, TemplateNothing); },
        [](ZTBatchOutputSettings& settings) { settings.SetDigitsCount(PartPrefix, 1); },
        [](ZTBatchOutputSettings& settings) { settings.SetStartNumber(PartPrefix, 0); },
        [](ZTBatchOutputSettings& settings) { settings.SetCustomTemplate(PartPrefix, QString()); },

        [](ZTBatchOutputSettings& settings) { settings.SetNamingTemplate(PartMiddle, TemplateCustomText); },
        [](ZTBatchOutputSettings& settings) { settings.SetCustomTemplate(PartMiddle, tr("Image")); },
        [](ZTBatchOutputSettings& settings) { settings.SetDigitsCount(PartMiddle, 1); },
        [](ZTBatchOutputSettings& settings) { settings.SetStartNumber(PartMiddle, 0); },

        [](ZTBatchOutputSettings& settings) { settings.SetNamingTemplate(PartSuffix, TemplateNumber); },
        [](ZTBatchOutputSettings& settings) { settings.SetCustomTemplate(PartSuffix, QString()); },
        [](ZTBatchOutputSettings& settings) { settings.SetDigitsCount(PartSuffix, 3); },
        [](ZTBatchOutputSettings& settings) { settings.SetStartNumber(PartSuffix, 1); },

        [](ZTBatchOutputSettings& settings) { settings.SetPath(QString()); },
    };
    // Each step may emit, and a slot may delete the object.
    const QPointer<ZTBatchOutputSettings> self(this);
    for (const Step step : steps) {
        if (self == nullptr) {
            return;
        }
        step(*this);
    }
}
