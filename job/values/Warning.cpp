// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Warning.h"

#include "job/values/Phrase.h"

namespace BatchJob {

QDataStream& operator<<(QDataStream& stream, const Warning& warning)
{
    return stream << qint32(warning.kind) << warning.text;
}

QDataStream& operator>>(QDataStream& stream, Warning& warning)
{
    qint32 kind = 0;
    stream >> kind >> warning.text;
    const bool isKnown = kind >= 0 && kind < qint32(WarningKind::Decoder);
    warning.kind = isKnown ? WarningKind(kind) : WarningKind::Decoder;
    return stream;
}

QStringList TextsOf(const Warnings& warnings)
{
    QStringList texts;
    for (const Warning& warning : warnings) {
        texts.append(warning.text);
    }
    return texts;
}

QString WarningWord(WarningKind kind)
{
    switch (kind) {
    case WarningKind::OtherPages:
        return QStringLiteral("other-pages");
    case WarningKind::Incomplete:
        return QStringLiteral("incomplete");
    case WarningKind::ProfileUnused:
        return QStringLiteral("profile-unused");
    case WarningKind::ColoursConverted:
        return QStringLiteral("colours-converted");
    case WarningKind::MetadataLost:
        return QStringLiteral("metadata-lost");
    case WarningKind::GainMapLost:
        return QStringLiteral("gain-map-lost");
    case WarningKind::DepthLost:
        return QStringLiteral("depth-lost");
    case WarningKind::FilmLost:
        return QStringLiteral("film-lost");
    case WarningKind::AudioLost:
        return QStringLiteral("audio-lost");
    case WarningKind::OtherVersions:
        return QStringLiteral("other-versions");
    case WarningKind::Framing:
        return QStringLiteral("framing");
    case WarningKind::Decoder:
        break;
    }
    return QStringLiteral("decoder");
}

WarningKind WarningKindOf(const QString& word)
{
    int kind = 0;
    while (kind < int(WarningKind::Decoder) && WarningWord(WarningKind(kind)) != word) {
        ++kind;
    }
    return WarningKind(kind);
}

QString WarningTitle(WarningKind kind)
{
    switch (kind) {
    case WarningKind::OtherPages:
        return Phrase::English("only the first page");
    case WarningKind::Incomplete:
        return Phrase::English("the file lacks its end");
    case WarningKind::ProfileUnused:
        return Phrase::English("colour profile not used");
    case WarningKind::ColoursConverted:
        return Phrase::English("colours converted");
    case WarningKind::MetadataLost:
        return Phrase::English("metadata lost");
    case WarningKind::GainMapLost:
        return Phrase::English("gain map lost");
    case WarningKind::DepthLost:
        return Phrase::English("depth map lost");
    case WarningKind::FilmLost:
        return Phrase::English("film lost");
    case WarningKind::AudioLost:
        return Phrase::English("audio lost");
    case WarningKind::OtherVersions:
        return Phrase::English("made by other versions than the plan");
    case WarningKind::Framing:
        return Phrase::English("framing without effect");
    case WarningKind::Decoder:
        break;
    }
    return Phrase::English("the decoder found a fault");
}

} // namespace BatchJob
