// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <array>

namespace BatchJob {

/// What a token in a text stands for.
enum class Token {
    Name,
    Number,
    Date,
    Time,
    Camera,
    Lens,
    Focal,
    Aperture,
    Shutter,
    Iso,
    Title,
    Creator,
    Width,
    Height,
    Folder
};

/// What may follow the word of a token, after a colon.
enum class TokenArgument {
    None,
    Digits,      ///< the least number of digits
    DatePattern, ///< YYYY, YY, MM and DD
    TimePattern  ///< HH, MM and SS
};

/// The most digits that a number can be given.
constexpr int mostTokenDigits = 64;

struct TokenRecord
{
    Token token;
    const char* word; ///< between the braces
    TokenArgument argument;
    bool isOfPicture;        ///< known only after a worker has looked at the file
    const char* description; ///< for the reference page
};

/// The one table of the tokens, in the order of the reference page.
inline constexpr std::array tokenTable{
    TokenRecord{Token::Name, "name", TokenArgument::None, false, "the name of the input without its extension"},
    TokenRecord{Token::Number, "number", TokenArgument::Digits, false, "the number that the naming gives to the file"},
    TokenRecord{Token::Date, "date", TokenArgument::DatePattern, true,
                "the capture date, or that of the file where the picture has none"},
    TokenRecord{Token::Time, "time", TokenArgument::TimePattern, true,
                "the capture time, or that of the file where the picture has none"},
    TokenRecord{Token::Camera, "camera", TokenArgument::None, true, "the model of the camera"},
    TokenRecord{Token::Lens, "lens", TokenArgument::None, true, "the model of the lens"},
    TokenRecord{Token::Focal, "focal", TokenArgument::None, true, "the focal length in millimetres"},
    TokenRecord{Token::Aperture, "aperture", TokenArgument::None, true, "the f-number"},
    TokenRecord{Token::Shutter, "shutter", TokenArgument::None, true, "the exposure time in seconds"},
    TokenRecord{Token::Iso, "iso", TokenArgument::None, true, "the sensitivity"},
    TokenRecord{Token::Title, "title", TokenArgument::None, true, "the title in the metadata"},
    TokenRecord{Token::Creator, "creator", TokenArgument::None, true,
                "the creator of the picture, as the metadata name them"},
    TokenRecord{Token::Width, "width", TokenArgument::None, true, "the width of the upright original in pixels"},
    TokenRecord{Token::Height, "height", TokenArgument::None, true, "the height of the upright original in pixels"},
    TokenRecord{Token::Folder, "folder", TokenArgument::None, false, "the name of the folder that the input is in"},
};

/// The record of `word`; null when there is none.
const TokenRecord* FindToken(const QString& word);

/// Every token with its braces.
QStringList AllTokens();

} // namespace BatchJob
