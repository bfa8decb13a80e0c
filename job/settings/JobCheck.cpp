#include "JobCheck.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/values/JobValues.h"
#include "job/values/ParameterSchema.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTStyle.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

// Longer sides and margins than any format holds, and far from where arithmetic in 32 bits would overflow.
constexpr int longestSide = 1'000'000;
constexpr int highestResolution = 100'000;
constexpr int mostDigits = 64;
constexpr int largestShadow = 10'000;
constexpr int largestPatternScale = 10'000;
constexpr int patterns = 8;

/// Collects the first value that is refused; later ones are passed over.
class ValueChecks
{
public:
    template<std::size_t count>
    void Word(const char* field, int value, const std::array<Word, count>& words)
    {
        if (FindWord(words, value)) {
            return;
        }
        QStringList allowed;
        for (const BatchJob::Word& word : words) {
            allowed.append(QStringLiteral("%1 (%2)").arg(word.value).arg(QLatin1String(word.word)));
        }
        Refuse(field, QString::number(value), QStringLiteral("one of ") + allowed.join(QStringLiteral(", ")));
    }

    void Range(const char* field, int value, int minimum, int maximum)
    {
        if (value < minimum || value > maximum) {
            Refuse(field, QString::number(value),
                   QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum));
        }
    }

    void Opacity(const char* field, double value)
    {
        if (!(value >= 0.0 && value <= 1.0)) {
            Refuse(field, QString::number(value), QStringLiteral("a number from 0 to 1"));
        }
    }

    void Refuse(const char* field, const QString& value, const QString& allowed)
    {
        if (error.isEmpty()) {
            error = QStringLiteral("%1 is %2; it must be %3").arg(QLatin1String(field), value, allowed);
        }
    }

    QString error;
};

QString Quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

void CheckPlace(ValueChecks& checks, const Settings& settings)
{
    if (!QDir::isAbsolutePath(settings.GetPath())) {
        checks.Refuse("The output folder", Quoted(settings.GetPath()), QStringLiteral("an absolute path"));
    }
    checks.Word("The folder structure", settings.GetFolderStructure(), FolderStructureWords);
}

void CheckNaming(ValueChecks& checks, const Settings& settings)
{
    struct Part
    {
        Settings::NamingPart part;
        const char* field;
        const char* digits;
    };
    constexpr std::array parts{
        Part{Settings::PartPrefix, "The name's prefix", "The count of digits in the name's prefix"},
        Part{Settings::PartMiddle, "The name's middle", "The count of digits in the name's middle"},
        Part{Settings::PartSuffix, "The name's suffix", "The count of digits in the name's suffix"},
    };
    for (const Part& part : parts) {
        const Settings::NamingTemplate kind = settings.GetNamingTemplate(part.part);
        checks.Word(part.field, kind, NamingTemplateWords);
        if (kind == Settings::TemplateNumber) {
            checks.Range(part.digits, settings.GetDigitsCount(part.part), 1, mostDigits);
        }
    }
}

void CheckImageSize(ValueChecks& checks, const Settings::ImageSize& size)
{
    checks.Word("The image size's restriction", size.restriction, SizeRestrictionWords);
    const bool isLength = size.restriction != int(SizeRestriction::None) && size.unit != int(SizeUnit::Pixels) &&
                          size.unit != int(SizeUnit::Percent);
    // Jobs that do not speak of a resolution have 0, and their results keep that of the input.
    checks.Range("The image size's resolution", size.resolution, isLength ? 1 : 0, highestResolution);
    if (size.restriction == int(SizeRestriction::None)) {
        return;
    }
    checks.Word("The image size's side", size.side, SizeSideWords);
    checks.Word("The image size's unit", size.unit, SizeUnitWords);
    if (!(size.size > 0.0 && size.size <= longestSide)) {
        checks.Refuse("The image size", QString::number(size.size),
                      QStringLiteral("a number above 0, up to %1").arg(longestSide));
    }
}

void CheckCrop(ValueChecks& checks, const Settings::Crop& crop)
{
    checks.Word("The crop's type", crop.type, CropTypeWords);
    if (crop.type == int(CropType::None) || crop.type == int(CropType::Trim)) {
        return;
    }
    checks.Range("The crop's width", crop.size.width(), 1, longestSide);
    checks.Range("The crop's height", crop.size.height(), 1, longestSide);
    if ((crop.alignment & ~(Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask)) != 0) {
        checks.Refuse("The crop's alignment", QString::number(crop.alignment),
                      QStringLiteral("a sum of 1 (left), 2 (right), 4 (centre), 32 (top), 64 (bottom), 128 (centre)"));
    }
}

void CheckShadow(ValueChecks& checks, const Settings::Transformation& framing)
{
    checks.Word("The shadow's mode", framing.shadowMode, ShadowModeWords);
    checks.Opacity("The shadow's opacity", framing.shadowOpacity);
    checks.Range("The shadow's distance", framing.shadowDistance, 0, largestShadow);
    checks.Range("The shadow's size", framing.shadowSize, 0, largestShadow);
}

