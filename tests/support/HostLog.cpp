// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HostLog.h"

#include "ZTBatchSession.h"

using Session = ZTBatchManager::ZTBatchSession;

void HostLog::Watch(ZTBatchManager* manager)
{
    connect(manager, &ZTBatchManager::ConnectionEstablished, this, [this] {
        ++connections;
        Note(HostLines::established);
    });
    connect(manager, &ZTBatchManager::ConnectionFailed, this, [this] { Note(HostLines::failed); });
}

void HostLog::Watch(Session* session)
{
    const auto watchPlain = [this, session](void (Session::*signal)(), const QString& line) {
        connect(session, signal, this, [this, line] { Note(line); });
    };
    watchPlain(&Session::Paused, QStringLiteral("paused"));
    watchPlain(&Session::Resumed, QStringLiteral("resumed"));
    watchPlain(&Session::Cancelled, QStringLiteral("cancelled"));
    watchPlain(&Session::Aborted, HostLines::aborted);
    watchPlain(&Session::Finished, HostLines::finished);
    watchPlain(&Session::InputQuestion, QStringLiteral("input question"));
    watchPlain(&Session::OutputQuestion, QStringLiteral("output question"));
    watchPlain(&Session::ProcessingQuestion, QStringLiteral("processing question"));
    watchPlain(&Session::NamingQuestion, QStringLiteral("naming question"));
    watchPlain(&Session::WriteToFormatQuestion, QStringLiteral("write-to-format question"));
    connect(session, &Session::Progress, this, [this](int value) { Note(QStringLiteral("progress %1").arg(value)); });
    connect(session, &Session::ProgressRange, this,
            [this](int minimum, int maximum) { Note(QStringLiteral("range %1 %2").arg(minimum).arg(maximum)); });
    connect(session, &Session::FileInProgress, this,
            [this](const QString& file) { Note(QStringLiteral("file [%1]").arg(file)); });
    connect(session, &Session::FileProcessed, this, [this](const QString& input, const QString& output) {
        Note(QStringLiteral("processed [%1] [%2]").arg(input, output));
    });
    connect(session, &Session::ProcessError, this,
            [this](const QString& input, const QString& output, int action, int errorCode) {
                Note(QStringLiteral("error [%1] [%2] %3 %4").arg(input, output).arg(action).arg(errorCode));
            });
    connect(session, &Session::LogMessage, this,
            [this](const QString& text) { Note(QStringLiteral("log [%1]").arg(text)); });
}
