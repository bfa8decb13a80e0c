// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// Options and commands as data, from which arguments are parsed, and help texts, the manual page and the completions
/// are generated.
namespace BatchCli {

/// What a shell completes a value with.
enum class Completion { Nothing, Files, Folders, Words };

struct OptionInfo
{
    QString name;      ///< with its hyphens, "--size"
    QString valueName; ///< as help texts show it, "LENGTH"; empty for a switch
    QString help;      ///< one or more sentences, without a full stop at the end
    QString group;     ///< the heading in help texts
    bool isRepeatable = false;
    Completion completion = Completion::Nothing;
    QStringList words = {}; ///< for Completion::Words
    QString shortName = {}; ///< "-o"; empty for none
};

struct CommandInfo
{
    QString name;
    QString inputs; ///< the arguments after it, "[JOB.xml] [INPUT...]"; empty for none
    QString help;
    QVector<OptionInfo> options;
    Completion completion = Completion::Nothing; ///< of the arguments after it
    QStringList words = {};
};

} // namespace BatchCli