void CheckBackground(ValueChecks& checks, const Settings::Transformation& framing)
{
    checks.Word("The background's type", framing.backgroundType, BackgroundTypeWords);
    checks.Opacity("The background's opacity", framing.backgroundOpacity);
    if (framing.backgroundType == int(BackgroundType::Pattern)) {
        checks.Range("The background's pattern", framing.backgroundPattern[0], 0, patterns - 1);
        checks.Range("The scale of the background's pattern", framing.backgroundPattern[1], 0, largestPatternScale);
    }
    if (framing.backgroundType == int(BackgroundType::Image) &&
        !(QDir::isAbsolutePath(framing.backgroundImage) && QFileInfo(framing.backgroundImage).isFile())) {
        checks.Refuse("The background's image", Quoted(framing.backgroundImage),
                      QStringLiteral("the absolute path of a file that exists"));
    }
    if (framing.backgroundCustomOutput) {
        checks.Range("The frame's width", framing.backgroundCustomSize.width(), 1, longestSide);
        checks.Range("The frame's height", framing.backgroundCustomSize.height(), 1, longestSide);
    }
}

void CheckFraming(ValueChecks& checks, const Settings::Transformation& framing)
{
    if (!framing.state) {
        return;
    }
    const QMargins& margins = framing.margins;
    for (const int margin : {margins.left(), margins.top(), margins.right(), margins.bottom()}) {
        checks.Range("The frame's margin", margin, -longestSide, longestSide);
    }
    checks.Word("The frame's blending", framing.blending, BlendingWords);
    checks.Opacity("The picture's opacity", framing.opacity);
    if (framing.shadowEnabled) {
        CheckShadow(checks, framing);
    }
    CheckBackground(checks, framing);
}

void CheckFormat(ValueChecks& checks, const Settings& settings, JobSettings& accepted)
{
    QByteArray options;
    settings.GetFormat(accepted.format, options);
    if (accepted.format != Settings::GetOriginalFormat() && !FindFormat(accepted.format)) {
        QStringList known{Settings::GetOriginalFormat()};
        for (const FormatSchema& format : Formats()) {
            known.append(format.name);
        }
        checks.Refuse("The format", Quoted(accepted.format),
                      QStringLiteral("one of ") + known.join(QStringLiteral(", ")));
        return;
    }
    const CheckedParameters checked = CheckFormatOptions(accepted.format, options);
    accepted.formatOptions = checked.values;
    if (!checked.IsValid() && checks.error.isEmpty()) {
        checks.error = QStringLiteral("The options of the format %1: %2").arg(accepted.format, checked.error);
    }
}

Refusal CheckEffects(const ZTStyle& style, QVector<JobEffect>& accepted)
{
    for (int i = 0; i < style.GetEffectCount(); ++i) {
        if (!style.IsEnabled(i)) {
            continue;
        }
        const QString id = style.EffectAt(i);
        const EffectSchema* schema = FindEffect(id);
        if (!schema) {
            QStringList known;
            for (const EffectSchema& effect : Effects()) {
                known.append(effect.id);
            }
            const QString nearest = NearestWord(id, known);
            QString message = QStringLiteral("Effect %1, \"%2\", does not exist").arg(i + 1).arg(id);
            message += nearest.isEmpty() ? QStringLiteral("; there are ") + known.join(QStringLiteral(", "))
                                         : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
            return {ZTBatchMessage::NoAdjustment, message};
        }
        const CheckedParameters checked = CheckEffect(*schema, style.DataAt(i));
        if (!checked.IsValid()) {
            return {ZTBatchMessage::ApplyAdjustmentError,
                    QStringLiteral("Effect %1, \"%2\": %3").arg(QString::number(i + 1), id, checked.error)};
        }
        accepted.append({schema, checked.values});
    }
    return {};
}

Refusal OutputRefusal(const QString& error)
{
    return error.isEmpty() ? Refusal() : Refusal{ZTBatchMessage::ReadOutputSettingsError, error};
}

} // namespace

CheckedSettings CheckSettings(const ZTBatchDocument& job)
{
    const Settings& settings = *job.GetOutputSettings();
    CheckedSettings checked;
    JobSettings& accepted = checked.settings;
    ValueChecks checks;
    CheckPlace(checks, settings);
    CheckNaming(checks, settings);
    CheckFormat(checks, settings, accepted);
    accepted.outputFolder = QDir::cleanPath(settings.GetPath());
    accepted.folderStructure = settings.GetFolderStructure();
    accepted.naming = OutputNaming(settings);
    accepted.profile = settings.GetICCProfile();
    accepted.imageSize = settings.GetImageSizeSettings();
    accepted.crop = settings.GetCropSettings();
    accepted.framing = settings.GetTransformationSettings();
    CheckImageSize(checks, accepted.imageSize);
    CheckCrop(checks, accepted.crop);
    CheckFraming(checks, accepted.framing);
    checked.refusal = OutputRefusal(checks.error);
    if (checked.IsAccepted()) {
        checked.refusal = CheckEffects(*job.GetStyle(), accepted.effects);
    }
    return checked;
}

CheckedSettings CheckJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() < 1) {
        return {{}, {ZTBatchMessage::EmptyBatchDocument, QStringLiteral("The job has no files")}};
    }
    return CheckSettings(job);
}

Refusal CheckPolicies(const ZTBatchPayload::Process& order)
{
    ValueChecks checks;
    checks.Word("The input policy", order.inputPolicy, FilePolicyWords);
    checks.Word("The output policy", order.outputPolicy, FilePolicyWords);
    checks.Word("The processing policy", order.processingPolicy, FilePolicyWords);
    checks.Word("The naming policy", order.namingPolicy, NamingPolicyWords);
    checks.Word("The write-to-format policy", order.writeToFormatPolicy, WriteToFormatPolicyWords);
    return OutputRefusal(checks.error);
}

} // namespace BatchJob
