// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartJournals.h"

#include "job/values/Phrase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

using namespace BatchJob;

namespace BatchHost {

namespace {

const QString journalEnd = QStringLiteral(".journal");

} // namespace

PartJournals::PartJournals(const QString& path, const PartPlan& plan)
    : folder(QFileInfo(path).absolutePath())
    , nameStart(QFileInfo(path).fileName() + QLatin1Char('-') + plan.id + QLatin1Char('-'))
    , makersOfPlan(plan.makers)
{
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& name : names) {
        if (name.startsWith(nameStart) && name.endsWith(journalEnd)) {
            const int part = name.mid(nameStart.size()).section(QLatin1Char('-'), 0, 0).toInt();
            paths[part].append(QDir(folder).filePath(name));
        }
    }
}

QString PartJournals::NewPath(int part) const
{
    const quint64 number = QRandomGenerator::system()->generate64();
    return QDir(folder).filePath(
        QStringLiteral("%1%2-%3").arg(nameStart).arg(part).arg(number, 16, 16, QLatin1Char('0')) + journalEnd);
}

PartJournals::Known PartJournals::Of(int part) const
{
    Known known;
    for (const QString& path : paths.value(part)) {
        const std::optional<JournalState> state = ReadJournal(path, JournalUse::Results);
        if (!state) {
            continue;
        }
        const bool isByOthers = !state->byMakers.isEmpty() && state->makers != makersOfPlan;
        if (isByOthers && !known.others.contains(state->makers)) {
            known.others.append(state->makers);
        }
        for (auto it = state->results.constBegin(); it != state->results.constEnd(); ++it) {
            const auto other = known.results.constFind(it.key());
            const bool isBetter =
                other == known.results.constEnd() ||
                (HasResult(it->kind) == HasResult(other->kind) ? it->finished > other->finished : HasResult(it->kind));
            if (!isBetter) {
                continue;
            }
            const auto result = known.results.insert(it.key(), *it);
            if (isByOthers && HasResult(it->kind) && state->byMakers.contains(it.key())) {
                result->warnings.append(WarningOfMakers(state->makers, makersOfPlan));
            }
        }
    }
    return known;
}

bool PartJournals::Remove() const
{
    bool isRemoved = true;
    for (const QStringList& ofPart : paths) {
        for (const QString& path : ofPart) {
            isRemoved = QFile::remove(path) && isRemoved;
            QFile::remove(path + QLatin1String(journalHoldEnd)); // Left by a server that died.
            QFile::remove(path + QStringLiteral(".lock"));       // Left by a run that died.
        }
    }
    return isRemoved;
}

bool IsStillThere(const JournalState::Result& result, const QString& output)
{
    const QFileInfo file(output);
    return file.isFile() && (result.facts.outputBytes < 0 || file.size() == result.facts.outputBytes);
}

Warning WarningOfMakers(const Versions& makers, const Versions& ofPlan)
{
    return {WarningKind::OtherVersions, Phrase::English("made with %1, but the plan with %2")
                                            .arg(DifferenceBetween(makers, ofPlan), DifferenceBetween(ofPlan, makers))};
}

} // namespace BatchHost
