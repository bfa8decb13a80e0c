// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureTexts.h"

#include "hosts/common/Language.h"

#include <QDir>

using BatchHost::Messages;

namespace BatchDesktop {

PictureTexts::PictureTexts(const NamePlan& plan, const RunStates& states, const Thumbnails& thumbnails, QObject* parent)
    : QObject(parent)
    , plan(plan)
    , states(states)
    , thumbnails(thumbnails)
{
    connect(&thumbnails, &Thumbnails::Changed, this, &PictureTexts::Changed);
    connect(&states, &RunStates::Changed, this, &PictureTexts::Changed);
    connect(&states, &RunStates::Reset, this, &PictureTexts::AllChanged);
    connect(&plan, &NamePlan::Planned, this, &PictureTexts::AllChanged);
}

QString PictureTexts::Name(const InputNode& node) const
{
    const QString name = node.data.fileName.section(QLatin1Char('/'), -1);
    return name.isEmpty() ? QDir::toNativeSeparators(node.data.fileName) : name;
}

QString PictureTexts::Result(const InputNode& node) const
{
    return IsFile(node) ? QDir::toNativeSeparators(plan.Of(node.data.fileName).name)
                        : QString::number(node.data.fileNodesCount);
}

QString PictureTexts::ShortResult(const InputNode& node) const
{
    const QString result = Result(node);
    if (!IsFile(node)) {
        return result;
    }
    const InputNode* const folder = FolderOf(&node);
    const QString place = result.section(QDir::separator(), -2, -2);
    return folder != nullptr && place == Name(*folder) ? result.section(QDir::separator(), -1) : result;
}

QString PictureTexts::State(const InputNode& node) const
{
    if (!IsFile(node)) {
        return {};
    }
    const RunStates::Record record = states.Of(node.data.fileName);
    if (record.state != RunStates::State::None) {
        return RunStates::Word(record.state);
    }
    const NamePlan::Entry entry = plan.Of(node.data.fileName);
    if (entry.trouble.isEmpty()) {
        return {};
    }
    return entry.isNameTaken ? Messages::tr("Name taken") : Messages::tr("Cannot be written");
}

bool PictureTexts::IsWarning(const InputNode& node) const
{
    if (!IsFile(node)) {
        return false;
    }
    const RunStates::State state = states.Of(node.data.fileName).state;
    if (state != RunStates::State::None) {
        return state == RunStates::State::Failed || state == RunStates::State::Skipped;
    }
    return !plan.Of(node.data.fileName).trouble.isEmpty();
}

QString PictureTexts::ToolTip(const InputNode& node) const
{
    QStringList lines{node.data.toolTip.isEmpty() ? QDir::toNativeSeparators(node.data.fileName) : node.data.toolTip};
    const QString result = IsFile(node) ? Result(node) : QString();
    if (!result.isEmpty()) {
        lines.append(Messages::tr("Written as %1").arg(result));
    }
    const RunStates::Record record = states.Of(node.data.fileName);
    const QString trouble = BatchHost::Translated(plan.Of(node.data.fileName).trouble);
    if (!record.reason.isEmpty()) {
        lines.append(record.reason);
    } else if (record.state == RunStates::State::None && !trouble.isEmpty()) {
        lines.append(trouble);
    }
    if (thumbnails.IsBroken(node.data.fileName)) {
        lines.append(Messages::tr("This file cannot be shown."));
    }
    return lines.join(QLatin1Char('\n'));
}

QString PictureTexts::Spoken(const InputNode& node) const
{
    const QString name = Name(node);
    if (!IsFile(node)) {
        return Messages::tr("Folder %1, pictures: %2").arg(name, Result(node));
    }
    const QString result = Result(node);
    const QString state = State(node);
    if (result.isEmpty()) {
        return state.isEmpty() ? name : Messages::tr("%1: %2").arg(name, state);
    }
    return state.isEmpty() ? Messages::tr("%1, written as %2").arg(name, result)
                           : Messages::tr("%1, written as %2: %3").arg(name, result, state);
}

bool PictureTexts::Matches(const InputNode& file, ShownState state) const
{
    using State = RunStates::State;
    const auto is = [&](State wanted) { return states.Of(file.data.fileName).state == wanted; };
    switch (state) {
    case ShownState::All:
        return true;
    case ShownState::NameTaken:
        return plan.Of(file.data.fileName).isNameTaken;
    case ShownState::Waiting:
        return is(State::Waiting);
    case ShownState::Working:
        return is(State::Working);
    case ShownState::Written:
        return is(State::Written);
    case ShownState::Skipped:
        return is(State::Skipped);
    case ShownState::Failed:
        return is(State::Failed);
    }
    return true;
}

} // namespace BatchDesktop
