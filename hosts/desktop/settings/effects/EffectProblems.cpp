// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectProblems.h"

#include "job/effects/EffectCatalog.h"
#include "job/values/Phrase.h"

#include <QThread>

using namespace BatchJob;

namespace BatchDesktop {

namespace {

QString ProblemOf(const Settings::Effect& effect)
{
    if (!effect.isEnabled) {
        return {};
    }
    const EffectSchema* const schema = FindEffect(effect.name);
    return schema ? CheckEffect(*schema, effect.parameters).error
                  : Phrase::English("The effect \"%1\" does not exist").arg(effect.name);
}

} // namespace

EffectProblems::EffectProblems(QObject* parent)
    : QObject(parent)
{
    // A slider that moves must not open a file at each step.
    constexpr int afterLastChange = 150;
    delay.setSingleShot(true);
    delay.setInterval(afterLastChange);
    connect(&delay, &QTimer::timeout, this, &EffectProblems::Start);
}

EffectProblems::~EffectProblems()
{
    if (thread) {
        thread->wait();
    }
}

void EffectProblems::Check(const QVector<Settings::Effect>& effects)
{
    wanted = effects;
    isWanted = true;
    delay.start();
}

void EffectProblems::Start()
{
    if (thread) {
        return; // Its end starts the next one.
    }
    isWanted = false;
    const auto problems = std::make_shared<QVector<QString>>();
    thread.reset(QThread::create([effects = wanted, problems] {
        for (const Settings::Effect& effect : effects) {
            problems->append(ProblemOf(effect));
        }
    }));
    connect(thread.get(), &QThread::finished, this, [this, problems] { Finish(*problems); });
    thread->start();
}

void EffectProblems::Finish(const QVector<QString>& problems)
{
    thread->wait();
    thread.release()->deleteLater();
    if (!isWanted) {
        Q_EMIT Checked(problems);
    } else if (!delay.isActive()) {
        Start();
    }
}

} // namespace BatchDesktop
