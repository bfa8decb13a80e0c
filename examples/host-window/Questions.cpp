// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Questions.h"

#include <ZTBatchMessage.h>

#include <QCheckBox>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>

using Manager = ZTBatchManager;
using Session = ZTBatchManager::ZTBatchSession;

Questions::Questions(Session& session, QWidget& window)
    : QObject(&session)
    , session(session)
    , window(window)
{
    connect(&session, &Session::ProcessError, this,
            [this](const QString& input, const QString& output, int, int errorCode) {
                const QString file = QDir::toNativeSeparators(output.isEmpty() ? input : output);
                problem = file + u'\n' + ZTBatchMessage::ErrorDescription(ZTBatchMessage::Error(errorCode));
            });
    const QPair<QString, int> skip(tr("Skip"), 0); // the value of "skip" in every policy
    connect(&session, &Session::InputQuestion, this, [this, skip] {
        Ask({skip},
            [this](int policy, bool forAll) { this->session.InputRespond(Manager::InputPolicy(policy), forAll); });
    });
    connect(&session, &Session::OutputQuestion, this, [this, skip] {
        Ask({skip},
            [this](int policy, bool forAll) { this->session.OutputRespond(Manager::OutputPolicy(policy), forAll); });
    });
    connect(&session, &Session::ProcessingQuestion, this, [this, skip] {
        Ask({skip}, [this](int policy, bool forAll) {
            this->session.ProcessingRespond(Manager::ProcessingPolicy(policy), forAll);
        });
    });
    connect(&session, &Session::NamingQuestion, this, [this, skip] {
        Ask({skip, {tr("Overwrite"), Manager::NamingOverwrite}, {tr("Rename"), Manager::NamingRename}},
            [this](int policy, bool forAll) { this->session.NamingRespond(Manager::NamingPolicy(policy), forAll); });
    });
    connect(&session, &Session::WriteToFormatQuestion, this, [this, skip] {
        Ask({skip, {tr("Nearest format"), Manager::WriteToFormatNearest}}, [this](int policy, bool forAll) {
            this->session.WriteToFormatRespond(Manager::WriteToFormatPolicy(policy), forAll);
        });
    });
}

void Questions::Ask(const Choices& choices, const std::function<void(int policy, bool forAll)>& respond)
{
    auto* const box =
        new QMessageBox(QMessageBox::Question, window.window()->windowTitle(), problem, QMessageBox::Cancel, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setCheckBox(new QCheckBox(tr("Do the same for the rest of the run")));
    for (const auto& choice : choices) {
        QPushButton* const button = box->addButton(choice.first, QMessageBox::AcceptRole);
        connect(button, &QPushButton::clicked, this,
                [box, respond, policy = choice.second] { respond(policy, box->checkBox()->isChecked()); });
    }
    connect(box, &QMessageBox::rejected, this, [this] { session.Cancel(); });
    // The run may end without an answer.
    connect(this, &QObject::destroyed, box, &QObject::deleteLater);
    box->open();
}
