// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobDialogs.h"

#include "hosts/common/Language.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

QString JobFilter()
{
    return Messages::tr("Batch jobs (%1)").arg(QStringLiteral("*.vbatch.xml *.xml"));
}

JobDialogs::Answer AskForChanges(QWidget* parent, const QString& name)
{
    QMessageBox box(QMessageBox::Question, Messages::tr("Unsaved changes"),
                    Messages::tr("The job \"%1\" has changes that are not saved.").arg(name), QMessageBox::NoButton,
                    parent);
    const QAbstractButton* const save = box.addButton(Messages::tr("&Save"), QMessageBox::AcceptRole);
    const QAbstractButton* const discard =
        box.addButton(Messages::tr("&Discard changes"), QMessageBox::DestructiveRole);
    QPushButton* const cancel = box.addButton(Messages::tr("&Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(static_cast<QAbstractButton*>(cancel));
    box.exec();
    if (box.clickedButton() == save) {
        return JobDialogs::Answer::Save;
    }
    return box.clickedButton() == discard ? JobDialogs::Answer::Discard : JobDialogs::Answer::Cancel;
}

} // namespace

JobDialogs JobDialogs::OfDesktop()
{
    return {
        [](QWidget* parent, const QString& title, const QString& folder) {
            return QFileDialog::getOpenFileName(parent, title, folder, JobFilter());
        },
        [](QWidget* parent, const QString& title, const QString& suggested) {
            return QFileDialog::getSaveFileName(parent, title, suggested, JobFilter());
        },
        AskForChanges,
    };
}

} // namespace BatchDesktop
