// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TokenText.h"

#include "TokenPatterns.h"

#include "job/values/ParameterSchema.h"
#include "job/values/Phrase.h"

#include <algorithm>

namespace BatchJob {

namespace {

const QChar opening = QLatin1Char('{');
const QChar closing = QLatin1Char('}');

QString Shown(const QString& text)
{
    constexpr int longest = 40;
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("...");
}

QString UnknownToken(const QString& whole, const QString& word, int place)
{
    QStringList words;
    for (const TokenRecord& record : tokenTable) {
        words.append(QString::fromLatin1(record.word));
    }
    const QString nearest = NearestWord(word.trimmed(), words);
    return nearest.isEmpty()
               ? Phrase::English("\"%1\" at character %2 is not a token; the tokens are %3, and {{ is a brace")
                     .arg(whole, QString::number(place), AllTokens().join(QStringLiteral(", ")))
               : Phrase::English("\"%1\" at character %2 is not a token; did you mean \"{%3}\"?")
                     .arg(whole, QString::number(place), nearest);
}

} // namespace

class TokenText::Reader
{
public:
    Reader(const QString& text, TokenText& target)
        : text(text)
        , target(target)
    {
    }

    void Read()
    {
        while (at < text.size() && target.error.isEmpty()) {
            const QChar character = text[at];
            const bool isTwice = at + 1 < text.size() && text[at + 1] == character;
            if (character != opening && character != closing) {
                literal.append(character);
                ++at;
            } else if (isTwice) {
                literal.append(character);
                at += 2;
            } else if (character == opening) {
                ReadToken();
            } else {
                target.error =
                    Phrase::English("\"}\" at character %1 closes no token; write }} for a brace").arg(Place());
            }
        }
        EndLiteral();
    }

private:
    /// As people count: from 1, and a character outside of the basic plane is one.
    int Place() const { return text.left(at).toUcs4().size() + 1; }

    void ReadToken()
    {
        int end = at + 1;
        while (end < text.size() && text[end] != opening && text[end] != closing) {
            ++end;
        }
        if (end == text.size() || text[end] == opening) {
            target.error = Phrase::English("\"{\" at character %1 begins a token that has no end; write {{ for a brace")
                               .arg(Place());
            return;
        }
        const QString inside = text.mid(at + 1, end - at - 1);
        const QString word = inside.section(QLatin1Char(':'), 0, 0);
        const QString whole = Shown(text.mid(at, end - at + 1));
        const TokenRecord* const token = FindToken(word);
        if (!token) {
            target.error = UnknownToken(whole, word, Place());
            return;
        }
        const bool hasArgument = inside.size() > word.size();
        const QString argument = inside.mid(word.size() + 1);
        const QString problem = hasArgument ? ArgumentProblem(token->argument, argument) : QString();
        if (!problem.isEmpty()) {
            target.error = Phrase::English("\"%1\" at character %2 cannot be used: %3")
                               .arg(whole, QString::number(Place()), problem);
            return;
        }
        EndLiteral();
        target.pieces.append({argument, token});
        at = end + 1;
    }

    void EndLiteral()
    {
        if (!literal.isEmpty()) {
            target.pieces.append({literal, nullptr});
            literal.clear();
        }
    }

    const QString& text;
    TokenText& target;
    QString literal;
    int at = 0;
};

TokenText::TokenText(const QString& text)
{
    Reader(text, *this).Read();
}

bool TokenText::Uses(Token token) const
{
    return std::any_of(pieces.begin(), pieces.end(),
                       [token](const Piece& piece) { return piece.token && piece.token->token == token; });
}

bool TokenText::NeedsPicture() const
{
    return std::any_of(pieces.begin(), pieces.end(),
                       [](const Piece& piece) { return piece.token && piece.token->isOfPicture; });
}

QString TokenText::Filled(const TokenValues& values) const
{
    QString filled;
    for (const Piece& piece : pieces) {
        filled += piece.token ? ValueOf(piece, values) : piece.text;
    }
    return filled;
}

QString TokenText::ValueOf(const Piece& piece, const TokenValues& values)
{
    switch (piece.token->token) {
    case Token::Name:
        return values.name;
    case Token::Number:
        return NumberWithDigits(values.number, piece.text);
    case Token::Date:
    case Token::Time:
        return TimeInPattern(piece.token->argument, piece.text, values.captured);
    case Token::Camera:
        return values.texts.camera;
    case Token::Lens:
        return values.texts.lens;
    case Token::Focal:
        return values.texts.focal;
    case Token::Aperture:
        return values.texts.aperture;
    case Token::Shutter:
        return values.texts.shutter;
    case Token::Iso:
        return values.texts.iso;
    case Token::Title:
        return values.texts.title;
    case Token::Creator:
        return values.texts.creator;
    case Token::Width:
        return values.size.isEmpty() ? QString() : QString::number(values.size.width());
    case Token::Height:
        return values.size.isEmpty() ? QString() : QString::number(values.size.height());
    case Token::Folder:
        return values.folder;
    }
    return {};
}

} // namespace BatchJob
