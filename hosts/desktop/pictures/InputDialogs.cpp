// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputModule.h"

#include "hosts/common/Language.h"
#include "job/formats/FormatCatalog.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

void Show(QFileDialog* dialog, const InputDialogs::Use& use)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(false);
    QObject::connect(dialog, &QFileDialog::filesSelected, dialog, use);
    dialog->show();
}

QString PictureWildcards()
{
    QStringList wildcards;
    for (const QString& extension : BatchJob::ReadableExtensions()) {
        wildcards.append(QStringLiteral("*.") + extension);
    }
    return wildcards.join(QLatin1Char(' '));
}

} // namespace

InputDialogs InputDialogs::OfDesktop()
{
    InputDialogs dialogs;
    dialogs.chooseFiles = [](QWidget* parent, const Use& use) {
        auto* const dialog = new QFileDialog(parent, Messages::tr("Add files"));
        dialog->setFileMode(QFileDialog::ExistingFiles);
        dialog->setNameFilters({Messages::tr("Pictures (%1)").arg(PictureWildcards()), Messages::tr("All files (*)")});
        Show(dialog, use);
    };
    dialogs.chooseFolder = [](QWidget* parent, const Use& use) {
        auto* const dialog = new QFileDialog(parent, Messages::tr("Add folder"));
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        Show(dialog, use);
    };
    dialogs.show = [](const QStringList& paths) {
        QStringList folders;
        for (const QString& path : paths) {
            folders.append(QFileInfo(path).absolutePath());
        }
        folders.removeDuplicates();
        constexpr int mostWindows = 4;
        for (const QString& folder : folders.mid(0, mostWindows)) {
            QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
        }
    };
    return dialogs;
}

} // namespace BatchDesktop
