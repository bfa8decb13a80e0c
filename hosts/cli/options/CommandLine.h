#pragma once

#include "OptionInfo.h"

#include <QHash>
#include <QStringList>
#include <QVector>

/// The command line: what may stand in it, and what stood in it.
namespace BatchCli {

struct ParsedArguments
{
    QString command;
    QString message; ///< the help or version text, when only that was asked for
    QStringList inputs;
    QHash<QString, QStringList> options; ///< by the option's name; switches have one empty value

    bool Has(const QString& option) const { return options.contains(option); }
    QString Value(const QString& option) const { return options.value(option).value(0); }
    QStringList Values(const QString& option) const { return options.value(option); }
};

/// Every command with its options.
const QVector<CommandInfo>& Commands();

/// The options that change what a job says, those about its inputs among them.
QVector<OptionInfo> OptionsOfJobs();

/// Throws RequestError.
ParsedArguments ParseArguments(const QStringList& arguments);

} // namespace BatchCli
