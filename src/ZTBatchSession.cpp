// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchSession.h"

#include "ZTBatchSession_p.h"
#include "ZTDiagnostics_p.h"

namespace {

constexpr ZTDiagnostics diagnostics("src\\ZTBatchSession");

/// The manager that receives the commands; there must be one.
ZTBatchManager& Manager(int line = __builtin_LINE())
{
    ZTBatchManager* manager = ZTBatchManager::Instance();
    diagnostics.Assert(manager, line);
    return *manager;
}

} // namespace

ZTBatchManager::ZTBatchSession::ZTBatchSession(const QString& id, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    d->SetId(id);
}

ZTBatchManager::ZTBatchSession::~ZTBatchSession()
{
    // A slot of destroyed() may release the manager, which must not delete this object again as its child.
    setParent(nullptr);
}

bool ZTBatchManager::ZTBatchSession::Process(const QString& document)
{
    diagnostics.Assert(d != nullptr);
    Manager().Process(d->id, document);
    return true;
}

void ZTBatchManager::ZTBatchSession::Pause()
{
    diagnostics.Assert(d != nullptr);
    Manager().Pause(d->id);
}

void ZTBatchManager::ZTBatchSession::Resume()
{
    diagnostics.Assert(d != nullptr);
    Manager().Resume(d->id);
}

void ZTBatchManager::ZTBatchSession::Cancel()
{
    diagnostics.Assert(d != nullptr);
    Manager().Cancel(d->id);
}

void ZTBatchManager::ZTBatchSession::InputRespond(InputPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    Manager().InputRespond(d->id, policy, flag);
}

void ZTBatchManager::ZTBatchSession::OutputRespond(OutputPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    Manager().OutputRespond(d->id, policy, flag);
}

void ZTBatchManager::ZTBatchSession::ProcessingRespond(ProcessingPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    Manager().ProcessingRespond(d->id, policy, flag);
}

void ZTBatchManager::ZTBatchSession::NamingRespond(NamingPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    Manager().NamingRespond(d->id, policy, flag);
}

void ZTBatchManager::ZTBatchSession::WriteToFormatRespond(WriteToFormatPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    Manager().WriteToFormatRespond(d->id, policy, flag);
}

void ZTBatchManager::ZTBatchSession::SessionPaused()
{
    Q_EMIT Paused();
}

void ZTBatchManager::ZTBatchSession::SessionResumed()
{
    Q_EMIT Resumed();
}

void ZTBatchManager::ZTBatchSession::SessionCancelled()
{
    Q_EMIT Cancelled();
}

void ZTBatchManager::ZTBatchSession::SessionAborted()
{
    Q_EMIT Aborted();
}

void ZTBatchManager::ZTBatchSession::SessionFinished()
{
    Q_EMIT Finished();
}

void ZTBatchManager::ZTBatchSession::SessionProgress(int value)
{
    Q_EMIT Progress(value);
}

void ZTBatchManager::ZTBatchSession::SessionFileInProgress(const QString& inputFileName)
{
    Q_EMIT FileInProgress(inputFileName);
}

void ZTBatchManager::ZTBatchSession::SessionProgress(const QString& inputFileName, const QString& outputFileName)
{
    Q_EMIT FileProcessed(inputFileName, outputFileName);
}

void ZTBatchManager::ZTBatchSession::SessionError(const QString& inputFileName, const QString& outputFileName,
                                                  int action, int errorCode)
{
    Q_EMIT ProcessError(inputFileName, outputFileName, action, errorCode);
}

void ZTBatchManager::ZTBatchSession::SessionLog(const QString& log)
{
    Q_EMIT LogMessage(log);
}

void ZTBatchManager::ZTBatchSession::SessionProgressRange(int minimum, int maximum)
{
    Q_EMIT ProgressRange(minimum, maximum);
}

void ZTBatchManager::ZTBatchSession::SessionInputQuestion()
{
    Q_EMIT InputQuestion();
}

void ZTBatchManager::ZTBatchSession::SessionOutputQuestion()
{
    Q_EMIT OutputQuestion();
}

void ZTBatchManager::ZTBatchSession::SessionProcessingQuestion()
{
    Q_EMIT ProcessingQuestion();
}

void ZTBatchManager::ZTBatchSession::SessionNamingQuestion()
{
    Q_EMIT NamingQuestion();
}

void ZTBatchManager::ZTBatchSession::SessionWriteToFormatQuestion()
{
    Q_EMIT WriteToFormatQuestion();
}
