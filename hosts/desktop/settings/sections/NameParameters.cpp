// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NameParameters.h"

#include "hosts/common/Language.h"

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

using Output = ZTBatchOutputSettings;

constexpr int longestText = 255;
constexpr int mostDigits = 64; // as the job's checks have it
constexpr int highestNumber = 999'999'999;

struct Part
{
    Output::NamingPart part;
    const char* name;
    QString title;
    QString text;
    QString start;
    QString digits;
    const char* checkedKind;
    const char* checkedDigits;
};

/// Whether a part of the name is one of `kinds`.
std::function<bool(const Settings&)> IsOf(std::size_t part, std::initializer_list<Output::NamingTemplate> kinds)
{
    return [part, kinds = QVector<Output::NamingTemplate>(kinds)](const Settings& settings) {
        return kinds.contains(settings.nameParts[part].kind);
    };
}

QVector<BoundParameter> ParametersOf(const Part& part)
{
    const auto place = std::size_t(part.part);
    const QByteArray name = part.name;
    return {
        {ChoiceRow(part.name, part.title, ChoicesOf(NamePartWords), part.checkedKind),
         [place](const Settings& settings) { return int(settings.nameParts[place].kind); },
         [place](Settings& settings, const QJsonValue& value) {
             settings.nameParts[place].kind = Output::NamingTemplate(value.toInt());
         }},
        {TextRow((name + "Text").constData(), part.text, longestText),
         [place](const Settings& settings) { return settings.nameParts[place].text; },
         [place](Settings& settings, const QJsonValue& value) { settings.nameParts[place].text = value.toString(); },
         IsOf(place, {Output::TemplateCustomText, TemplateTokens})},
        {IntegerRow((name + "Start").constData(), part.start, 0, highestNumber, "", ""),
         [place](const Settings& settings) { return settings.nameParts[place].startNumber; },
         [place](Settings& settings, const QJsonValue& value) {
             settings.nameParts[place].startNumber = value.toInt();
         },
         IsOf(place, {Output::TemplateNumber, TemplateTokens})},
        {IntegerRow((name + "Digits").constData(), part.digits, 1, mostDigits, "", part.checkedDigits),
         [place](const Settings& settings) { return settings.nameParts[place].digits; },
         [place](Settings& settings, const QJsonValue& value) { settings.nameParts[place].digits = value.toInt(); },
         IsOf(place, {Output::TemplateNumber})},
    };
}

// Between two parts.
BoundParameter Separator(const char* name, const QString& label, QString Settings::*field)
{
    return {TextRow(name, label, longestText), [field](const Settings& settings) { return settings.*field; },
            [field](Settings& settings, const QJsonValue& value) { settings.*field = value.toString(); }};
}

} // namespace

QVector<BoundParameter> NameParameters()
{
    return ParametersOf({Output::PartPrefix, "prefix", Messages::tr("First part"),
                         Messages::tr("Text of the first part"), Messages::tr("First number of the first part"),
                         Messages::tr("Digits of the first part"), "The name's prefix",
                         "The number of digits in the name's prefix"}) +
           QVector<BoundParameter>{Separator("prefixSeparator", Messages::tr("Between the first and the middle part"),
                                             &Settings::prefixSeparator)} +
           ParametersOf({Output::PartMiddle, "middle", Messages::tr("Middle part"),
                         Messages::tr("Text of the middle part"), Messages::tr("First number of the middle part"),
                         Messages::tr("Digits of the middle part"), "The name's middle",
                         "The number of digits in the name's middle"}) +
           QVector<BoundParameter>{Separator("suffixSeparator", Messages::tr("Between the middle and the last part"),
                                             &Settings::suffixSeparator)} +
           ParametersOf({Output::PartSuffix, "suffix", Messages::tr("Last part"), Messages::tr("Text of the last part"),
                         Messages::tr("First number of the last part"), Messages::tr("Digits of the last part"),
                         "The name's suffix", "The number of digits in the name's suffix"}) +
           QVector<BoundParameter>{{ChoiceRow("structure", Messages::tr("Folders"), ChoicesOf(FolderStructureWords),
                                              "The folder structure"),
                                    [](const Settings& settings) { return int(settings.structure); },
                                    [](Settings& settings, const QJsonValue& value) {
                                        settings.structure = Output::FolderStructure(value.toInt());
                                    }}};
}

} // namespace BatchDesktop
