#pragma once

#include "LineReader.h"

#include "hosts/cli/options/PolicyOptions.h"

#include <QObject>

#include <functional>
#include <optional>

namespace BatchCli {

/// What a user answers to a question.
struct UserAnswer
{
    std::optional<int> value; ///< a value of the policy's; nothing means that the run is to be stopped
    bool isForTheRest = false;
};

/// Understands `line`, an answer to a question about `kind`: a word of the policy or the beginning of one, "stop", and
/// "all" behind it. Nothing when it is none.
std::optional<UserAnswer> ReadAnswer(BatchJob::PolicyKind kind, const QString& line);

/// Asks the user at the terminal.
class Questioner : public QObject
{
    Q_OBJECT

public:
    explicit Questioner(QObject* parent = nullptr);

    void Ask(BatchJob::PolicyKind kind, const QString& input, const QString& reason);

Q_SIGNALS:
    void Answered(const UserAnswer& answer);

private:
    void Prompt();
    void Take(const QString& line);

    LineReader reader;
    BatchJob::PolicyKind kind = BatchJob::PolicyKind::Input;
};

} // namespace BatchCli
