// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Writes the lines of the server's log that hosts read back, with texts that look like parts of them. What is written
// is read as it was, and a line that is read is written as it was.

#include "Fields.h"
#include "Require.h"

#include "job/plan/FactsLine.h"
#include "job/plan/TroubleLine.h"
#include "job/plan/WarningLine.h"

#include <cstdint>

using namespace BatchJob;

namespace {

constexpr int actionCount = int(Action::WrittenInAnotherFormat) + 1;
constexpr int warningKinds = int(WarningKind::Decoder) + 1;

void WriteAndRead(const QString& file, const QString& text, Action action, PolicyKind policy, WarningKind kind)
{
    if (action <= Action::RunStopped) {
        const TroubleLine trouble{file, text, action, policy};
        const std::optional<TroubleLine> read = TroubleLine::Parse(trouble.Text(), file, action);
        Require(read && read->file == file && read->reason == text && read->action == action);
        Require(read->policy == policy);
    } else {
        const ResultLine result{file, text, action};
        const std::optional<ResultLine> read = ResultLine::Parse(result.Text(), file, action);
        Require(read && read->file == file && read->result == text && read->action == action);
    }
    const WarningLine warning{file, {kind, text}};
    const std::optional<WarningLine> readWarning = WarningLine::Parse(warning.Text(), file);
    Require(readWarning && readWarning->file == file && readWarning->warning == warning.warning);
    Require(!FactsLine::Parse(warning.Text(), file));
    const std::optional<RefusalLine> refusal = RefusalLine::Parse(RefusalLine{text}.Text());
    Require(refusal && refusal->message == text);
    Require(WarningKindOf(WarningWord(kind)) == kind);
}

void ReadAndWrite(const QString& line, const QString& file)
{
    for (int i = 0; i < actionCount; ++i) {
        const std::optional<TroubleLine> trouble = TroubleLine::Parse(line, file, Action(i));
        Require(!trouble || trouble->Text() == line);
        const std::optional<ResultLine> result = ResultLine::Parse(line, file, Action(i));
        Require(!result || result->Text() == line);
        Require(!trouble || !result);
    }
    const std::optional<WarningLine> warning = WarningLine::Parse(line, file);
    // The word of an unknown kind is not kept.
    Require(!warning || warning->warning.kind == WarningKind::Decoder || warning->Text() == line);
    const std::optional<FactsLine> facts = FactsLine::Parse(line, file);
    Require(!facts || (facts->Text() == line && PossibleFacts(facts->facts) == facts->facts));
    Require(!facts || !warning);
    const std::optional<RefusalLine> refusal = RefusalLine::Parse(line);
    Require(!refusal || refusal->Text() == line);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fields fields(data, size);
    const auto action = Action(fields.Choice(actionCount));
    const auto policy = PolicyKind(fields.Choice(policyCount));
    const auto kind = WarningKind(fields.Choice(warningKinds));
    const QString file = fields.Text();
    const QString text = fields.Text();
    WriteAndRead(file, text, action, policy, kind);
    ReadAndWrite(text, file);
    ReadAndWrite(file + text, file);
    return 0;
}
