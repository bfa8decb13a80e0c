#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// What the server does and when: the file "<executable>.script", one rule a line,
///
///     trigger: action; action; ...
///
/// where the trigger is "start", "connect" or the name of a message that has arrived.
class ServerScript
{
public:
    /// An empty script when the file does not exist.
    static ServerScript Load(const QString& path);

    bool Has(const QString& trigger) const { return rules.contains(trigger); }
    QStringList Actions(const QString& trigger) const { return rules.value(trigger); }

private:
    QHash<QString, QStringList> rules;
};
