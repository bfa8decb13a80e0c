// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ZTBatchSession.h>

#include <QPair>
#include <QString>
#include <QVector>

#include <functional>

/// Shows the questions of a session in a dialog, and sends the answers. Belongs to the session.
class Questions : public QObject
{
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs.
    Questions(ZTBatchManager::ZTBatchSession& session, QWidget& window);

private:
    using Choices = QVector<QPair<QString, int>>; ///< the text of a button, and the value of the policy

    void Ask(const Choices& choices, const std::function<void(int policy, bool forAll)>& respond);

    ZTBatchManager::ZTBatchSession& session;
    QWidget& window;
    QString problem;
};
