// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EditedJob.h"

#include "hosts/common/JobDefaults.h"

#include <QUndoCommand>

namespace BatchDesktop {

class EditedJob::Step : public QUndoCommand
{
public:
    Step(EditedJob& job, const Settings& wanted, const QString& text, const QString& control)
        : QUndoCommand(text)
        , job(job)
        , before(job.settings)
        , after(wanted)
        , control(control)
    {
    }

    void undo() override
    {
        job.EndStep();
        job.Apply(before);
    }

    void redo() override { job.Apply(after); }

    int id() const override { return control.isEmpty() ? -1 : 1; }

    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const Step&>(*other); // Only steps have this id.
        if (next.control != control || job.openControl != control) {
            return false;
        }
        after = next.after;
        setObsolete(after == before);
        return true;
    }

private:
    EditedJob& job;
    const Settings before;
    Settings after;
    const QString control;
};

EditedJob::EditedJob(QObject* parent)
    : QObject(parent)
{
    BatchHost::SetJobDefaults(document);
    settings = Settings::Of(document);
}

EditedJob::~EditedJob() = default;

void EditedJob::Change(const Settings& wanted, const QString& step, const QString& control)
{
    if (wanted == settings) {
        return;
    }
    history.push(new Step(*this, wanted, step, control));
    openControl = control;
}

void EditedJob::Replace(const std::function<void(ZTBatchDocument&)>& load)
{
    load(document);
    history.clear();
    openControl.clear();
    settings = Settings::Of(document, settings.policies);
    Q_EMIT Replaced();
    Q_EMIT SettingsChanged();
}

void EditedJob::Apply(const Settings& wanted)
{
    wanted.ApplyTo(document);
    settings = wanted;
    Q_EMIT SettingsChanged();
}

} // namespace BatchDesktop
