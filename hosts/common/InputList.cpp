// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputList.h"

#include "job/values/Phrase.h"

#include "JobFile.h"
#include "RequestError.h"
#include "UserPath.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <cstdio>
#include <memory>

namespace BatchHost {

namespace {

constexpr qint64 largestList = 64 << 20;

/// No system opens a longer path.
constexpr int longestName = 32'767;

QString TitleOf(const QString& path)
{
    return path == QLatin1String("-") ? BatchJob::Phrase::English("standard input") : path;
}

/// Behind "the list".
QString ListName(const QString& path)
{
    return path == QLatin1String("-") ? BatchJob::Phrase::English("on standard input") : path;
}

QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    const bool isStandardInput = path == QLatin1String("-");
    const bool isOpen = isStandardInput ? file.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered)
                                        : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        throw RequestError{
            BatchJob::Phrase::English("the list %1 cannot be read: %2").arg(ListName(path), file.errorString())};
    }
    QByteArray bytes;
    constexpr int piece = 1 << 16;
    for (;;) {
        const QByteArray more = file.read(piece);
        if (more.isEmpty()) {
            break;
        }
        bytes += more;
        if (bytes.size() > largestList) {
            throw RequestError{BatchJob::Phrase::English("the list %1 is larger than %2 MiB; divide it")
                                   .arg(ListName(path), QString::number(largestList >> 20))};
        }
    }
    // On Windows the end of a pipe is an error to QFile.
    const bool isBroken = isStandardInput ? std::ferror(stdin) != 0 : file.error() != QFileDevice::NoError;
    if (isBroken) {
        throw RequestError{
            BatchJob::Phrase::English("the list %1 cannot be read: %2").arg(ListName(path), file.errorString())};
    }
    return bytes;
}

/// `bytes` with what is not plain ASCII as \xNN.
QString ReadableForm(const QByteArray& bytes)
{
    QString text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += value >= 0x20 && value < 0x7F ? QString(QLatin1Char(byte))
                                              : QStringLiteral("\\x%1").arg(value, 2, 16, QLatin1Char('0'));
    }
    return text;
}

/// The name in `bytes`. Throws RequestError.
QString NameIn(const QByteArray& bytes, bool isNulSeparated)
{
    if (bytes.size() > longestName) {
        throw RequestError{BatchJob::Phrase::English("it has %1 bytes, and no name is that long").arg(bytes.size())};
    }
    if (bytes.contains('\0')) {
        throw RequestError{
            BatchJob::Phrase::English("it contains a NUL byte; use -0 for names that are separated by NUL")};
    }
    QTextCodec::ConverterState state;
    const QString name = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        throw RequestError{
            BatchJob::Phrase::English("\"%1\" is not valid UTF-8; rename it to use it").arg(ReadableForm(bytes))};
    }
    if (!CanBeSaved(name)) {
        throw RequestError{BatchJob::Phrase::English("\"%1\" contains a character that a job cannot hold").arg(name)};
    }
    const QFileInfo info(AbsolutePath(name));
    if (!info.exists() && isNulSeparated && bytes.contains('\n')) {
        throw RequestError{BatchJob::Phrase::English("it contains line ends; names in lines are read without -0")};
    }
    return name;
}

/// Where a name stands in a list.
struct Place
{
    QString list;
    int number = 0;
    bool isNulSeparated = false;

    /// What an error in the name itself is put behind.
    QString Text() const
    {
        return (isNulSeparated ? BatchJob::Phrase::English("%1, name %2") : BatchJob::Phrase::English("%1, line %2"))
            .arg(TitleOf(list), QString::number(number));
    }
};

/// Why `path` at `place` cannot be an input; `more` names cannot be inputs either.
QString MissingText(const QString& path, const Place& place, int more)
{
    const bool isLink = QFileInfo(path).isSymLink();
    QString text;
    if (place.isNulSeparated && more == 0) {
        text = isLink ? BatchJob::Phrase::English("%1, name %2: %3 is a dangling link")
                      : BatchJob::Phrase::English("%1, name %2: %3 does not exist");
    } else if (place.isNulSeparated) {
        text = isLink ? BatchJob::Phrase::English("%1, name %2: %3 is a dangling link (and %4 more)")
                      : BatchJob::Phrase::English("%1, name %2: %3 does not exist (and %4 more)");
    } else if (more == 0) {
        text = isLink ? BatchJob::Phrase::English("%1, line %2: %3 is a dangling link")
                      : BatchJob::Phrase::English("%1, line %2: %3 does not exist");
    } else {
        text = isLink ? BatchJob::Phrase::English("%1, line %2: %3 is a dangling link (and %4 more)")
                      : BatchJob::Phrase::English("%1, line %2: %3 does not exist (and %4 more)");
    }
    text = text.arg(TitleOf(place.list), QString::number(place.number), path);
    return more == 0 ? text : text.arg(more);
}

} // namespace

QStringList ReadInputList(const QString& path, bool isNulSeparated)
{
    QByteArray bytes = BytesOf(path);
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        throw RequestError{
            BatchJob::Phrase::English("the list %1 is UTF-16 text; save it as UTF-8").arg(ListName(path))};
    }
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    QStringList names;
    QString missing;
    Place missingPlace;
    int missingCount = 0;
    int number = 0;
    for (QByteArray part : bytes.split(isNulSeparated ? '\0' : '\n')) {
        ++number;
        if (!isNulSeparated && part.endsWith('\r')) {
            part.chop(1);
        }
        if (part.isEmpty()) {
            continue;
        }
        const Place place{path, number, isNulSeparated};
        try {
            names.append(NameIn(part, isNulSeparated));
        } catch (const RequestError& error) {
            throw error.In(place.Text());
        }
        const QString absolute = AbsolutePath(names.last());
        if (!QFileInfo::exists(absolute) && ++missingCount == 1) {
            missing = absolute;
            missingPlace = place;
        }
    }
    if (missingCount > 0) {
        throw RequestError{MissingText(missing, missingPlace, missingCount - 1)};
    }
    return names;
}

} // namespace BatchHost
