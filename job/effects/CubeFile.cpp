// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CubeFile.h"

#include "job/values/Phrase.h"

#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>

#include <cmath>

namespace BatchJob {

namespace {

constexpr qint64 longestLine = 1024;
constexpr qint64 largestFile = qint64(64) << 20;
constexpr int largestCurve = 65'536;
constexpr int largestCube = 129;

/// Takes a file in line by line. Each step returns what is wrong with the line, or nothing.
class CubeReader
{
public:
    QString Take(const QByteArrayList& words);
    QString End() const;

    CubeTable table;

private:
    QString TakeSize(const QByteArrayList& words, int dimensions);
    QString TakeDomain(const QByteArrayList& words, std::array<float, 3>& bound);
    QString TakeInputRange(const QByteArrayList& words);
    QString TakeEntry(const QByteArrayList& words);
    size_t ValuesNeeded() const;
};

QString Shown(const QByteArrayList& words)
{
    constexpr int longest = 60;
    const QString text = QString::fromUtf8(words.join(' '));
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("...");
}

bool ReadNumber(const QByteArray& word, float& number)
{
    bool isNumber = false;
    number = word.toFloat(&isNumber);
    return isNumber && std::isfinite(number);
}

QString CubeReader::Take(const QByteArrayList& words)
{
    const QByteArray& keyword = words.first();
    if (keyword == "TITLE") {
        return {};
    }
    if (keyword == "LUT_1D_SIZE") {
        return TakeSize(words, 1);
    }
    if (keyword == "LUT_3D_SIZE") {
        return TakeSize(words, 3);
    }
    if (keyword == "DOMAIN_MIN") {
        return TakeDomain(words, table.domainMinimum);
    }
    if (keyword == "DOMAIN_MAX") {
        return TakeDomain(words, table.domainMaximum);
    }
    if (keyword == "LUT_1D_INPUT_RANGE" || keyword == "LUT_3D_INPUT_RANGE") {
        return TakeInputRange(words);
    }
    return TakeEntry(words);
}

QString CubeReader::TakeSize(const QByteArrayList& words, int dimensions)
{
    if (table.dimensions != 0) {
        return Phrase::English("a second size; one table is needed, of one or of three dimensions");
    }
    const int largest = dimensions == 1 ? largestCurve : largestCube;
    bool isNumber = false;
    const int size = words.size() == 2 ? words[1].toInt(&isNumber) : 0;
    if (!isNumber || size < 2 || size > largest) {
        return Phrase::English("\"%1\"; %2 needs a whole number from 2 to %3")
            .arg(Shown(words), QString::fromLatin1(words[0]))
            .arg(largest);
    }
    table.dimensions = dimensions;
    table.size = size;
    table.values.reserve(ValuesNeeded());
    return {};
}

QString CubeReader::TakeDomain(const QByteArrayList& words, std::array<float, 3>& bound)
{
    bool areNumbers = words.size() == 4;
    for (int channel = 0; areNumbers && channel < 3; ++channel) {
        areNumbers = ReadNumber(words[channel + 1], bound[static_cast<size_t>(channel)]);
    }
    return areNumbers
               ? QString()
               : Phrase::English("\"%1\"; %2 needs three numbers").arg(Shown(words), QString::fromLatin1(words[0]));
}

QString CubeReader::TakeInputRange(const QByteArrayList& words)
{
    float minimum = 0;
    float maximum = 0;
    if (words.size() != 3 || !ReadNumber(words[1], minimum) || !ReadNumber(words[2], maximum)) {
        return Phrase::English("\"%1\"; %2 needs two numbers").arg(Shown(words), QString::fromLatin1(words[0]));
    }
    table.domainMinimum.fill(minimum);
    table.domainMaximum.fill(maximum);
    return {};
}

QString CubeReader::TakeEntry(const QByteArrayList& words)
{
    std::array<float, 3> entry{};
    bool areNumbers = words.size() == 3;
    for (int channel = 0; areNumbers && channel < 3; ++channel) {
        areNumbers = ReadNumber(words[channel], entry[static_cast<size_t>(channel)]);
    }
    if (!areNumbers) {
        return Phrase::English("\"%1\"; three numbers or a known keyword are needed").arg(Shown(words));
    }
    if (table.dimensions == 0) {
        return Phrase::English("an entry before LUT_1D_SIZE or LUT_3D_SIZE");
    }
    if (table.values.size() == ValuesNeeded()) {
        return Phrase::English("one entry more than the %1 that the size says").arg(ValuesNeeded() / 3);
    }
    table.values.insert(table.values.end(), entry.begin(), entry.end());
    return {};
}

size_t CubeReader::ValuesNeeded() const
{
    const auto size = static_cast<size_t>(table.size);
    return 3 * (table.dimensions == 1 ? size : size * size * size);
}

QString CubeReader::End() const
{
    if (table.dimensions == 0) {
        return Phrase::English("no LUT_1D_SIZE and no LUT_3D_SIZE; this is not a .cube file");
    }
    if (table.values.size() != ValuesNeeded()) {
        return Phrase::English("the file ends after %1 of %2 entries")
            .arg(table.values.size() / 3)
            .arg(ValuesNeeded() / 3);
    }
    for (size_t channel = 0; channel < 3; ++channel) {
        if (!(table.domainMinimum[channel] < table.domainMaximum[channel])) {
            return Phrase::English("DOMAIN_MIN must be less than DOMAIN_MAX in every channel");
        }
    }
    return {};
}

QString AtLine(const QString& name, int line, const QString& problem)
{
    return Phrase::English("%1, line %2: %3").arg(name).arg(line).arg(problem);
}

} // namespace

CubeFile ReadCubeFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return {{}, Phrase::English("%1 does not exist").arg(path)};
    }
    if (!info.isFile()) {
        return {{}, Phrase::English("%1 is not a file").arg(path)};
    }
    if (info.size() > largestFile) {
        return {{},
                Phrase::English("%1 has %2 bytes; a .cube file has at most %3")
                    .arg(path)
                    .arg(info.size())
                    .arg(largestFile)};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, Phrase::English("%1 cannot be read: %2").arg(path, file.errorString())};
    }
    return ReadCube(file, path);
}

CubeFile ReadCube(QIODevice& device, const QString& name)
{
    CubeReader reader;
    int number = 0;
    while (!device.atEnd()) {
        // One byte more than is allowed, and one that the device keeps for itself.
        QByteArray line = device.readLine(longestLine + 2);
        ++number;
        if (line.isEmpty()) {
            break;
        }
        if (line.size() > longestLine) {
            return {{}, AtLine(name, number, Phrase::English("longer than %1 bytes").arg(longestLine))};
        }
        if (number == 1 && line.startsWith("\xEF\xBB\xBF")) {
            line.remove(0, 3);
        }
        line = line.simplified();
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        const QString problem = reader.Take(line.split(' '));
        if (!problem.isEmpty()) {
            return {{}, AtLine(name, number, problem)};
        }
    }
    const QString problem = reader.End();
    if (!problem.isEmpty()) {
        return {{}, AtLine(name, number, problem)};
    }
    return {std::move(reader.table), {}};
}

} // namespace BatchJob
