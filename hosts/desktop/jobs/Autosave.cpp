// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Autosave.h"

#include "hosts/desktop/job/EditedJob.h"

#include "ZTBatchInputModel.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

constexpr std::chrono::milliseconds pause = 500ms; ///< for changes that follow each other

} // namespace

Autosave::Autosave(const EditedJob& job, const QString& folder, std::function<EditState()> describe)
    : job(job)
    , folder(folder)
    , files(folder)
    , describe(std::move(describe))
{
    delay.setSingleShot(true);
    connect(&delay, &QTimer::timeout, this, &Autosave::Save);
    connect(&job, &EditedJob::SettingsChanged, this, &Autosave::NoteChange);
    connect(&job, &EditedJob::Replaced, this, &Autosave::NoteInputs);
    const ZTBatchInputModel* const model = job.Document().GetInputModel();
    connect(model, &QAbstractItemModel::rowsInserted, this, &Autosave::NoteInputs);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &Autosave::NoteInputs);
}

Autosave::~Autosave()
{
    Finish();
}

void Autosave::NoteChange()
{
    isChanged = true;
    isClosed = false; // The window has stayed open.
    if (!delay.isActive()) {
        delay.start(pause);
    }
}

void Autosave::NoteInputs()
{
    areInputsChanged = true;
    inputs.reset();
    NoteChange();
}

void Autosave::Close()
{
    isClosed = true;
    isChanged = true;
    Finish();
}

bool Autosave::IsDone() const
{
    return !isChanged && (!work || !work->IsBusy());
}

void Autosave::Save()
{
    if (!work) {
        work = std::make_unique<BackgroundWork>();
        connect(work.get(), &BackgroundWork::Done, this, &Autosave::OnDone);
    }
    if (work->IsBusy()) {
        delay.start(pause);
    } else if (!TakeInputs(8ms)) {
        delay.start(0ms);
    } else if (isChanged) {
        isWritten = std::make_shared<bool>(false);
        work->Start(
            [write = Work(), isWritten = isWritten](const BackgroundWork::Cancelled&) { *isWritten = write(); });
    }
}

void Autosave::OnDone()
{
    if (!*isWritten) {
        areInputsChanged = true; // Which of the files is missing does not matter.
        Q_EMIT Failed();
    } else if (IsDone()) {
        Q_EMIT Saved();
    }
}

/// Copies the inputs if they have changed, for at most about `longest`. Whether they are complete.
bool Autosave::TakeInputs(std::chrono::milliseconds longest)
{
    if (!areInputsChanged) {
        return true;
    }
    if (!inputs) {
        inputs = std::make_shared<InputSnapshot>();
    }
    areInputsChanged = !inputs->Continue(*job.Document().GetInputModel(), longest);
    return !areInputsChanged;
}

/// What is to be written now, as a function for any thread that tells whether it could be.
std::function<bool()> Autosave::Work()
{
    EditState state = describe();
    state.settings = job.CurrentSettings();
    state.name = job.Document().GetDocumentName();
    state.isClosed = isClosed;
    isChanged = false;
    return [files = files, state, inputs = std::exchange(inputs, nullptr)] {
        bool areInputsWritten = true;
        if (inputs) {
            const InputSnapshot taken = std::move(*inputs); // To free that many texts takes its time, too.
            areInputsWritten = files.Write(taken);
        }
        return files.Write(state) && areInputsWritten;
    };
}

void Autosave::Finish()
{
    delay.stop();
    work.reset(); // It waits for what is being written.
    if (isChanged) {
        TakeInputs(1h);
        Work()();
    }
}

} // namespace BatchDesktop
