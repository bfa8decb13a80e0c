#pragma once

#include "Phrase.h"

#include "ZTBatchManager.h"
#include "ZTBatchOutputSettings.h"

#include <QStringList>

#include <array>

/// What the plain integers of a job, of the policies and of the server's reports mean.
///
/// The library passes these integers through without reading them. The server, its documentation and the hosts take
/// their meaning from here and nowhere else: the enumerators for code, the words for command lines and documents. A
/// value that is no enumerator is refused before a run starts. Naming parts, naming templates, folder structures and
/// policies have their enumerators in the library; only their words are here.
namespace BatchJob {

/// ZTBatchOutputSettings::ImageSize::restriction: whether a picture is scaled, and in which direction.
enum class SizeRestriction : int { None = 0, Fit = 1, ReduceOnly = 2, EnlargeOnly = 3 };

/// ZTBatchOutputSettings::ImageSize::side: the side whose length is given. The ratio is kept.
enum class SizeSide : int { Width = 0, Height = 1, LongSide = 2, ShortSide = 3 };

/// ZTBatchOutputSettings::ImageSize::unit. Lengths become pixels by the record's resolution in dots per inch.
enum class SizeUnit : int { Pixels = 0, Percent = 1, Inches = 2, Centimetres = 3, Millimetres = 4 };

/// ZTBatchOutputSettings::Crop::type. The alignment places the frame for Ratio, TurningRatio, Fill and Exact.
enum class CropType : int {
    None = 0,
    Ratio = 1,             ///< the largest frame of the ratio width : height
    Trim = 2,              ///< a border of one colour is cut off
    Interesting = 3,       ///< the most interesting frame of that ratio
    Fill = 4,              ///< scaled to cover width x height, then cut to it
    Exact = 5,             ///< width x height pixels, clipped to the picture
    TurningRatio = 6,      ///< as Ratio; an upright picture gets an upright frame, a lying picture a lying one
    TurningInteresting = 7 ///< as Interesting, turned like TurningRatio
};

/// How many patterns are built in; they are numbered from 0.
constexpr int builtInPatterns = 8;

/// ZTBatchOutputSettings::Transformation::backgroundType.
enum class BackgroundType : int {
    None = 0,    ///< transparent where the format allows it, else white
    Colour = 1,  ///< backgroundColor
    Pattern = 2, ///< backgroundPattern: built-in pattern 0 to 7, tile scale in percent (0 = 100), unused (0)
    Image = 3    ///< the file backgroundImage, scaled to cover
};

/// ZTBatchOutputSettings::Transformation::blending: how the picture is laid over its background.
enum class Blending : int {
    Normal = 0,
    Multiply = 1,
    Screen = 2,
    Overlay = 3,
    Darken = 4,
    Lighten = 5,
    SoftLight = 6,
    HardLight = 7,
    Difference = 8
};

/// ZTBatchOutputSettings::Transformation::shadowMode. shadowAngle is the direction of the light in degrees, 0 = from
/// the right, counter-clockwise; shadowDistance and shadowSize (the blur's sigma) are pixels.
enum class ShadowMode : int { Drop = 0, ContactGlow = 1 };

/// The field `action` of an error message: what the server did about the error.
enum class Action : int {
    ReportedOnly = 0, ///< nothing yet: the question about this file comes next
    FileSkipped = 1,
    RunStopped = 2,
    WrittenUnderAnotherName = 3,
    ExistingFileOverwritten = 4,
    WrittenInAnotherFormat = 5
};

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
