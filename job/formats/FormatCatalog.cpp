// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatCatalog.h"

#include "FormatDefinitions.h"

#include <algorithm>

namespace BatchJob {

namespace {

QVector<FormatSchema> WrittenOnes(const QVector<FormatSchema>& all)
{
    QVector<FormatSchema> written;
    std::copy_if(all.begin(), all.end(), std::back_inserter(written),
                 [](const FormatSchema& format) { return format.isWritten; });
    return written;
}

const FormatSchema* FindByName(const QVector<FormatSchema>& formats, const QString& name)
{
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [&name](const FormatSchema& format) { return format.name == name; });
    return found == formats.end() ? nullptr : &*found;
}

bool Matches(const FormatSignature& signature, const QByteArray& head)
{
    return std::all_of(signature.pieces.begin(), signature.pieces.end(), [&head](const BytesAt& piece) {
        return head.mid(piece.offset, piece.bytes.size()) == piece.bytes;
    });
}

} // namespace

const QVector<FormatSchema>& Formats()
{
    static const QVector<FormatSchema> formats = WrittenOnes(ReadableFormats());
    return formats;
}

const QVector<FormatSchema>& ReadableFormats()
{
#define BATCHJOB_MAKE_FORMAT(id) id##Format(),
    static const QVector<FormatSchema> formats{BATCHJOB_FORMATS(BATCHJOB_MAKE_FORMAT)};
#undef BATCHJOB_MAKE_FORMAT
    return formats;
}

const FormatSchema& FormatOf(FormatId id)
{
    return ReadableFormats()[int(id)];
}

const FormatSchema* FindFormat(const QString& name)
{
    return FindByName(Formats(), name);
}

const FormatSchema* FindReadableFormat(const QString& name)
{
    return FindByName(ReadableFormats(), name);
}

const FormatSchema* FindFormatByExtension(const QString& extension)
{
    const QVector<FormatSchema>& formats = Formats();
    const QString wanted = extension.toLower();
    const auto found = std::find_if(formats.begin(), formats.end(), [&wanted](const FormatSchema& format) {
        return format.extensions.contains(wanted);
    });
    return found == formats.end() ? nullptr : &*found;
}

QString FormatOfFile(const QByteArray& head, const QString& extension)
{
    const QString lower = extension.toLower();
    for (const FormatSchema& format : ReadableFormats()) {
        const bool hasExtension = format.extensions.contains(lower);
        for (const FormatSignature& signature : format.signatures) {
            if (Matches(signature, head) && (hasExtension || !signature.needsExtension)) {
                return format.name;
            }
        }
    }
    return {};
}

const QStringList& ReadableExtensions()
{
    static const QStringList extensions = [] {
        QStringList all;
        for (const FormatSchema& format : ReadableFormats()) {
            all.append(format.extensions);
        }
        all.sort();
        return all;
    }();
    return extensions;
}

} // namespace BatchJob
