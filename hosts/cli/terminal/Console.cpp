// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Console.h"

#include "hosts/cli/options/TextLayout.h"
#include "job/values/VisibleText.h"

#include <QVector>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace BatchJob;

namespace BatchCli {

namespace {

/// False when not everything was written; errno says why.
bool Write(FILE* file, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const auto count = std::size_t(bytes.size());
    return std::fwrite(bytes.constData(), 1, count, file) == count && std::fflush(file) == 0;
}

QString outputError;

/// The longest part of `characters`, from the front or from the back, that has at most `columns` columns.
QVector<uint> Fitting(const QVector<uint>& characters, int columns, bool fromBack)
{
    QVector<uint> fitting;
    int width = 0;
    for (int i = 0; i < characters.size(); ++i) {
        const uint character = characters.at(fromBack ? characters.size() - 1 - i : i);
        width += ColumnsOf(character);
        if (width > columns) {
            break;
        }
        fitting.insert(fromBack ? 0 : fitting.size(), character);
    }
    return fitting;
}

QString TextOf(const QVector<uint>& characters)
{
    return QString::fromUcs4(characters.constData(), characters.size());
}

} // namespace

void WriteOut(const QString& text)
{
    if (outputError.isEmpty() && !Write(stdout, text)) {
        outputError = QString::fromLocal8Bit(std::strerror(errno));
    }
}

QString OutputError()
{
    return outputError;
}

void WriteError(const QString& text)
{
    Write(stderr, text);
}

void WriteErrorLine(const QString& text)
{
    WriteError(VisibleText(text) + QLatin1Char('\n'));
}

void WriteJson(const QByteArray& json)
{
    WriteOut(QString::fromUtf8(VisibleJson(json)));
}

int Terminal::WidthOf(const QString& text)
{
    int width = 0;
    for (const uint character : text.toUcs4()) {
        width += ColumnsOf(character);
    }
    return width;
}

QString Terminal::Shortened(const QString& text, int columns)
{
    QVector<uint> characters = text.toUcs4();
    for (uint& character : characters) {
        if (IsControl(character)) {
            character = '?';
        }
    }
    const QString clean = TextOf(characters);
    if (WidthOf(clean) <= columns) {
        return clean;
    }
    constexpr int dots = 3;
    if (columns <= dots) {
        return QString(std::max(0, columns), QLatin1Char('.'));
    }
    const int front = (columns - dots) / 3;
    return TextOf(Fitting(characters, front, false)) + QStringLiteral("...") +
           TextOf(Fitting(characters, columns - dots - front, true));
}

} // namespace BatchCli
