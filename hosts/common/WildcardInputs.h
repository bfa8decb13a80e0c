// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace BatchHost {

struct InputFilter;

/// What inputs with wildcards stand for.
struct ExpandedInputs
{
    QStringList paths;
    QStringList problems; ///< folders that cannot be read and names that cannot be used, one sentence each
};

/// Replaces inputs with wildcards, see Wildcard, by what they match, for shells that have not done so. What exists by
/// its name is not replaced. As for shells, wildcards match names that begin with a dot only where the pattern has one
/// or `filter` includes them. "**" stands for folders at any depth: at the end for all below, else for files only.
/// Links to folders and the output folder are not entered by "**". Throws RequestError when an input matches nothing.
ExpandedInputs ExpandWildcards(const QStringList& inputs, const InputFilter& filter);

} // namespace BatchHost
