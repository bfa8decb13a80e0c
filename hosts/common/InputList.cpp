#include "InputList.h"

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
    return path == QLatin1String("-") ? QStringLiteral("standard input") : path;
}

/// Behind "the list".
QString ListName(const QString& path)
{
    return path == QLatin1String("-") ? QStringLiteral("on standard input") : path;
}

QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    const bool isOpen = path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered)
                                                   : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        throw RequestError{QStringLiteral("the list %1 cannot be read: %2").arg(ListName(path), file.errorString())};
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
            throw RequestError{QStringLiteral("the list %1 is larger than %2 MiB; divide it")
                                   .arg(ListName(path), QString::number(largestList >> 20))};
        }
    }
    if (file.error() != QFileDevice::NoError) {
        throw RequestError{QStringLiteral("the list %1 cannot be read: %2").arg(ListName(path), file.errorString())};
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
        throw RequestError{QStringLiteral("it has %1 bytes, and no name is that long").arg(bytes.size())};
    }
    if (bytes.contains('\0')) {
        throw RequestError{QStringLiteral("it contains a NUL byte; use -0 for names that are separated by NUL")};
    }
    QTextCodec::ConverterState state;
    const QString name = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        throw RequestError{QStringLiteral("\"%1\" is not valid UTF-8; rename it to use it").arg(ReadableForm(bytes))};
    }
    if (!CanBeSaved(name)) {
        throw RequestError{QStringLiteral("\"%1\" contains a character that a job cannot hold").arg(name)};
    }
    const QFileInfo info(AbsolutePath(name));
    if (!info.exists() && isNulSeparated && bytes.contains('\n')) {
        throw RequestError{QStringLiteral("it contains line ends; names in lines are read without -0")};
    }
    return name;
}

/// Why `name` cannot be an input; empty when it can.
QString WhatIsMissing(const QString& name)
{
    const QString path = AbsolutePath(name);
    const QFileInfo info(path);
    if (info.exists()) {
        return {};
    }
    return info.isSymLink() ? QStringLiteral("%1 is a dangling link").arg(path)
                            : QStringLiteral("%1 does not exist").arg(path);
}

} // namespace

QStringList ReadInputList(const QString& path, bool isNulSeparated)
{
    QByteArray bytes = BytesOf(path);
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        throw RequestError{QStringLiteral("the list %1 is UTF-16 text; save it as UTF-8").arg(ListName(path))};
    }
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    QStringList names;
    QString missing;
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
        const QString place = QStringLiteral("%1, %2 %3")
                                  .arg(TitleOf(path), isNulSeparated ? QStringLiteral("name") : QStringLiteral("line"),
                                       QString::number(number));
        try {
            names.append(NameIn(part, isNulSeparated));
        } catch (const RequestError& error) {
            throw error.In(place);
        }
        const QString problem = WhatIsMissing(names.last());
        if (!problem.isEmpty() && ++missingCount == 1) {
            missing = place + QStringLiteral(": ") + problem;
        }
    }
    if (missingCount > 1) {
        missing += QStringLiteral(" (and %1 more)").arg(missingCount - 1);
    }
    if (missingCount > 0) {
        throw RequestError{missing};
    }
    return names;
}

} // namespace BatchHost
