#include "HostLog.h"

#include "ZTBatchSession.h"

using Session = ZTBatchManager::ZTBatchSession;

void HostLog::Watch(ZTBatchManager* manager)
{
    connect(manager, &ZTBatchManager::ConnectionEstablished, this, [this] {
        ++connections;
        Note(QStringLiteral("established"));
    });
    connect(manager, &ZTBatchManager::ConnectionFailed, this, [this] { Note(QStringLiteral("failed")); });
}

void HostLog::Watch(Session* session)
{
    const auto watchPlain = [this, session](void (Session::*signal)(), const char* line) {
        connect(session, signal, this, [this, line] { Note(QLatin1String(line)); });
    };
    watchPlain(&Session::Paused, "paused");
    watchPlain(&Session::Resumed, "resumed");
    watchPlain(&Session::Cancelled, "cancelled");
    watchPlain(&Session::Aborted, "aborted");
    watchPlain(&Session::Finished, "finished");
    watchPlain(&Session::InputQuestion, "input question");
    watchPlain(&Session::OutputQuestion, "output question");
    watchPlain(&Session::ProcessingQuestion, "processing question");
    watchPlain(&Session::NamingQuestion, "naming question");
    watchPlain(&Session::WriteToFormatQuestion, "write-to-format question");
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
