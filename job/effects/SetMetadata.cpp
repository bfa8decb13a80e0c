// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

QVector<ParameterSchema> MetadataParameters()
{
    constexpr int longest = 2000;
    const QString unset = QStringLiteral("");
    return {
        TextParameter("creator", unset, 0, longest, Phrase::Marked("who made the picture")),
        TextParameter("copyright", unset, 0, longest, Phrase::Marked("the notice that says whose the picture is")),
        TextParameter("credit", unset, 0, longest, Phrase::Marked("who is to be named where the picture is shown")),
        TextParameter("title", unset, 0, longest, Phrase::Marked("a short name of the picture")),
        TextParameter("keywords", unset, 0, longest, Phrase::Marked("separated by commas or semicolons")),
        TextParameter("usageTerms", unset, 0, longest, Phrase::Marked("how the picture may be used")),
    };
}

QStringList AllTexts(const QJsonObject& parameters)
{
    return parameters.keys();
}

} // namespace

EffectSchema SetMetadataEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("set-metadata");
    effect.description = Phrase::English("Writes creator, rights, title and keywords into the metadata");
    effect.parameters = MetadataParameters();
    effect.definition = QStringLiteral(
        "The texts are written into EXIF, IPTC and XMP alike, whatever `keep` says, and take the places of what is "
        "kept; "
        "an empty text leaves its entries as they are kept. [Metadata](metadata.md#what-set-metadata-writes) lists the "
        "entries. All texts have [tokens](tokens.md), so a brace is written `{{` or `}}`. Pixels do not change.");
    effect.example = QByteArrayLiteral(R"({"creator": "Ana Diaz", "title": "{folder} {number:3}"})");
    effect.changesPixels = false;
    effect.tokenParameters = AllTexts;
    return effect;
}

} // namespace BatchJob
