// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Settings.h"

#include "ZTBatchDocument.h"

#include <QObject>
#include <QUndoStack>

#include <functional>

namespace BatchDesktop {

/// The job that the window shows, and its history. Everything that a user changes goes through here, so that it can be
/// undone.
class EditedJob : public QObject
{
    Q_OBJECT

public:
    explicit EditedJob(QObject* parent = nullptr);
    ~EditedJob() override;

    /// To be read, and for its models; changes go through the functions below.
    ZTBatchDocument& Document() { return document; }
    const ZTBatchDocument& Document() const { return document; }

    QUndoStack& History() { return history; }

    const Settings& CurrentSettings() const { return settings; }

    /// Makes `wanted` the settings, as a step of the history that is named `step`, such as "Size". Changes that one
    /// control makes one after the other are one step, until EndStep(); an empty `control` makes a step each time.
    void Change(const Settings& wanted, const QString& step, const QString& control = QString());

    /// The next change is a step of its own, even by the same control.
    void EndStep() { openControl.clear(); }

    /// Lets `load` replace the job. That is no step: the history begins anew. Passes on what `load` throws.
    void Replace(const std::function<void(ZTBatchDocument&)>& load);

Q_SIGNALS:
    /// Some of the settings have changed.
    void SettingsChanged();

    /// The whole job is another one.
    void Replaced();

private:
    class Step;

    void Apply(const Settings& wanted);

    ZTBatchDocument document;
    QUndoStack history;
    Settings settings;
    QString openControl; ///< whose changes still belong to the last step
};

} // namespace BatchDesktop
