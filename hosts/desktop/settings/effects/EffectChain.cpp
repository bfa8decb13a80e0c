// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectChain.h"

#include "EffectDifference.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/settings/parameters/ParameterRow.h"
#include "hosts/desktop/settings/parameters/ParameterValues.h"
#include "hosts/desktop/settings/parameters/ShownNames.h"
#include "job/effects/EffectCatalog.h"

#include <algorithm>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

QString HelpOf(const QString& id)
{
    const EffectSchema* const schema = FindEffect(id);
    return schema ? BatchHost::Translated(schema->description) : QString();
}

} // namespace

EffectChain::EffectChain(EditedJob& editedJob, QObject* parent)
    : QAbstractListModel(parent)
    , job(editedJob)
    , effects(editedJob.CurrentSettings().effects)
{
    connect(&job, &EditedJob::SettingsChanged, this, &EffectChain::Follow);
}

int EffectChain::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : effects.size();
}

QVariant EffectChain::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Settings::Effect& effect = effects.at(index.row());
    const QString problem = ProblemOf(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return problem.isEmpty() ? NameOf(effect.name) : QStringLiteral("\u26A0 ") + NameOf(effect.name);
    case Qt::CheckStateRole:
        return effect.isEnabled ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole:
        return problem.isEmpty() ? HelpOf(effect.name) : BatchHost::Translated(problem);
    case Qt::AccessibleTextRole:
        return effect.isEnabled ? NameOf(effect.name) : Messages::tr("%1, switched off").arg(NameOf(effect.name));
    case Qt::AccessibleDescriptionRole:
        return problem.isEmpty() ? HelpOf(effect.name) : BatchHost::Translated(problem);
    default:
        return {};
    }
}

Qt::ItemFlags EffectChain::flags(const QModelIndex& index) const
{
    // Effects are dropped between others, not on them.
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                                 Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : Qt::ItemIsDropEnabled;
}

bool EffectChain::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    QVector<Settings::Effect> wanted = effects;
    Settings::Effect& effect = wanted[index.row()];
    effect.isEnabled = value.toInt() == Qt::Checked;
    const QString text = effect.isEnabled ? Messages::tr("Switch on %1") : Messages::tr("Switch off %1");
    Change(wanted, text.arg(NameOf(effect.name)));
    return true;
}

bool EffectChain::moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
                           const QModelIndex& destinationParent, int destinationChild)
{
    const bool isInside =
        sourceRow >= 0 && sourceRow < effects.size() && destinationChild >= 0 && destinationChild <= effects.size();
    const bool isMove = destinationChild != sourceRow && destinationChild != sourceRow + 1;
    if (count != 1 || sourceParent.isValid() || destinationParent.isValid() || !isInside || !isMove) {
        return false;
    }
    Move(sourceRow, destinationChild > sourceRow ? destinationChild - 1 : destinationChild);
    return true;
}

bool EffectChain::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > effects.size()) {
        return false;
    }
    QVector<Settings::Effect> wanted = effects;
    wanted.remove(row, count);
    Change(wanted, count == 1 ? Messages::tr("Remove %1").arg(NameOf(effects.at(row).name))
                              : Messages::tr("Remove %1 effects").arg(count));
    return true;
}

void EffectChain::Add(const QString& effect)
{
    QVector<Settings::Effect> wanted = effects;
    wanted.append({effect, {}, true});
    Change(wanted, Messages::tr("Add %1").arg(NameOf(effect)));
}

void EffectChain::Duplicate(int row)
{
    QVector<Settings::Effect> wanted = effects;
    wanted.insert(row + 1, effects.at(row));
    Change(wanted, Messages::tr("Duplicate %1").arg(NameOf(effects.at(row).name)));
}

void EffectChain::Move(int from, int to)
{
    QVector<Settings::Effect> wanted = effects;
    wanted.move(from, to);
    Change(wanted, Messages::tr("Move %1").arg(NameOf(effects.at(from).name)));
}

void EffectChain::SetParameter(int row, const QString& name, const QJsonValue& value)
{
    const EffectSchema* const schema = FindEffect(effects.at(row).name);
    if (!schema) {
        return;
    }
    for (const ParameterSchema& parameter : schema->parameters) {
        if (parameter.name == name) {
            QVector<Settings::Effect> wanted = effects;
            wanted[row].parameters = WithValue(wanted.at(row).parameters, parameter, value);
            Change(wanted, Messages::tr("%1: %2").arg(NameOf(schema->id), ShownParameter(name)),
                   QStringLiteral("effects.%1.%2").arg(row).arg(name));
        }
    }
}

void EffectChain::SetProblems(const QVector<QString>& wanted)
{
    if (problems != wanted) {
        problems = wanted;
        if (!effects.isEmpty()) {
            Q_EMIT dataChanged(index(0), index(effects.size() - 1));
        }
    }
}

QString EffectChain::NameOf(const QString& id)
{
    return ShownName(id);
}

void EffectChain::Change(const QVector<Settings::Effect>& wanted, const QString& step, const QString& control)
{
    Settings settings = job.CurrentSettings();
    settings.effects = wanted;
    job.Change(settings, step, control);
}

// Views keep their selection, so rows that stay are not made anew.
void EffectChain::Follow()
{
    const QVector<Settings::Effect> now = job.CurrentSettings().effects;
    if (now == effects) {
        return;
    }
    const EffectDifference difference(effects, now);
    if (difference.IsMove()) {
        const int from = difference.From();
        const int to = difference.To();
        beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        effects.move(from, to);
        problems.clear();
        endMoveRows();
        return;
    }
    const int first = difference.First();
    const int kept = std::min(difference.OldCount(), difference.NewCount());
    if (kept < difference.OldCount()) {
        beginRemoveRows({}, first + kept, first + difference.OldCount() - 1);
        effects.remove(first + kept, difference.OldCount() - kept);
        problems.clear();
        endRemoveRows();
    }
    InsertRows(first + kept, difference.NewCount() - kept, now);
    if (kept > 0) {
        std::copy_n(now.begin() + first, kept, effects.begin() + first);
        Q_EMIT dataChanged(index(first), index(first + kept - 1));
    }
}

void EffectChain::InsertRows(int first, int count, const QVector<Settings::Effect>& now)
{
    if (count > 0) {
        beginInsertRows({}, first, first + count - 1);
        for (int i = first; i < first + count; ++i) {
            effects.insert(i, now.at(i));
        }
        problems.clear();
        endInsertRows();
    }
}

} // namespace BatchDesktop
