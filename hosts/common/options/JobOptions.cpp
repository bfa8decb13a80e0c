// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobOptions.h"

#include "ByteLimitOption.h"
#include "CropTexts.h"
#include "FormatNames.h"
#include "LengthTexts.h"
#include "ParameterTexts.h"
#include "QualityOption.h"
#include "ValueTexts.h"
#include "Words.h"

#include "hosts/common/Language.h"
#include "hosts/common/ProfileFile.h"
#include "hosts/common/UserPath.h"
#include "job/effects/EffectCatalog.h"
#include "job/settings/NamePart.h"
#include "job/tokens/TokenText.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QRegularExpression>

#include <limits>

using namespace BatchJob;

namespace BatchHost {

namespace {

using Settings = ZTBatchOutputSettings;

const QString none = QStringLiteral("none");

QString Text(const char* text)
{
    return QString::fromUtf8(text);
}

Settings& Output(const ZTBatchDocument& job)
{
    return *job.GetOutputSettings();
}

/// An option that would change nothing is a mistake: what it needs is missing, or was misspelt. `problem` says so, with
/// %1 for `text`.
void Need(bool isThere, const QString& text, const char* problem)
{
    if (!isThere) {
        throw RequestError{QString::fromLatin1(problem).arg(text)};
    }
}

// Options that change one field of a record.

template<typename Change>
auto ChangeImageSize(Change change)
{
    return [change](ZTBatchDocument& job, const QString& text) {
        Settings::ImageSize imageSize = Output(job).GetImageSizeSettings();
        change(imageSize, text);
        Output(job).SetImageSizeSettings(imageSize);
    };
}

template<typename Change>
auto ChangeCrop(Change change)
{
    return [change](ZTBatchDocument& job, const QString& text) {
        Settings::Crop crop = Output(job).GetCropSettings();
        change(crop, text);
        Output(job).SetCropSettings(crop);
    };
}

/// An option about the frame turns it on.
template<typename Change>
auto ChangeFrame(Change change)
{
    return [change](ZTBatchDocument& job, const QString& text) {
        Settings::Transformation frame = Output(job).GetTransformationSettings();
        frame.state = true;
        change(frame, text);
        Output(job).SetTransformationSettings(frame);
    };
}

/// Options about the shadow leave it to --shadow to cast one.
template<typename Change>
auto ChangeShadow(Change change)
{
    return ChangeFrame([change](Settings::Transformation& frame, const QString& text) {
        change(frame, text);
        Need(frame.shadowEnabled, text, Phrase::Marked("\"%1\" has no effect without a shadow; add --shadow"));
    });
}

bool IsScaled(const Settings::ImageSize& imageSize)
{
    return imageSize.restriction != int(BatchJob::SizeRestriction::None);
}

template<typename Show>
auto ShowImageSize(Show show)
{
    return [show](const ZTBatchDocument& job) {
        const Settings::ImageSize imageSize = Output(job).GetImageSizeSettings();
        return IsScaled(imageSize) ? QStringList{show(imageSize)} : QStringList();
    };
}

template<typename Show>
auto ShowFrame(Show show)
{
    return [show](const ZTBatchDocument& job) {
        const Settings::Transformation frame = Output(job).GetTransformationSettings();
        return frame.state ? QStringList{show(frame)} : QStringList();
    };
}

template<typename Show>
auto ShowShadow(Show show)
{
    return [show](const ZTBatchDocument& job) {
        const Settings::Transformation frame = Output(job).GetTransformationSettings();
        return frame.state && frame.shadowEnabled ? QStringList{show(frame)} : QStringList();
    };
}

// Output.

void SetFormat(ZTBatchDocument& job, const QString& text)
{
    QString format;
    QByteArray options;
    Output(job).GetFormat(format, options);
    const QString wanted = FormatName(text);
    // Format options are valid for their format only.
    Output(job).SetFormat(wanted, wanted == format ? options : QByteArray());
}

void SetFormatOption(ZTBatchDocument& job, const QString& text)
{
    QString format;
    QByteArray options;
    Output(job).GetFormat(format, options);
    Output(job).SetFormat(format, WithFormatOption(format, options, text));
}

void SetProfile(ZTBatchDocument& job, const QString& text)
{
    if (text == none) {
        Output(job).SetICCProfile(QByteArray());
        return;
    }
    Output(job).SetICCProfile(ReadProfile(text));
}

QVector<JobOption> OutputOptions()
{
    const QString group = Phrase::English("Output");
    return {
        {{Text("--job-name"), Text("TEXT"), Phrase::English("the name of the saved job"), group},
         [](ZTBatchDocument& job, const QString& text) { job.SetDocumentName(text); },
         [](const ZTBatchDocument& job) {
             return job.GetDocumentName().isEmpty() ? QStringList() : QStringList{job.GetDocumentName()};
         }},
        {{Text("--output"),
          Text("DIR"),
          Phrase::English(
              "the folder for the results; it is created when it does not exist, and a relative one starts at the "
              "current "
              "folder"),
          group,
          false,
          Completion::Folders,
          {},
          Text("-o")},
         [](ZTBatchDocument& job, const QString& text) {
             if (text.isEmpty()) {
                 throw RequestError{Phrase::English("the name of the folder is empty")};
             }
             Output(job).SetPath(AbsolutePath(text));
         },
         [](const ZTBatchDocument& job) { return QStringList{Output(job).GetPath()}; }},
        {{Text("--structure"), Text("WORD"),
          Phrase::English(
              "the folders below it: flat, none; input, as in the inputs; date, by capture date, or that of the file "
              "where "
              "a picture has none"),
          group, false, Completion::Words, AllWords(BatchJob::FolderStructureWords)},
         [](ZTBatchDocument& job, const QString& text) {
             Output(job).SetFolderStructure(Settings::FolderStructure(ValueOf(BatchJob::FolderStructureWords, text)));
         },
         [](const ZTBatchDocument& job) {
             return QStringList{WordOf(BatchJob::FolderStructureWords, Output(job).GetFolderStructure())};
         }},
        {{Text("--format"), Text("FORMAT"),
          Phrase::English(
              "the format of results, by name or extension; Original keeps that of each input. Changing the format "
              "of a saved job drops its format options"),
          group, false, Completion::Words, FormatNames(), Text("-f")},
         SetFormat,
         [](const ZTBatchDocument& job) {
             QString format;
             QByteArray options;
             Output(job).GetFormat(format, options);
             return QStringList{format};
         }},
        {{Text("--format-option"), Text("KEY=VALUE"),
          Phrase::English("an option of the format, such as quality=90; \"velkora-batch formats\" lists them"), group,
          true},
         SetFormatOption,
         [](const ZTBatchDocument& job) {
             QString format;
             QByteArray options;
             Output(job).GetFormat(format, options);
             return FormatOptionTexts(options);
         }},
        QualityOption(),
        ByteLimitOption(),
        {{Text("--icc"), Text("FILE"),
          Phrase::English("an ICC profile to convert results to and to embed; none keeps each input's own"), group,
          false, Completion::Files},
         SetProfile,
         [](const ZTBatchDocument& job) {
             const int bytes = Output(job).GetICCProfile().size();
             return bytes == 0 ? QStringList() : QStringList{Messages::tr("(%1 bytes in the job)").arg(bytes)};
         }},
    };
}

// Names.

bool HasNumberToken(const Settings& output, Settings::NamingPart part)
{
    const BatchJob::NamePart named = BatchJob::NamePartOf(output, part);
    return named.kind == BatchJob::TemplateTokens && TokenText(named.text).Uses(Token::Number);
}

JobOption NumberStart()
{
    constexpr int highestStartNumber = 999'999'999; // as many digits as a text with tokens has for it
    static constexpr std::array parts{Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix};
    return {{Text("--number-start"), Text("NUMBER"),
             Phrase::English("what {number} in names begins with; 1, unless it is given"),
             Phrase::English("Names of results")},
            [](ZTBatchDocument& job, const QString& text) {
                const int start = IntegerFromText(text, 0, highestStartNumber);
                bool isUsed = false;
                for (const Settings::NamingPart part : parts) {
                    if (HasNumberToken(Output(job), part)) {
                        BatchJob::NamePart named = BatchJob::NamePartOf(Output(job), part);
                        named.startNumber = start;
                        BatchJob::SetNamePart(Output(job), part, named);
                        isUsed = true;
                    }
                }
                Need(isUsed, text, Phrase::Marked("\"%1\" has no effect without {number} in a name; add it to --name"));
            },
            [](const ZTBatchDocument& job) {
                for (const Settings::NamingPart part : parts) {
                    if (HasNumberToken(Output(job), part)) {
                        return QStringList{QString::number(BatchJob::NamePartOf(Output(job), part).startNumber)};
                    }
                }
                return QStringList();
            }};
}

bool HasPart(const ZTBatchDocument& job, Settings::NamingPart part)
{
    return Output(job).GetNamingTemplate(part) != Settings::TemplateNothing;
}

JobOption NamePart(const char* name, Settings::NamingPart part, const QString& help)
{
    return {{Text(name), Text("PART"), help, Phrase::English("Names of results"), false, Completion::Words,
             AllWords(BatchJob::NamePartWords)},
            [part](ZTBatchDocument& job, const QString& text) { NamePartFromText(text, part, Output(job)); },
            [part](const ZTBatchDocument& job) { return QStringList{NamePartText(part, Output(job))}; }};
}

QVector<JobOption> NameOptions()
{
    const QString group = Phrase::English("Names of results");
    return {
        NamePart("--prefix", Settings::PartPrefix,
                 Phrase::English("what a name begins with; PART is the same as for --name")),
        NamePart("--name", Settings::PartMiddle,
                 Phrase::English(
                     "the middle of a name: original, the input's name; number, number:START or number:START:DIGITS; "
                     "date and time, those of the capture, or of the file where a picture has none; text:TEXT; "
                     "nothing; or a text "
                     "with tokens, such as {date:YYYY-MM-DD}_{number:4}")),
        NamePart("--suffix", Settings::PartSuffix, Phrase::English("what a name ends with")),
        NumberStart(),
        {{Text("--prefix-separator"), Text("TEXT"), Phrase::English("the text between prefix and middle"), group},
         [](ZTBatchDocument& job, const QString& text) {
             Need(text.isEmpty() || HasPart(job, Settings::PartPrefix), text,
                  Phrase::Marked("\"%1\" has no effect without a prefix; add --prefix"));
             Output(job).SetPrefixSeparator(text);
         },
         [](const ZTBatchDocument& job) {
             const QString separator = Output(job).GetPrefixSeparator();
             const bool isUsed = !separator.isEmpty() && HasPart(job, Settings::PartPrefix);
             return isUsed ? QStringList{separator} : QStringList();
         }},
        {{Text("--suffix-separator"), Text("TEXT"), Phrase::English("the text between middle and suffix"), group},
         [](ZTBatchDocument& job, const QString& text) {
             Need(text.isEmpty() || HasPart(job, Settings::PartSuffix), text,
                  Phrase::Marked("\"%1\" has no effect without a suffix; add --suffix"));
             Output(job).SetSuffixSeparator(text);
         },
         [](const ZTBatchDocument& job) {
             const QString separator = Output(job).GetSuffixSeparator();
             const bool isUsed = !separator.isEmpty() && HasPart(job, Settings::PartSuffix);
             return isUsed ? QStringList{separator} : QStringList();
         }},
    };
}

// Size and crop.

void SetSize(Settings::ImageSize& imageSize, const QString& text)
{
    if (text == none) {
        imageSize.restriction = int(BatchJob::SizeRestriction::None);
        return;
    }
    LengthFromText(text, imageSize);
    if (!IsScaled(imageSize)) {
        imageSize.restriction = int(BatchJob::SizeRestriction::ReduceOnly);
    }
}

/// In other programs --resize takes a size.
int RestrictionFromText(const QString& text)
{
    if (!text.isEmpty() && text.at(0).isDigit()) {
        const QString side = text.section(QRegularExpression(QStringLiteral("[xX]")), 0, 0);
        throw RequestError{
            Phrase::English("\"%1\" is a size, and this option says which pictures change; use --size %2")
                .arg(text, side)};
    }
    return ValueOf(BatchJob::SizeRestrictionWords, text);
}

QVector<JobOption> SizeOptions()
{
    const QString group = Phrase::English("Size and crop");
    return {
        {{Text("--size"),
          Text("LENGTH"),
          Phrase::English(
              "scales pictures to a length of one side, such as 1600, 50%, 8in, 20cm or 200mm; none keeps the size"),
          group,
          false,
          Completion::Nothing,
          {},
          Text("-s")},
         ChangeImageSize(SetSize),
         [](const ZTBatchDocument& job) {
             const Settings::ImageSize imageSize = Output(job).GetImageSizeSettings();
             return QStringList{IsScaled(imageSize) ? LengthText(imageSize) : none};
         }},
        {{Text("--side"), Text("SIDE"), Phrase::English("the side that --size sets"), group, false, Completion::Words,
          AllWords(BatchJob::SizeSideWords)},
         ChangeImageSize([](Settings::ImageSize& imageSize, const QString& text) {
             imageSize.side = ValueOf(BatchJob::SizeSideWords, text);
             Need(IsScaled(imageSize), text, Phrase::Marked("\"%1\" has no effect without a size; add --size"));
         }),
         ShowImageSize(
             [](const Settings::ImageSize& imageSize) { return WordOf(BatchJob::SizeSideWords, imageSize.side); })},
        {{Text("--resize"), Text("WORD"),
          Phrase::English(
              "which pictures --size changes: reduce, only larger ones (default); enlarge, only smaller ones; fit, "
              "both; none"),
          group, false, Completion::Words, AllWords(BatchJob::SizeRestrictionWords)},
         ChangeImageSize([](Settings::ImageSize& imageSize, const QString& text) {
             const int restriction = RestrictionFromText(text);
             const bool isScaling = restriction != int(BatchJob::SizeRestriction::None);
             Need(IsScaled(imageSize) || !isScaling, text,
                  Phrase::Marked("\"%1\" has no effect without a size; add --size"));
             imageSize.restriction = restriction;
         }),
         ShowImageSize([](const Settings::ImageSize& imageSize) {
             return WordOf(BatchJob::SizeRestrictionWords, imageSize.restriction);
         })},
        {{Text("--resolution"), Text("DPI"),
          Phrase::English("dots per inch, for lengths in in, cm and mm; also written into results"), group},
         ChangeImageSize([](Settings::ImageSize& imageSize, const QString& text) {
             constexpr int finest = 100'000;
             imageSize.resolution = IntegerFromText(text, 1, finest);
         }),
         [](const ZTBatchDocument& job) {
             return QStringList{QString::number(Output(job).GetImageSizeSettings().resolution)};
         }},
        {{Text("--crop"), Text("CROP"),
          Phrase::English(
              "none; trim, cuts off a border of one colour; or with WIDTHxHEIGHT: ratio:3x2, the largest frame of "
              "that ratio, upright in upright pictures, or ratio:3x2!, never turned; interesting:3x2, the frame of "
              "that ratio that draws the eye; fill:800x600 or fill:15x10cm, scales to cover, then cuts; "
              "exact:800x600, that many pixels. in, cm and mm become pixels by --resolution"),
          group, false, Completion::Words, CropWords()},
         [](ZTBatchDocument& job, const QString& text) {
             Settings::Crop crop = Output(job).GetCropSettings();
             CropFromText(text, Output(job).GetImageSizeSettings(), crop);
             Output(job).SetCropSettings(crop);
         },
         [](const ZTBatchDocument& job) { return QStringList{CropText(Output(job).GetCropSettings())}; }},
        {{Text("--crop-position"), Text("WORD"),
          Phrase::English("where ratio, fill and exact place the frame in the picture"), group, false,
          Completion::Words, AllWords(BatchJob::AlignmentWords)},
         ChangeCrop([](Settings::Crop& crop, const QString& text) {
             crop.alignment = ValueOf(BatchJob::AlignmentWords, text);
             Need(BatchJob::HasCropAlignment(crop.type), text,
                  Phrase::Marked("\"%1\" has no effect without --crop ratio, fill or exact; add one of them"));
         }),
         [](const ZTBatchDocument& job) {
             const Settings::Crop crop = Output(job).GetCropSettings();
             return BatchJob::HasCropAlignment(crop.type)
                        ? QStringList{WordOf(BatchJob::AlignmentWords, crop.alignment)}
                        : QStringList();
         }},
    };
}

// Frame.

bool HasBackground(const Settings::Transformation& frame)
{
    return frame.backgroundType != int(BatchJob::BackgroundType::None);
}

QVector<JobOption> FrameOptions()
{
    using Frame = Settings::Transformation;
    const QString group = Phrase::English("Frame");
    constexpr int farthest = 100'000;
    return {
        {{Text("--frame"), Text("MARGINS"),
          Phrase::English(
              "puts pictures on a frame with margins in pixels: one number for all sides, or LEFT,TOP,RIGHT,BOTTOM; "
              "none removes the frame. Each of the options below adds a frame"),
          group},
         ChangeFrame([](Frame& frame, const QString& text) {
             frame.state = text != none;
             if (frame.state) {
                 frame.margins = MarginsFromText(text);
             }
         }),
         [](const ZTBatchDocument& job) {
             const Frame frame = Output(job).GetTransformationSettings();
             return QStringList{frame.state ? MarginsText(frame.margins) : none};
         }},
        {{Text("--frame-size"), Text("WxH"),
          Phrase::English("the size of the frame in pixels; picture: the size of each picture"), group},
         ChangeFrame([](Frame& frame, const QString& text) {
             frame.backgroundCustomOutput = text != Text("picture");
             if (frame.backgroundCustomOutput) {
                 frame.backgroundCustomSize = SizeFromText(text);
             }
         }),
         ShowFrame([](const Frame& frame) {
             return frame.backgroundCustomOutput ? SizeText(frame.backgroundCustomSize) : Text("picture");
         })},
        {{Text("--frame-angle"), Text("DEGREES"), Phrase::English("turns the picture on its frame, clockwise"), group},
         ChangeFrame(
             [](Frame& frame, const QString& text) { frame.angle = IntegerFromText(text, -farthest, farthest); }),
         ShowFrame([](const Frame& frame) { return QString::number(frame.angle); })},
        {{Text("--frame-opacity"), Text("0..1"), Phrase::English("the opacity of the picture"), group},
         ChangeFrame([](Frame& frame, const QString& text) { frame.opacity = NumberFromText(text, 0, 1); }),
         ShowFrame([](const Frame& frame) { return NumberText(frame.opacity); })},
        {{Text("--frame-blending"), Text("WORD"), Phrase::English("how the picture is laid over its background"), group,
          false, Completion::Words, AllWords(BatchJob::BlendingWords)},
         ChangeFrame(
             [](Frame& frame, const QString& text) { frame.blending = ValueOf(BatchJob::BlendingWords, text); }),
         ShowFrame([](const Frame& frame) { return WordOf(BatchJob::BlendingWords, frame.blending); })},
        {{Text("--background"), Text("BACKGROUND"),
          Phrase::English(
              "the background of the frame: none; colour:#rrggbb; pattern:0 to pattern:7, with :PERCENT for its scale; "
              "image:FILE"),
          group, false, Completion::Words, AllWords(BatchJob::BackgroundTypeWords)},
         ChangeFrame([](Frame& frame, const QString& text) { BackgroundFromText(text, frame); }),
         ShowFrame([](const Frame& frame) { return BackgroundText(frame); })},
        {{Text("--background-opacity"), Text("0..1"), Phrase::English("the opacity of the background"), group},
         ChangeFrame([](Frame& frame, const QString& text) {
             frame.backgroundOpacity = NumberFromText(text, 0, 1);
             Need(HasBackground(frame), text,
                  Phrase::Marked("\"%1\" has no effect without a background; add --background"));
         }),
         [](const ZTBatchDocument& job) {
             const Frame frame = Output(job).GetTransformationSettings();
             return frame.state && HasBackground(frame) ? QStringList{NumberText(frame.backgroundOpacity)}
                                                        : QStringList();
         }},
        {{Text("--shadow"), Text("WORD"), Phrase::English("the shadow of the picture: drop; glow, around it; none"),
          group, false, Completion::Words, QStringList{none} + AllWords(BatchJob::ShadowModeWords)},
         ChangeFrame([](Frame& frame, const QString& text) {
             frame.shadowEnabled = text != none;
             if (frame.shadowEnabled) {
                 frame.shadowMode = ValueOf(BatchJob::ShadowModeWords, text);
             }
         }),
         ShowFrame([](const Frame& frame) {
             return frame.shadowEnabled ? WordOf(BatchJob::ShadowModeWords, frame.shadowMode) : none;
         })},
        {{Text("--shadow-colour"), Text("COLOUR"), Phrase::English("#rrggbb or a name"), group},
         ChangeShadow([](Frame& frame, const QString& text) { frame.shadowColor = ColourFromText(text); }),
         ShowShadow([](const Frame& frame) { return frame.shadowColor.name(); })},
        {{Text("--shadow-opacity"), Text("0..1"), Phrase::English("the opacity of the shadow"), group},
         ChangeShadow([](Frame& frame, const QString& text) { frame.shadowOpacity = NumberFromText(text, 0, 1); }),
         ShowShadow([](const Frame& frame) { return NumberText(frame.shadowOpacity); })},
        {{Text("--shadow-angle"), Text("DEGREES"),
          Phrase::English("where the light comes from: 0 from the right, 90 from above"), group},
         ChangeShadow(
             [](Frame& frame, const QString& text) { frame.shadowAngle = IntegerFromText(text, -farthest, farthest); }),
         ShowShadow([](const Frame& frame) { return QString::number(frame.shadowAngle); })},
        {{Text("--shadow-distance"), Text("PIXELS"), Phrase::English("how far the shadow lies from the picture"),
          group},
         ChangeShadow(
             [](Frame& frame, const QString& text) { frame.shadowDistance = IntegerFromText(text, 0, farthest); }),
         ShowShadow([](const Frame& frame) { return QString::number(frame.shadowDistance); })},
        {{Text("--shadow-size"), Text("PIXELS"), Phrase::English("how soft the shadow is"), group},
         ChangeShadow([](Frame& frame, const QString& text) { frame.shadowSize = IntegerFromText(text, 0, farthest); }),
         ShowShadow([](const Frame& frame) { return QString::number(frame.shadowSize); })},
    };
}

// Effects.

QVector<JobOption> EffectOptions()
{
    QStringList ids;
    for (const BatchJob::EffectSchema& effect : BatchJob::Effects()) {
        ids.append(effect.id);
    }
    const QString group = Phrase::English("Effects");
    return {
        {{Text("--no-effects"), QString(), Phrase::English("drops the effects of the saved job first"), group},
         [](ZTBatchDocument& job, const QString&) { job.GetStyle()->Clear(); },
         [](const ZTBatchDocument&) { return QStringList(); }},
        {{Text("--effect"), Text("NAME:KEY=VALUE,..."),
          Phrase::English(
              "adds an effect after those of the job, such as blur:sigma=2. NAME:{JSON} works as well; off:NAME adds "
              "the effect disabled. \"velkora-batch effects\" lists all effects"),
          group, true, Completion::Words, ids},
         [](ZTBatchDocument& job, const QString& text) {
             const Effect effect = EffectFromText(text);
             job.GetStyle()->AppendEffect(effect.id, effect.parameters, effect.enabled);
         },
         [](const ZTBatchDocument& job) {
             QStringList texts;
             for (int i = 0; i < job.GetStyle()->GetEffectCount(); ++i) {
                 texts.append(EffectText(*job.GetStyle(), i));
             }
             return texts;
         }},
    };
}

} // namespace

const QVector<JobOption>& JobOptions()
{
    static const QVector<JobOption> options =
        OutputOptions() + NameOptions() + SizeOptions() + FrameOptions() + EffectOptions();
    return options;
}

} // namespace BatchHost
