// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/options/OptionInfo.h"

#include <QVector>

/// Commands as data, with the options that all hosts share and those of the command line.
namespace BatchCli {

using BatchHost::Completion;
using BatchHost::OptionInfo;

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
