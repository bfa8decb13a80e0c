// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Phrase.h"

#include "ZTBatchManager.h"
#include "ZTBatchOutputSettings.h"
#include "ZTBatchValues.h"

#include <QStringList>

#include <array>

/// What the plain integers of a job, of the policies and of the server's reports mean.
///
/// The library passes these integers through without reading them. The server, its documentation and the hosts take
/// their meaning from the enumerators of ZTBatchValues.h, and their words for command lines and documents from here. A
/// value that is no enumerator is refused before a run starts. Naming parts, naming templates, folder structures and
/// policies have their enumerators in the library's classes.
namespace BatchJob {

// Installed for hosts.
using ZTBatchValues::Action;
using ZTBatchValues::BackgroundType;
using ZTBatchValues::Blending;
using ZTBatchValues::builtInPatterns;
using ZTBatchValues::CropType;
using ZTBatchValues::ShadowMode;
using ZTBatchValues::SizeRestriction;
using ZTBatchValues::SizeSide;
using ZTBatchValues::SizeUnit;

/// A part of a name that is a text with tokens. Only NamePart has this value: settings hold such a text as a custom
/// one.
inline constexpr auto TemplateTokens = ZTBatchOutputSettings::NamingTemplate(-1);

/// One value as users write and read it.
struct Word
{
    int value;
    const char* word;        ///< for option words: lower case, hyphens
    const char* description; ///< one line for help texts and documents
};

inline constexpr std::array NamingTemplateWords{
    Word{ZTBatchOutputSettings::TemplateOriginalName, "original",
         Phrase::Marked("the input's name without its extension")},
    Word{ZTBatchOutputSettings::TemplateNumber, "number", Phrase::Marked("a number that counts the job's files")},
    Word{ZTBatchOutputSettings::TemplateCaptureDate, "date", Phrase::Marked("the capture date, YYYYMMDD")},
    Word{ZTBatchOutputSettings::TemplateCaptureTime, "time", Phrase::Marked("the capture time, HHMMSS")},
    Word{ZTBatchOutputSettings::TemplateCustomText, "text", Phrase::Marked("a text of your own")},
    Word{ZTBatchOutputSettings::TemplateNothing, "nothing", Phrase::Marked("nothing")},
};

/// The values of NamePart::kind.
inline constexpr std::array NamePartWords{
    NamingTemplateWords[0],
    NamingTemplateWords[1],
    NamingTemplateWords[2],
    NamingTemplateWords[3],
    NamingTemplateWords[4],
    Word{TemplateTokens, "tokens", Phrase::Marked("a text with tokens, such as {date}_{number:4}")},
    NamingTemplateWords[5],
};

inline constexpr std::array FolderStructureWords{
    Word{ZTBatchOutputSettings::StructureFlat, "flat", Phrase::Marked("everything in the output folder")},
    Word{ZTBatchOutputSettings::StructureAsInput, "input", Phrase::Marked("folders as in the input")},
    Word{ZTBatchOutputSettings::StructureByCaptureDate, "date",
         Phrase::Marked("a folder for each capture date, YYYY/YYYY-MM-DD")},
};

inline constexpr std::array SizeRestrictionWords{
    Word{int(SizeRestriction::None), "none", Phrase::Marked("the size stays")},
    Word{int(SizeRestriction::Fit), "fit", Phrase::Marked("enlarge or reduce")},
    Word{int(SizeRestriction::ReduceOnly), "reduce", Phrase::Marked("only reduce")},
    Word{int(SizeRestriction::EnlargeOnly), "enlarge", Phrase::Marked("only enlarge")},
};

inline constexpr std::array SizeSideWords{
    Word{int(SizeSide::Width), "width", Phrase::Marked("the width")},
    Word{int(SizeSide::Height), "height", Phrase::Marked("the height")},
    Word{int(SizeSide::LongSide), "long", Phrase::Marked("the long side")},
    Word{int(SizeSide::ShortSide), "short", Phrase::Marked("the short side")},
};

inline constexpr std::array SizeUnitWords{
    Word{int(SizeUnit::Pixels), "px", Phrase::Marked("pixels")},
    Word{int(SizeUnit::Percent), "percent", Phrase::Marked("percent of the picture")},
    Word{int(SizeUnit::Inches), "in", Phrase::Marked("inches at the resolution")},
    Word{int(SizeUnit::Centimetres), "cm", Phrase::Marked("centimetres at the resolution")},
    Word{int(SizeUnit::Millimetres), "mm", Phrase::Marked("millimetres at the resolution")},
};

inline constexpr std::array CropTypeWords{
    Word{int(CropType::None), "none", Phrase::Marked("no crop")},
    Word{int(CropType::Ratio), "fixed-ratio", Phrase::Marked("the largest frame of the ratio width : height")},
    Word{int(CropType::Trim), "trim", Phrase::Marked("cut off a border of one colour")},
    Word{int(CropType::Interesting), "fixed-interesting", Phrase::Marked("the frame of the ratio that draws the eye")},
    Word{int(CropType::Fill), "fill", Phrase::Marked("scale to cover width x height, then cut")},
    Word{int(CropType::Exact), "exact", Phrase::Marked("width x height pixels")},
    Word{int(CropType::TurningRatio), "ratio",
         Phrase::Marked("the largest frame of the ratio, turned with the picture")},
    Word{int(CropType::TurningInteresting), "interesting",
         Phrase::Marked("the frame of the ratio that draws the eye, turned with the picture")},
};

/// Of ZTBatchOutputSettings::Crop::alignment, which may hold any Qt alignment flags.
inline constexpr std::array AlignmentWords{
    Word{Qt::AlignCenter, "center", Phrase::Marked("in the middle")},
    Word{int(Qt::AlignTop) | int(Qt::AlignHCenter), "top", Phrase::Marked("at the top")},
    Word{int(Qt::AlignBottom) | int(Qt::AlignHCenter), "bottom", Phrase::Marked("at the bottom")},
    Word{int(Qt::AlignVCenter) | int(Qt::AlignLeft), "left", Phrase::Marked("on the left")},
    Word{int(Qt::AlignVCenter) | int(Qt::AlignRight), "right", Phrase::Marked("on the right")},
    Word{int(Qt::AlignTop) | int(Qt::AlignLeft), "top-left", Phrase::Marked("at the top left")},
    Word{int(Qt::AlignTop) | int(Qt::AlignRight), "top-right", Phrase::Marked("at the top right")},
    Word{int(Qt::AlignBottom) | int(Qt::AlignLeft), "bottom-left", Phrase::Marked("at the bottom left")},
    Word{int(Qt::AlignBottom) | int(Qt::AlignRight), "bottom-right", Phrase::Marked("at the bottom right")},
};

inline constexpr std::array BackgroundTypeWords{
    Word{int(BackgroundType::None), "none", Phrase::Marked("transparent where the format allows it, else white")},
    Word{int(BackgroundType::Colour), "colour", Phrase::Marked("one colour")},
    Word{int(BackgroundType::Pattern), "pattern", Phrase::Marked("a built-in pattern")},
    Word{int(BackgroundType::Image), "image", Phrase::Marked("an image file, scaled to cover")},
};

inline constexpr std::array BlendingWords{
    Word{int(Blending::Normal), "normal", Phrase::Marked("the picture covers its background")},
    Word{int(Blending::Multiply), "multiply", Phrase::Marked("multiply")},
    Word{int(Blending::Screen), "screen", Phrase::Marked("screen")},
    Word{int(Blending::Overlay), "overlay", Phrase::Marked("overlay")},
    Word{int(Blending::Darken), "darken", Phrase::Marked("the darker of the two")},
    Word{int(Blending::Lighten), "lighten", Phrase::Marked("the lighter of the two")},
    Word{int(Blending::SoftLight), "soft-light", Phrase::Marked("soft light")},
    Word{int(Blending::HardLight), "hard-light", Phrase::Marked("hard light")},
    Word{int(Blending::Difference), "difference", Phrase::Marked("the difference of the two")},
};

inline constexpr std::array ShadowModeWords{
    Word{int(ShadowMode::Drop), "drop", Phrase::Marked("a drop shadow")},
    Word{int(ShadowMode::ContactGlow), "glow", Phrase::Marked("a glow around the picture, without offset")},
};

/// Whether a crop of `type` has a width and a height.
constexpr bool HasCropSize(int type)
{
    return type != int(CropType::None) && type != int(CropType::Trim);
}

/// Whether a crop of `type` is placed by what draws the eye.
constexpr bool IsCropOfInterest(int type)
{
    return type == int(CropType::Interesting) || type == int(CropType::TurningInteresting);
}

/// Whether the alignment places the frame of a crop of `type`.
constexpr bool HasCropAlignment(int type)
{
    return HasCropSize(type) && !IsCropOfInterest(type);
}

/// For the input, output and processing policies.
inline constexpr std::array FilePolicyWords{
    Word{ZTBatchManager::InputSkip, "skip", Phrase::Marked("skip the file")},
    Word{ZTBatchManager::InputStop, "stop", Phrase::Marked("stop the run")},
    Word{ZTBatchManager::InputAsk, "ask", Phrase::Marked("ask")},
};

inline constexpr std::array NamingPolicyWords{
    Word{ZTBatchManager::NamingSkip, "skip", Phrase::Marked("skip the file")},
    Word{ZTBatchManager::NamingOverwrite, "overwrite", Phrase::Marked("overwrite what is there")},
    Word{ZTBatchManager::NamingRename, "rename", Phrase::Marked("append \" (2)\", \" (3)\" and so on to the name")},
    Word{ZTBatchManager::NamingAsk, "ask", Phrase::Marked("ask")},
};

inline constexpr std::array WriteToFormatPolicyWords{
    Word{ZTBatchManager::WriteToFormatSkip, "skip", Phrase::Marked("skip the file")},
    Word{ZTBatchManager::WriteToFormatStop, "stop", Phrase::Marked("stop the run")},
    Word{ZTBatchManager::WriteToFormatAsk, "ask", Phrase::Marked("ask")},
    Word{ZTBatchManager::WriteToFormatNearest, "nearest",
         Phrase::Marked("write the nearest format that can hold the picture")},
};

inline constexpr std::array ActionWords{
    Word{int(Action::ReportedOnly), "reported", Phrase::Marked("reported only")},
    Word{int(Action::FileSkipped), "skipped", Phrase::Marked("the file was skipped")},
    Word{int(Action::RunStopped), "stopped", Phrase::Marked("the run was stopped")},
    Word{int(Action::WrittenUnderAnotherName), Phrase::Marked("renamed"), "written under another name"},
    Word{int(Action::ExistingFileOverwritten), Phrase::Marked("overwritten"), "an existing file was overwritten"},
    Word{int(Action::WrittenInAnotherFormat), Phrase::Marked("converted"), "written in another format"},
};

/// The word of `value` in `words`; null for a value that the server does not know.
template<std::size_t count>
constexpr const Word* FindWord(const std::array<Word, count>& words, int value)
{
    for (const Word& word : words) {
        if (word.value == value) {
            return &word;
        }
    }
    return nullptr;
}

template<std::size_t count>
QStringList AllWords(const std::array<Word, count>& words)
{
    QStringList all;
    for (const Word& word : words) {
        all.append(QString::fromLatin1(word.word));
    }
    return all;
}

/// The word of `value`; the number itself for a value that the server does not know.
template<std::size_t count>
QString WordOf(const std::array<Word, count>& words, int value)
{
    const Word* const word = FindWord(words, value);
    return word == nullptr ? QString::number(value) : QString::fromLatin1(word->word);
}

} // namespace BatchJob
