// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OptionSchemas.h"

#include "job/values/Phrase.h"

#include <QJsonArray>

namespace BatchJob::OptionSchemas {

namespace {

QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

ParameterSchema Quality(int standard)
{
    return {Text("quality"),
            ParameterType::Integer,
            standard,
            Phrase::English("higher is better and larger"),
            1,
            100,
            {},
            {}};
}

ParameterSchema Effort(int standard, const char* meaning)
{
    return {Text("effort"), ParameterType::Integer, standard, Text(meaning), 0, 9, {}, {}};
}

ParameterSchema Lossless(const char* meaning)
{
    return {Text("lossless"), ParameterType::Truth, false, Text(meaning), 0, 0, {}, {}};
}

ParameterSchema Progressive()
{
    return {Text("progressive"),
            ParameterType::Truth,
            false,
            Phrase::English("shows a coarse picture first while it loads"),
            0,
            0,
            {},
            {}};
}

ParameterSchema ChromaSubsampling()
{
    return {Text("chromaSubsampling"),
            ParameterType::Choice,
            Text("auto"),
            Phrase::English("resolution of colour; auto is 4:4:4 from quality 90"),
            0,
            0,
            {},
            {Text("4:4:4"), Text("4:2:0"), Text("auto")}};
}

ParameterSchema BitDepth(const QVector<int>& depths)
{
    QStringList texts;
    for (const int depth : depths) {
        texts.append(QString::number(depth));
    }
    return {Text("bitDepth"),
            ParameterType::Integer,
            QJsonValue(QJsonValue::Undefined),
            Phrase::English("bits a channel; by default those of the input, as far as the format has them: %1")
                .arg(texts.join(QStringLiteral(", "))),
            8,
            16,
            Phrase::English("bits"),
            {}};
}

QVector<ParameterSchema> WithByteLimit(QVector<ParameterSchema> own)
{
    constexpr int leastBytes = 100;
    constexpr int mostBytes = 2'000'000'000;
    constexpr int usualQuality = 30;
    own.append(
        {Text("maxBytes"),
         ParameterType::Integer,
         QJsonValue(QJsonValue::Undefined),
         Phrase::English("the largest file; the best quality up to \"quality\" is found whose file is not larger"),
         leastBytes,
         mostBytes,
         Phrase::English("bytes"),
         {}});
    own.append({Text("minQuality"),
                ParameterType::Integer,
                usualQuality,
                Phrase::English("what \"maxBytes\" may lower the quality to"),
                1,
                100,
                {},
                {}});
    own.append({Text("mayShrink"),
                ParameterType::Truth,
                false,
                Phrase::English("makes pictures smaller where \"minQuality\" is not enough for \"maxBytes\""),
                0,
                0,
                {},
                {}});
    return own;
}

QVector<ParameterSchema> WithCommonOptions(QVector<ParameterSchema> own)
{
    // "copyright" is a part of the others.
    const QStringList kinds{Text("exif"), Text("gps"), Text("iptc"), Text("xmp"), Text("icc")};
    own.append({Text("keep"),
                ParameterType::ChoiceList,
                QJsonArray::fromStringList(kinds),
                Phrase::English("which metadata is kept; copyright is creator and rights from all of it"),
                0,
                0,
                {},
                kinds + QStringList(Text("copyright"))});
    own.append({Text("background"),
                ParameterType::Colour,
                Text("#ffffff"),
                Phrase::English("colour under transparency that the format cannot hold"),
                0,
                0,
                {},
                {}});
    own.append({Text("keepFileTime"),
                ParameterType::Truth,
                false,
                Phrase::English("gives the result the input's modification time"),
                0,
                0,
                {},
                {}});
    return own;
}

} // namespace BatchJob::OptionSchemas
