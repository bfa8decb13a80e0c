// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "LineReader.h"

#include "hosts/common/options/PolicyOptions.h"

#include <QObject>

#include <functional>
#include <optional>

namespace BatchCli {

/// The answer to a question.
struct UserAnswer
{
    std::optional<int> value; ///< a value of the policy; nothing to stop the run
    bool isForTheRest = false;
};

/// Reads the answer in `line` to a question about `kind`: a word of the policy or "stop", or the beginning of one, and
/// optionally "all". Nothing when it is not an answer.
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
    void ReadLine(const QString& line);

    LineReader reader;
    BatchJob::PolicyKind kind = BatchJob::PolicyKind::Input;
};

} // namespace BatchCli
