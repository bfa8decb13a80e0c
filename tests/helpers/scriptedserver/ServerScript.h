// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The rules of the scripted server: the file "<executable>.script", one rule per line,
///
///     trigger: action; action; ...
///
/// where the trigger is "start", "connect", the name of a received message, or, on the n-th connection only, that name
/// with "@n".
class ServerScript
{
public:
    /// The script in `path`; empty if the file does not exist.
    static ServerScript Load(const QString& path);

    bool Has(const QString& trigger) const { return rules.contains(trigger); }
    QStringList Actions(const QString& trigger) const { return rules.value(trigger); }

private:
    QHash<QString, QStringList> rules;
};
