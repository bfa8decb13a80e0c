#pragma once

#include <QString>
#include <QStringList>

/// The rules of the scripted server whose executable is `server`, see ServerScript; written for all that start from now
/// on. Ends the test when they cannot be.
void WriteServerRules(const QString& server, const QStringList& rules);

/// The rules for those that start after one has done the action "next".
void WriteNextServerRules(const QString& server, const QStringList& rules);
