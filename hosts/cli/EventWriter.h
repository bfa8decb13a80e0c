#pragma once

#include "RunObserver.h"

class QJsonObject;

namespace BatchCli {

/// The events of a run as JSON on standard output, one object a line. docs/cli-events.md describes them.
class EventWriter : public RunObserver
{
public:
    void OnStart(const RunInputs& inputs, const QString& outputFolder) override;
    void OnEarlierResult(const FileResult& result) override;
    void OnInWork(const QStringList& names, const QString& begun) override;
    void OnResult(const FileResult& result, int done, int files) override;
    void OnNote(const QString& input, const QString& output, const QString& what, const QString& text) override;
    void OnLog(const QString& text) override;
    void OnQuestion(PolicyKind kind, const QString& input, const QString& reason) override;
    void OnAnswer(PolicyKind kind, const QString& word, bool isForTheRest) override;
    void OnServerLost(const QStringList& inWork, bool goesOn) override;
    void OnCancelling() override;
    void OnEnd(const RunEnd& end) override;
};

} // namespace BatchCli
