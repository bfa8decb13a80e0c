// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

namespace BatchDesktop {

/// What a run has made of each picture so far, by path. Set by the observer of the run.
class RunStates : public QObject
{
    Q_OBJECT

public:
    enum class State { None, Waiting, Working, Written, Skipped, Failed };

    struct Record
    {
        State state = State::None;
        QString reason; ///< of a picture that was skipped or has failed; in the user's language
    };

    using QObject::QObject;

    Record Of(const QString& path) const { return records.value(path); }

    void Set(const QString& path, State state, const QString& reason = QString());

    /// A run begins with `paths`: they wait, and no other picture has a state.
    void Begin(const QStringList& paths);

    void Clear() { Begin({}); }

    static QString Word(State state);

Q_SIGNALS:
    void Changed(const QString& path);

    /// Any of them may have changed.
    void Reset();

private:
    QHash<QString, Record> records;
};

} // namespace BatchDesktop
