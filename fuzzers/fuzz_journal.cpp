// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Reads a file as a journal, writes what it says as a new journal, and cuts that off anywhere, as a kill does. A
// journal that was cut off says nothing that the whole one does not say, and it can be continued.

#include "Require.h"

#include "job/journal/RunJournal.h"

#include <QTemporaryDir>

#include <cstdint>

using namespace BatchJob;

namespace {

using Result = JournalState::Result;

bool AreEqual(const Result& a, const Result& b)
{
    return a.kind == b.kind && a.output == b.output && a.errorCode == b.errorCode && a.reason == b.reason &&
           a.warnings == b.warnings && a.facts == b.facts && a.finished == b.finished;
}

bool AreEqual(const JournalState::Beginning& a, const JournalState::Beginning& b)
{
    return a.output == b.output && a.before == b.before;
}

template<typename Value>
void RequireEqual(const QHash<int, Value>& a, const QHash<int, Value>& b)
{
    Require(a.size() == b.size());
    for (auto it = a.begin(); it != a.end(); ++it) {
        const auto found = b.find(it.key());
        Require(found != b.end() && AreEqual(*found, *it));
    }
}

void RequireSense(const JournalState& state)
{
    for (auto it = state.results.begin(); it != state.results.end(); ++it) {
        Require(it.key() >= 0);
    }
    for (auto it = state.begun.begin(); it != state.begun.end(); ++it) {
        Require(it.key() >= 0 && !state.results.contains(it.key()));
    }
    for (auto it = state.losses.begin(); it != state.losses.end(); ++it) {
        Require(it.key() >= 0 && *it > 0 && !state.results.contains(it.key()));
    }
    for (auto it = state.answers.begin(); it != state.answers.end(); ++it) {
        Require(it.key() >= 0 && it.key() < int(state.policies.size()));
    }
}

QByteArray Content(const QString& path)
{
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void SetContent(const QString& path, const QByteArray& content)
{
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    Require(file.write(content) == content.size());
}

void WriteJournal(const QString& path, const JournalState& state)
{
    QFile::remove(path);
    RunJournal journal;
    Require(journal.Create(path, state.document, state.policies));
    for (auto it = state.answers.begin(); it != state.answers.end(); ++it) {
        journal.Answer(it.key(), *it);
    }
    for (auto it = state.begun.begin(); it != state.begun.end(); ++it) {
        journal.Begin(it.key(), *it);
    }
    QHash<int, int> losses = state.losses;
    while (!losses.isEmpty()) {
        const QList<int> lost = losses.keys();
        journal.Lose(lost.toVector());
        for (const int index : lost) {
            if (--losses[index] == 0) {
                losses.remove(index);
            }
        }
    }
    for (auto it = state.results.begin(); it != state.results.end(); ++it) {
        journal.Settle(it.key(), *it);
    }
}

void RequireEqual(const JournalState& a, const JournalState& b)
{
    Require(a.document == b.document && a.policies == b.policies && a.answers == b.answers);
    Require(a.losses == b.losses);
    RequireEqual(a.results, b.results);
    RequireEqual(a.begun, b.begun);
}

/// Cuts the journal of `state`, which is at `path`, and lets another process go on with it.
void RequireContinued(const QString& path, const JournalState& state, int place)
{
    const QByteArray content = Content(path);
    const int headerEnd = content.indexOf('\n') + 1;
    const int cut = place % (content.size() + 1);
    SetContent(path, content.left(cut));
    const std::optional<JournalState> begun = ReadJournal(path);
    Require(HasJournalBegun(path) == (cut >= headerEnd));
    Require(begun.has_value() == (cut >= headerEnd));
    if (!begun) {
        return;
    }
    for (auto it = begun->results.begin(); it != begun->results.end(); ++it) {
        Require(state.results.contains(it.key()) && AreEqual(state.results.value(it.key()), *it));
    }

    constexpr int next = 1'000'000'000;
    const Result result{Result::Kind::Failed, QStringLiteral("/a/b.jpg"), 2, QStringLiteral("it is damaged")};
    {
        RunJournal journal;
        Require(journal.Open(path));
        journal.Settle(next, result);
    }
    const std::optional<JournalState> continued = ReadJournal(path);
    Require(continued.has_value());
    Require(AreEqual(continued->results.value(next), result));
    for (auto it = begun->results.begin(); it != begun->results.end(); ++it) {
        Require(it.key() == next || AreEqual(continued->results.value(it.key()), *it));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    SetContent(path, content);
    const std::optional<JournalState> state = ReadJournal(path);
    Require(!state || HasJournalBegun(path));
    if (!state) {
        return 0;
    }
    RequireSense(*state);

    // A line may hold more than the journal writes. After one round trip it does not.
    WriteJournal(path, *state);
    const std::optional<JournalState> once = ReadJournal(path);
    Require(once.has_value() && once->results.size() == state->results.size());
    Require(once->losses == state->losses && once->answers == state->answers && once->policies == state->policies);
    WriteJournal(path, *once);
    const std::optional<JournalState> twice = ReadJournal(path);
    Require(twice.has_value());
    RequireEqual(*once, *twice);

    RequireContinued(path, *twice, static_cast<int>(qHashBits(data, size) & 0xFFFFFFU));
    return 0;
}
