// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// What the server understands by the plain integers of a job and of its messages. The library passes them through
/// without reading them, and ZTBatchOutputSettings stores any number; a run with a number that is no enumerator here is
/// refused before it starts. Naming parts, naming templates, folder structures and policies have their enumerators in
/// ZTBatchOutputSettings and ZTBatchManager.
///
///     ZTBatchOutputSettings::ImageSize size;
///     size.restriction = int(ZTBatchValues::SizeRestriction::ReduceOnly);
///
/// Later versions may add enumerators, but never change one.
namespace ZTBatchValues {

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
inline constexpr int builtInPatterns = 8;

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

} // namespace ZTBatchValues
