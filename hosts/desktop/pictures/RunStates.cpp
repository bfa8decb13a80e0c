// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunStates.h"

#include "hosts/common/Language.h"

using BatchHost::Messages;

namespace BatchDesktop {

void RunStates::Set(const QString& path, State state, const QString& reason)
{
    Record& record = records[path];
    if (record.state == state && record.reason == reason) {
        return;
    }
    record = {state, reason};
    Q_EMIT Changed(path);
}

void RunStates::Begin(const QStringList& paths)
{
    records.clear();
    records.reserve(paths.size());
    for (const QString& path : paths) {
        records.insert(path, {State::Waiting, QString()});
    }
    Q_EMIT Reset();
}

QString RunStates::Word(State state)
{
    switch (state) {
    case State::None:
        return {};
    case State::Waiting:
        return Messages::tr("Waiting");
    case State::Working:
        return Messages::tr("Working");
    case State::Written:
        return Messages::tr("Written");
    case State::Skipped:
        return Messages::tr("Skipped");
    case State::Failed:
        return Messages::tr("Failed");
    }
    return {};
}

} // namespace BatchDesktop
