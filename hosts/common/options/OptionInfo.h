// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// Options as data: command lines are written and parsed from them, and help texts, the manual page and the
/// completions are generated.
namespace BatchHost {

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

} // namespace BatchHost
