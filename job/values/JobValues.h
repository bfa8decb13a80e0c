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

/// One value as users write and read it.
struct Word
{
    int value;
    const char* word;        ///< for option words: lower case, hyphens
    const char* description; ///< one line for help texts and documents
};

inline constexpr std::array NamingTemplateWords{
    Word{ZTBatchOutputSettings::TemplateOriginalName, "original", "the input's name without its extension"},
    Word{ZTBatchOutputSettings::TemplateNumber, "number", "a number that counts the job's files"},
    Word{ZTBatchOutputSettings::TemplateCaptureDate, "date", "the capture date, YYYYMMDD"},
    Word{ZTBatchOutputSettings::TemplateCaptureTime, "time", "the capture time, HHMMSS"},
    Word{ZTBatchOutputSettings::TemplateCustomText, "text", "a text of your own"},
    Word{ZTBatchOutputSettings::TemplateNothing, "nothing", "nothing"},
};

inline constexpr std::array FolderStructureWords{
    Word{ZTBatchOutputSettings::StructureFlat, "flat", "everything in the output folder"},
    Word{ZTBatchOutputSettings::StructureAsInput, "input", "folders as in the input"},
    Word{ZTBatchOutputSettings::StructureByCaptureDate, "date", "a folder for each capture date, YYYY/YYYY-MM-DD"},
};

inline constexpr std::array SizeRestrictionWords{
    Word{int(SizeRestriction::None), "none", "the size stays"},
    Word{int(SizeRestriction::Fit), "fit", "enlarge or reduce"},
    Word{int(SizeRestriction::ReduceOnly), "reduce", "only reduce"},
    Word{int(SizeRestriction::EnlargeOnly), "enlarge", "only enlarge"},
};

inline constexpr std::array SizeSideWords{
    Word{int(SizeSide::Width), "width", "the width"},
    Word{int(SizeSide::Height), "height", "the height"},
    Word{int(SizeSide::LongSide), "long", "the long side"},
    Word{int(SizeSide::ShortSide), "short", "the short side"},
};

inline constexpr std::array SizeUnitWords{
    Word{int(SizeUnit::Pixels), "px", "pixels"},
    Word{int(SizeUnit::Percent), "percent", "percent of the picture"},
    Word{int(SizeUnit::Inches), "in", "inches at the resolution"},
    Word{int(SizeUnit::Centimetres), "cm", "centimetres at the resolution"},
    Word{int(SizeUnit::Millimetres), "mm", "millimetres at the resolution"},
};

inline constexpr std::array CropTypeWords{
    Word{int(CropType::None), "none", "no crop"},
    Word{int(CropType::Ratio), "fixed-ratio", "the largest frame of the ratio width : height"},
    Word{int(CropType::Trim), "trim", "cut off a border of one colour"},
    Word{int(CropType::Interesting), "fixed-interesting", "the frame of the ratio that draws the eye"},
    Word{int(CropType::Fill), "fill", "scale to cover width x height, then cut"},
    Word{int(CropType::Exact), "exact", "width x height pixels"},
    Word{int(CropType::TurningRatio), "ratio", "the largest frame of the ratio, turned with the picture"},
    Word{int(CropType::TurningInteresting), "interesting",
         "the frame of the ratio that draws the eye, turned with the picture"},
};

/// Of ZTBatchOutputSettings::Crop::alignment, which may hold any Qt alignment flags.
inline constexpr std::array AlignmentWords{
    Word{Qt::AlignCenter, "center", "in the middle"},
    Word{int(Qt::AlignTop) | int(Qt::AlignHCenter), "top", "at the top"},
    Word{int(Qt::AlignBottom) | int(Qt::AlignHCenter), "bottom", "at the bottom"},
    Word{int(Qt::AlignVCenter) | int(Qt::AlignLeft), "left", "on the left"},
    Word{int(Qt::AlignVCenter) | int(Qt::AlignRight), "right", "on the right"},
    Word{int(Qt::AlignTop) | int(Qt::AlignLeft), "top-left", "at the top left"},
    Word{int(Qt::AlignTop) | int(Qt::AlignRight), "top-right", "at the top right"},
    Word{int(Qt::AlignBottom) | int(Qt::AlignLeft), "bottom-left", "at the bottom left"},
    Word{int(Qt::AlignBottom) | int(Qt::AlignRight), "bottom-right", "at the bottom right"},
};

inline constexpr std::array BackgroundTypeWords{
    Word{int(BackgroundType::None), "none", "transparent where the format allows it, else white"},
    Word{int(BackgroundType::Colour), "colour", "one colour"},
    Word{int(BackgroundType::Pattern), "pattern", "a built-in pattern"},
    Word{int(BackgroundType::Image), "image", "an image file, scaled to cover"},
};

inline constexpr std::array BlendingWords{
    Word{int(Blending::Normal), "normal", "the picture covers its background"},
    Word{int(Blending::Multiply), "multiply", "multiply"},
    Word{int(Blending::Screen), "screen", "screen"},
    Word{int(Blending::Overlay), "overlay", "overlay"},
    Word{int(Blending::Darken), "darken", "the darker of the two"},
    Word{int(Blending::Lighten), "lighten", "the lighter of the two"},
    Word{int(Blending::SoftLight), "soft-light", "soft light"},
    Word{int(Blending::HardLight), "hard-light", "hard light"},
    Word{int(Blending::Difference), "difference", "the difference of the two"},
};

inline constexpr std::array ShadowModeWords{
    Word{int(ShadowMode::Drop), "drop", "a drop shadow"},
    Word{int(ShadowMode::ContactGlow), "glow", "a glow around the picture, without offset"},
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
    Word{ZTBatchManager::InputSkip, "skip", "skip the file"},
    Word{ZTBatchManager::InputStop, "stop", "stop the run"},
    Word{ZTBatchManager::InputAsk, "ask", "ask"},
};

inline constexpr std::array NamingPolicyWords{
    Word{ZTBatchManager::NamingSkip, "skip", "skip the file"},
    Word{ZTBatchManager::NamingOverwrite, "overwrite", "overwrite what is there"},
    Word{ZTBatchManager::NamingRename, "rename", "append \" (2)\", \" (3)\" and so on to the name"},
    Word{ZTBatchManager::NamingAsk, "ask", "ask"},
};

inline constexpr std::array WriteToFormatPolicyWords{
    Word{ZTBatchManager::WriteToFormatSkip, "skip", "skip the file"},
    Word{ZTBatchManager::WriteToFormatStop, "stop", "stop the run"},
    Word{ZTBatchManager::WriteToFormatAsk, "ask", "ask"},
    Word{ZTBatchManager::WriteToFormatNearest, "nearest", "write the nearest format that can hold the picture"},
};

inline constexpr std::array ActionWords{
    Word{int(Action::ReportedOnly), "reported", "reported only"},
    Word{int(Action::FileSkipped), "skipped", "the file was skipped"},
    Word{int(Action::RunStopped), "stopped", "the run was stopped"},
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
