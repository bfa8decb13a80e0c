// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunPriority.h"

#include "hosts/common/Language.h"
#include "server/protocol/ServerLimits.h"

#include <QSettings>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

const QString key = QStringLiteral("RunsInBackground");

// The server of a run inherits the environment.
void Choose(bool isInBackground)
{
    BatchProtocol::normalPriorityLimit.Set(isInBackground ? 0 : 1);
}

} // namespace

RunPriority::RunPriority(const QString& file, QObject* parent)
    : action(new QAction(Messages::tr("Let other programs go &first"), parent))
{
    const bool byDefault = BatchProtocol::ServerLimits::FromEnvironment().isInBackground;
    action->setObjectName(QStringLiteral("backgroundAction"));
    action->setCheckable(true);
    action->setChecked(QSettings(file, QSettings::IniFormat).value(key, byDefault).toBool());
    Choose(action->isChecked());
    QObject::connect(action, &QAction::toggled, action, [file](bool isInBackground) {
        Choose(isInBackground);
        QSettings(file, QSettings::IniFormat).setValue(key, isInBackground);
    });
}

} // namespace BatchDesktop
