// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

/// An effect with parameters to measure, and what other programs have nearest to it.
struct EffectCase
{
    const char* id;
    const char* parameters; ///< with names of files that the benchmark writes
    double goal;            ///< nanoseconds for each pixel of 8 bits, 2.5 times that of 16 bits; 0 for none
    const char* peer;       ///< a command on the files IN and OUT; empty for none
};

/// Every effect of the catalogue, area effects with a small and a large radius where it matters.
inline const std::vector<EffectCase>& EffectCases()
{
    static const std::vector<EffectCase> cases{
        {"exposure", R"({"stops": 0.7})", 5, "vips linear IN OUT 1.6 0 --uchar"},
        {"brightness-contrast", R"({"brightness": 10, "contrast": 30})", 5, "vips linear IN OUT 1.4 10 --uchar"},
        {"levels", R"({"black": 5, "white": 80, "gamma": 1.4})", 5, "vips gamma IN OUT --exponent 1.4"},
        {"curve", R"({"points": [[0, 10], [50, 40], [100, 90]]})", 5, "vips maplut IN OUT tones.png"},
        {"auto-levels", R"({"clip": 0.1})", 5, "convert IN -auto-level OUT"},
        {"white-balance", R"({"temperature": 40, "tint": -10})", 5, "vips linear IN OUT '1.2 1 0.8' '0 0 0' --uchar"},
        {"saturation", R"({"amount": 60})", 4, "vips recomb IN OUT matrix.mat"},
        {"vibrance", R"({"amount": 60})", 4, ""},
        {"hue", R"({"angle": 75})", 5, "vips recomb IN OUT matrix.mat"},
        {"grayscale", R"({"method": "luminance"})", 4, "vips colourspace IN OUT b-w"},
        {"grayscale", R"({"method": "luma"})", 4, "vips recomb IN OUT grey.mat"},
        {"sepia", R"({"amount": 70})", 4, "vips recomb IN OUT matrix.mat"},
        {"invert", "{}", 5, "vips invert IN OUT"},
        {"posterize", R"({"levels": 4})", 5, "convert IN -posterize 4 OUT"},
        {"blur", R"({"sigma": 2})", 12, "vips gaussblur IN OUT 2"},
        {"blur", R"({"sigma": 20})", 12, "vips gaussblur IN OUT 20"},
        {"sharpen", R"({"sigma": 1, "amount": 80})", 15, "vips sharpen IN OUT"},
        {"denoise", R"({"strength": 10})", 60, "convert IN -enhance OUT"},
        {"clarity", R"({"amount": 50})", 20, ""},
        {"vignette", R"({"amount": -60})", 5, ""},
        {"lut", R"({"file": "warm.cube"})", 0, ""},
        {"lut", R"({"file": "warm.cube", "interpolation": "trilinear"})", 0, ""},
        {"rotate", R"({"angle": 3})", 25, "vips rotate IN OUT 3 --interpolate bicubic"},
        {"flip", R"({"direction": "horizontal"})", 0, "vips flip IN OUT horizontal"},
        {"border", R"({"left": 20, "top": 20, "right": 20, "bottom": 20})", 0,
         "convert IN -bordercolor white -border 20 OUT"},
        {"watermark-text", R"({"text": "Velkora"})", 0, ""},
        {"watermark-image", R"({"file": "mark.png", "size": 20})", 0, ""},
    };
    return cases;
}
