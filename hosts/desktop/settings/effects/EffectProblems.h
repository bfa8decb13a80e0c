// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/Settings.h"

#include <QObject>
#include <QTimer>

#include <memory>

class QThread;

namespace BatchDesktop {

/// Checks effects on a thread, because the check opens the files that they name: a table of colours is large, and a
/// disk may be slow.
class EffectProblems : public QObject
{
    Q_OBJECT

public:
    explicit EffectProblems(QObject* parent);

    /// Waits for a check that is going on.
    ~EffectProblems() override;

    /// Checks `effects` soon; the newest wins.
    void Check(const QVector<Settings::Effect>& effects);

Q_SIGNALS:
    /// What is wrong with each of the effects, in English; empty for those that are right or switched off.
    void Checked(const QVector<QString>& problems);

private:
    using Effects = QVector<Settings::Effect>;

    void Start();
    void Finish(const QVector<QString>& problems);

    QTimer delay;
    Effects wanted;
    bool isWanted = false;
    std::unique_ptr<QThread> thread;
};

} // namespace BatchDesktop
