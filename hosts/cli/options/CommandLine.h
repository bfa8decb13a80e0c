// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "HelpTexts.h"
#include "PresetOptions.h"

#include <QHash>
#include <QStringList>
#include <QVector>

/// The commands with their options, and the arguments of one call.
namespace BatchCli {

struct ParsedArguments
{
    QString command;
    QString message; ///< the help or version text, if that is all the user asked for
    QStringList inputs;
    QHash<QString, QStringList> options; ///< by the option's name; switches have one empty value

    bool Has(const QString& option) const { return options.contains(option); }
    QString Value(const QString& option) const { return options.value(option).value(0); }
    QStringList Values(const QString& option) const { return options.value(option); }
};

/// Every command with its options.
const QVector<CommandInfo>& Commands();

/// The options that describe a job, including its inputs; `preset` is the one that names the preset.
QVector<OptionInfo> OptionsOfJobs(const OptionInfo& preset = PresetOptionInfo());

/// Help texts get lines of about `columns` columns. Throws RequestError.
ParsedArguments ParseArguments(const QStringList& arguments, int columns = defaultColumns);

} // namespace BatchCli
