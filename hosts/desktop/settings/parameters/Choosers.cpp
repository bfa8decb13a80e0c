// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Choosers.h"

#include <QColorDialog>
#include <QFileDialog>

namespace BatchDesktop {

namespace {

void ShowColourDialog(QWidget* parent, const QString& title, const QColor& current,
                      const std::function<void(const QColor&)>& chosen)
{
    auto* const dialog = new QColorDialog(current, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    dialog->setWindowTitle(title);
    QObject::connect(dialog, &QColorDialog::colorSelected, parent, chosen);
    dialog->show();
}

} // namespace

Choosers Choosers::Dialogs()
{
    return {
        [](QWidget* parent, const QString& title, const QString& current) {
            return QFileDialog::getOpenFileName(parent, title, current);
        },
        [](QWidget* parent, const QString& title, const QString& current) {
            return QFileDialog::getExistingDirectory(parent, title, current);
        },
        ShowColourDialog,
    };
}

} // namespace BatchDesktop
