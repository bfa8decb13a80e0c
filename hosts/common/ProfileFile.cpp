// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProfileFile.h"

#include "RequestError.h"

#include "job/values/Phrase.h"

#include <QFile>
#include <QtEndian>

namespace BatchHost {

namespace {

// ICC.1:2010: a header of 128 bytes, a count of tags, then for each its signature, offset and size.
constexpr int tagTable = 128;
constexpr int tagSize = 12;
constexpr quint32 mostTags = 1000;

quint32 NumberAt(const QByteArray& bytes, qint64 offset)
{
    constexpr int numberSize = 4;
    return offset < 0 || offset + numberSize > bytes.size() ? 0 : qFromBigEndian<quint32>(bytes.constData() + offset);
}

QByteArray DescriptionTag(const QByteArray& profile)
{
    const quint32 count = qMin(NumberAt(profile, tagTable), mostTags);
    for (quint32 i = 0; i < count; ++i) {
        const qint64 tag = tagTable + 4 + qint64(i) * tagSize;
        const qint64 offset = NumberAt(profile, tag + 4);
        const qint64 size = NumberAt(profile, tag + 8);
        if (profile.mid(int(tag), 4) == "desc" && offset + size <= profile.size()) {
            return profile.mid(int(offset), int(size));
        }
    }
    return {};
}

// The first of its languages, in UTF-16.
QString TextInLanguages(const QByteArray& tag)
{
    constexpr int firstRecord = 16;
    const qint64 size = NumberAt(tag, firstRecord + 4);
    const qint64 offset = NumberAt(tag, firstRecord + 8);
    if (offset + size > tag.size()) {
        return {};
    }
    QString text;
    for (qint64 i = offset; i + 1 < offset + size; i += 2) {
        text += QChar(qFromBigEndian<quint16>(tag.constData() + i));
    }
    return text;
}

} // namespace

QByteArray ReadProfile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RequestError{BatchJob::Phrase::English("%1 cannot be read: %2").arg(path, file.errorString())};
    }
    constexpr qint64 largestProfile = 64 << 20;
    constexpr int signaturePosition = 36;
    const QByteArray profile = file.read(largestProfile);
    if (profile.mid(signaturePosition, 4) != "acsp") {
        throw RequestError{BatchJob::Phrase::English("%1 is not an ICC profile").arg(path)};
    }
    return profile;
}

QString NameOfProfile(const QByteArray& profile)
{
    const QByteArray tag = DescriptionTag(profile);
    QString name;
    if (tag.startsWith("mluc")) {
        name = TextInLanguages(tag);
    } else if (tag.startsWith("desc")) {
        constexpr int textStart = 12;
        const qint64 length = qMin<qint64>(NumberAt(tag, textStart - 4), tag.size() - textStart);
        name = QString::fromLatin1(tag.mid(textStart, int(qMax<qint64>(length, 0))));
    }
    name.remove(QChar(0));
    return name.simplified();
}

} // namespace BatchHost
