// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OutputNaming.h"

#include "NamePart.h"

#include "job/values/CutText.h"
#include "job/values/JobValues.h"

#include <algorithm>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

bool IsRefused(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return QStringLiteral("/\\<>:\"|?*").contains(character);
    }
}

/// A lone surrogate cannot be written as UTF-8.
bool IsLoneSurrogate(const QString& text, int i)
{
    if (text[i].isHighSurrogate()) {
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    }
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

void ReplaceTrailing(QString& name)
{
    for (int i = name.size() - 1; i >= 0 && (name[i] == QLatin1Char('.') || name[i] == QLatin1Char(' ')); --i) {
        name[i] = QLatin1Char('_');
    }
}

/// Whether `name`, which has no extension, is the name of a device on Windows.
bool IsDevice(const QString& name)
{
    const QString upper = name.trimmed().toUpper();
    if (upper.size() == 4 && (upper.startsWith(QLatin1String("COM")) || upper.startsWith(QLatin1String("LPT")))) {
        return QStringLiteral("123456789\u00B9\u00B2\u00B3").contains(upper[3]);
    }
    static const std::array devices{QLatin1String("CON"), QLatin1String("PRN"),    QLatin1String("AUX"),
                                    QLatin1String("NUL"), QLatin1String("CONIN$"), QLatin1String("CONOUT$")};
    return std::find(devices.begin(), devices.end(), upper) != devices.end();
}

/// Full case folding. QString folds one character to one; those that fold to several, such as the sharp s, are those
/// that have several capitals.
QString Folded(const QString& text)
{
    const QString simple = text.toCaseFolded();
    QString folded;
    folded.reserve(simple.size());
    for (const QChar character : simple) {
        const QString capitals = QString(character).toUpper();
        folded += capitals.size() > 1 ? capitals.toCaseFolded() : QString(character);
    }
    return folded;
}

} // namespace

OutputNaming::OutputNaming(const Settings& settings)
    : prefixSeparator(settings.GetPrefixSeparator())
    , suffixSeparator(settings.GetSuffixSeparator())
{
    const auto read = [&settings](Settings::NamingPart part) {
        const NamePart found = NamePartOf(settings, part);
        return Part{found.kind, found.text, found.startNumber, found.digits,
                    found.kind == TemplateTokens ? TokenText(found.text) : TokenText()};
    };
    prefix = read(Settings::PartPrefix);
    middle = read(Settings::PartMiddle);
    suffix = read(Settings::PartSuffix);
}

bool OutputNaming::Part::HasNumber() const
{
    return kind == Settings::TemplateNumber || tokens.Uses(Token::Number);
}

bool OutputNaming::Part::NeedsCaptureTime() const
{
    return kind == Settings::TemplateCaptureDate || kind == Settings::TemplateCaptureTime || tokens.Uses(Token::Date) ||
           tokens.Uses(Token::Time);
}

bool OutputNaming::NeedsCaptureTime() const
{
    return prefix.NeedsCaptureTime() || middle.NeedsCaptureTime() || suffix.NeedsCaptureTime();
}

bool OutputNaming::NeedsPictureTexts() const
{
    const auto needs = [](const Part& part) {
        return std::any_of(tokenTable.begin(), tokenTable.end(), [&part](const TokenRecord& record) {
            const bool isTime = record.token == Token::Date || record.token == Token::Time;
            return record.isOfPicture && !isTime && part.tokens.Uses(record.token);
        });
    };
    return needs(prefix) || needs(middle) || needs(suffix);
}

qint64 OutputNaming::NumberOf(int position) const
{
    for (const Part* part : {&prefix, &middle, &suffix}) {
        if (part->HasNumber()) {
            return qint64(part->start) + position;
        }
    }
    return qint64(position) + 1;
}

QString OutputNaming::Stem(const QString& inputPath, int position, const Picture& picture) const
{
    const QString first = TextOf(prefix, inputPath, position, picture);
    const QString second = TextOf(middle, inputPath, position, picture);
    const QString third = TextOf(suffix, inputPath, position, picture);
    QString name = first;
    if (!first.isEmpty() && !second.isEmpty()) {
        name += prefixSeparator;
    }
    name += second;
    if (!second.isEmpty() && !third.isEmpty()) {
        name += suffixSeparator;
    }
    name += third;
    return CleanName(name.isEmpty() ? BaseNameOf(inputPath) : name);
}

QString OutputNaming::TextOf(const Part& part, const QString& inputPath, int position, const Picture& picture)
{
    if (part.kind == TemplateTokens) {
        TokenValues values = ValuesOfFile(inputPath, qint64(part.start) + position);
        values.captured = picture.captured;
        values.size = picture.size;
        values.texts = picture.texts;
        return part.tokens.Filled(values).trimmed();
    }
    const QDateTime& captured = picture.captured;
    switch (part.kind) {
    case Settings::TemplateOriginalName:
        return BaseNameOf(inputPath);
    case Settings::TemplateNumber:
        return QString::number(qint64(part.start) + position).rightJustified(part.digits, QLatin1Char('0'));
    case Settings::TemplateCaptureDate:
        return captured.isValid() ? captured.toString(QStringLiteral("yyyyMMdd")) : QStringLiteral("00000000");
    case Settings::TemplateCaptureTime:
        return captured.isValid() ? captured.toString(QStringLiteral("HHmmss")) : QStringLiteral("000000");
    case Settings::TemplateCustomText:
        return part.text;
    case Settings::TemplateNothing:
        break;
    }
    return {};
}

QString CleanName(const QString& name)
{
    QString clean = name;
    for (int i = 0; i < clean.size(); ++i) {
        // The unchanged name decides, not the one with replacements.
        if (IsRefused(name[i]) || IsLoneSurrogate(name, i)) {
            clean[i] = QLatin1Char('_');
        }
    }
    ReplaceTrailing(clean);
    const int dot = clean.indexOf(QLatin1Char('.'));
    const int deviceSize = dot == -1 ? clean.size() : dot;
    if (clean.isEmpty() || IsDevice(clean.left(deviceSize))) {
        clean.replace(0, deviceSize, QLatin1Char('_'));
    }
    return clean;
}

QString FileName(const QString& stem, const QString& addition, const QString& extension)
{
    const QString end = addition + QLatin1Char('.') + extension;
    QString cut = CutToBytes(stem, longestName - end.toUtf8().size());
    if (cut.size() < stem.size()) {
        ReplaceTrailing(cut);
    }
    return cut + end;
}

QString FolderName(const QString& name)
{
    QString cut = CutToBytes(CleanName(name), longestName);
    ReplaceTrailing(cut);
    return cut;
}

QString NameKey(const QString& name)
{
    const bool isAscii = std::all_of(name.begin(), name.end(), [](QChar character) { return character < QChar(0x80); });
    if (isAscii) {
        return name.toLower();
    }
    // Folding may undo the normalisation, so the name is normalised before and after.
    return Folded(name.normalized(QString::NormalizationForm_D)).normalized(QString::NormalizationForm_C);
}

} // namespace BatchJob
