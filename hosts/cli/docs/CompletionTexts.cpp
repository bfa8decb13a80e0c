// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CompletionTexts.h"

#include "hosts/cli/options/CommandLine.h"
#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"
#include "job/values/JobValues.h"

#include "ZTBatchOutputSettings.h"

#include <QSet>

#include <algorithm>

using namespace BatchJob;

namespace BatchCli {

namespace {

/// Tables of words with their descriptions.
QVector<QVector<Candidate>> MakeTables()
{
    QVector<QVector<Candidate>> tables;
    const auto add = [&tables](const auto& words) {
        QVector<Candidate> table;
        for (const Word& word : words) {
            table.append({QString::fromLatin1(word.word), QString::fromLatin1(word.description)});
        }
        tables.append(table);
    };
    add(NamePartWords);
    add(FolderStructureWords);
    add(SizeRestrictionWords);
    add(SizeSideWords);
    add(CropTypeWords);
    add(AlignmentWords);
    add(BackgroundTypeWords);
    add(BlendingWords);
    add(ShadowModeWords);
    add(FilePolicyWords);
    add(NamingPolicyWords);
    add(WriteToFormatPolicyWords);
    QVector<Candidate> effects;
    for (const EffectSchema& effect : Effects()) {
        effects.append({effect.id, effect.description});
    }
    QVector<Candidate> formats{
        {ZTBatchOutputSettings::GetOriginalFormat(), QStringLiteral("the format of each input")}};
    for (const FormatSchema& format : Formats()) {
        formats.append({format.name, format.description});
    }
    tables << effects << formats << CandidateCommands();
    return tables;
}

/// The words with the descriptions of the table that knows most of them.
QVector<Candidate> Described(const QStringList& words, const QString& fallback)
{
    static const QVector<QVector<Candidate>> tables = MakeTables();
    QVector<Candidate> best;
    int mostKnown = -1;
    for (const QVector<Candidate>& table : tables) {
        QVector<Candidate> candidates;
        int known = 0;
        for (const QString& word : words) {
            const auto found = std::find_if(table.begin(), table.end(),
                                            [&word](const Candidate& candidate) { return candidate.word == word; });
            const bool isKnown = found != table.end();
            known += isKnown ? 1 : 0;
            candidates.append({word, isKnown ? found->text : fallback});
        }
        if (known > mostKnown) {
            mostKnown = known;
            best = candidates;
        }
    }
    return best;
}

/// A format's name in lower case, or the extension of one whose name has a blank.
QString TypedFormat(const QString& name)
{
    const FormatSchema* const format = FindFormat(name);
    return format != nullptr && name.contains(QLatin1Char(' ')) ? format->extensions.first() : name.toLower();
}

QVector<Candidate> OptionCandidates(const QVector<ParameterSchema>& options)
{
    QVector<Candidate> candidates;
    for (const ParameterSchema& option : options) {
        const QString key = option.name + QLatin1Char('=');
        QStringList values = option.choices;
        if (option.type == ParameterType::Truth) {
            values = QStringList{QStringLiteral("true"), QStringLiteral("false")};
        } else if (option.type == ParameterType::ChoiceList) {
            values.append(QStringLiteral("none"));
        }
        if (values.isEmpty()) {
            candidates.append({key, Summary(option.description)});
        }
        for (const QString& value : qAsConst(values)) {
            candidates.append({key + value, Summary(option.description)});
        }
    }
    return candidates;
}

} // namespace

QString Summary(const QString& help)
{
    constexpr int shortest = 15;
    int end = help.size();
    for (const char* border : {". ", "; ", ": ", ", such as", ", as ", " ("}) {
        const int found = help.indexOf(QLatin1String(border), shortest);
        if (found >= 0) {
            end = std::min(end, found);
        }
    }
    return help.left(end);
}

QVector<Candidate> CandidateCommands()
{
    QVector<Candidate> candidates;
    for (const CommandInfo& command : Commands()) {
        candidates.append({command.name, Summary(command.help)});
    }
    return candidates;
}

QVector<Candidate> CandidateValues(const OptionInfo& option)
{
    QVector<Candidate> candidates = Described(option.words, Summary(option.help));
    for (Candidate& candidate : candidates) {
        if (FindFormat(candidate.word) != nullptr || candidate.word == ZTBatchOutputSettings::GetOriginalFormat()) {
            candidate.word = TypedFormat(candidate.word);
        }
    }
    return candidates;
}

QVector<Candidate> CandidateArguments(const CommandInfo& command)
{
    return Described(command.words, Summary(command.help));
}

QVector<FormatCandidates> CandidateFormatOptions()
{
    QVector<FormatCandidates> all;
    QVector<ParameterSchema> ofAny;
    QSet<QString> known;
    for (const FormatSchema& format : Formats()) {
        QStringList names{format.name.toLower()};
        for (const QString& extension : format.extensions) {
            if (!names.contains(extension)) {
                names.append(extension);
            }
        }
        all.append({names, OptionCandidates(format.options)});
        for (const ParameterSchema& option : format.options) {
            if (!known.contains(option.name)) {
                known.insert(option.name);
                ofAny.append(option);
            }
        }
    }
    all.append({QStringList(), OptionCandidates(ofAny)});
    return all;
}

QStringList WordsOf(const QVector<Candidate>& candidates)
{
    QStringList words;
    for (const Candidate& candidate : candidates) {
        words.append(candidate.word);
    }
    return words;
}

QString Quoted(QString text)
{
    text.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace BatchCli
