// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DamageText.h"

#include "job/values/Phrase.h"

#include <algorithm>
#include <array>

namespace BatchWorker {

namespace {

struct Sign
{
    const char* words; ///< part of a message, lower case
    DamageKind kind;
};

/// The messages of the libraries by which a kind of damage is known, in the order in which they count. Others mean that
/// the file is damaged.
constexpr std::array signs{
    Sign{"unsupported", DamageKind::NotSupported},          // libheif: "Unsupported feature"
    Sign{"not supported", DamageKind::NotSupported},        // libjpeg: "Backing store not supported"
    Sign{"not implemented", DamageKind::NotSupported},      // libjpeg: "CCIR601 sampling not implemented yet"
    Sign{"premature end", DamageKind::CutOff},              // libjpeg, libwebp
    Sign{"unexpected end", DamageKind::CutOff},             // GIF, libheif
    Sign{"outside of file bounds", DamageKind::CutOff},     // libheif
    Sign{"bad seek", DamageKind::CutOff},                   // libvips: behind the end
    Sign{"seek error", DamageKind::CutOff},                 // libtiff: of the directory
    Sign{"can not read tiff directory", DamageKind::CutOff} // libtiff
};

QString NotSupportedText()
{
    return BatchJob::Phrase::English("the file is stored in a way that its decoder cannot read");
}

} // namespace

DamageKind DamageKindOf(const QString& libraryText)
{
    const QString text = libraryText.toLower();
    const auto sign = std::find_if(signs.begin(), signs.end(),
                                   [&text](const Sign& one) { return text.contains(QLatin1String(one.words)); });
    return sign == signs.end() ? DamageKind::Damaged : sign->kind;
}

QString DamageText(DamageKind kind, int percent)
{
    switch (kind) {
    case DamageKind::NotSupported:
        return NotSupportedText();
    case DamageKind::CutOff:
        return percent > 0 ? BatchJob::Phrase::English("the file ends after %1 % of the picture").arg(percent)
                           : BatchJob::Phrase::English("the file ends before the picture is complete");
    case DamageKind::Damaged:
        break;
    }
    return percent > 0 ? BatchJob::Phrase::English("the file is damaged after %1 % of the picture").arg(percent)
                       : BatchJob::Phrase::English("the file is damaged; no part of the picture can be read");
}

QString HeaderDamageText(DamageKind kind)
{
    switch (kind) {
    case DamageKind::NotSupported:
        return NotSupportedText();
    case DamageKind::CutOff:
        return BatchJob::Phrase::English("the file ends before the picture is complete");
    case DamageKind::Damaged:
        break;
    }
    return BatchJob::Phrase::English("the file is damaged; its header cannot be read");
}

} // namespace BatchWorker
