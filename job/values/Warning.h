// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDataStream>
#include <QString>
#include <QStringList>
#include <QVector>

namespace BatchJob {

/// What a warning is about. Summaries count warnings by kind.
enum class WarningKind {
    OtherPages,       ///< the file has further pages or frames, which are left out
    Incomplete,       ///< the file lacks its last bytes, but no pixels
    ProfileUnused,    ///< a colour profile of the file or of the job is not used
    ColoursConverted, ///< the colours are not those of the file: no profile, format or screen holds them as they are
    MetadataLost,     ///< the result lacks metadata of the file
    GainMapLost,      ///< the result lacks the map that makes the picture brighter on a screen that can show it
    DepthLost,        ///< the result lacks the map that says how far away each place is
    FilmLost,         ///< the result lacks moving pictures that the file has beside its picture
    AudioLost,        ///< the result lacks sound that the file has beside its picture
    OtherVersions,    ///< other versions have made it than those that have planned it
    Framing,          ///< a part of the framing has no effect
    Decoder           ///< what a decoder says of the file
};

/// Something about a picture that was written, but that is not as its user may expect.
struct Warning
{
    WarningKind kind = WarningKind::Decoder;
    QString text; ///< for users, one line

    bool operator==(const Warning& other) const { return kind == other.kind && text == other.text; }
};

QDataStream& operator<<(QDataStream& stream, const Warning& warning);
QDataStream& operator>>(QDataStream& stream, Warning& warning); ///< an unknown kind becomes Decoder

using Warnings = QVector<Warning>;

/// The texts of `warnings`, in their order.
QStringList TextsOf(const Warnings& warnings);

/// The word of `kind`: "other-pages", "incomplete" and so on. Logs, reports and events use it.
QString WarningWord(WarningKind kind);

/// The kind with this word; Decoder for a word that is unknown, as another version of the server may have written it.
WarningKind WarningKindOf(const QString& word);

/// What warnings of `kind` say, in a few words for summaries: "only the first page".
QString WarningTitle(WarningKind kind);

} // namespace BatchJob
