// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SeveralPresetsDialog.h"

#include "hosts/common/Language.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using BatchHost::Messages;

namespace BatchDesktop {

SeveralPresetsDialog::SeveralPresetsDialog(const QStringList& names, const QString& folder, QWidget* parent)
    : QDialog(parent)
    , list(new QListWidget(this))
    , start(new QPushButton(Messages::tr("Start"), this))
{
    setObjectName(QStringLiteral("severalPresets"));
    setWindowTitle(Messages::tr("Several presets"));
    auto* const explanation = new QLabel(
        Messages::tr(
            "Each picture gets a result of each preset. They go to folders with the names of the presets, in %1.")
            .arg(QDir::toNativeSeparators(folder)),
        this);
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    list->setObjectName(QStringLiteral("presetList"));
    list->setAccessibleName(Messages::tr("Several presets"));
    for (const QString& name : names) {
        auto* const item = new QListWidgetItem(name, list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    list->setCurrentRow(0);
    start->setObjectName(QStringLiteral("startSeveral"));
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(start, QDialogButtonBox::AcceptRole);
    QPushButton* const cancel = buttons->addButton(Messages::tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancelSeveral"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(explanation);
    column->addWidget(list);
    column->addWidget(buttons);
    connect(list, &QListWidget::itemChanged, this, &SeveralPresetsDialog::UpdateStart);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    UpdateStart();
}

QStringList SeveralPresetsDialog::Chosen() const
{
    QStringList names;
    for (int i = 0; i < list->count(); ++i) {
        if (list->item(i)->checkState() == Qt::Checked) {
            names.append(list->item(i)->text());
        }
    }
    return names;
}

void SeveralPresetsDialog::Choose(const QStringList& wanted)
{
    for (int i = 0; i < list->count(); ++i) {
        QListWidgetItem* const item = list->item(i);
        item->setCheckState(wanted.contains(item->text()) ? Qt::Checked : Qt::Unchecked);
    }
}

void SeveralPresetsDialog::UpdateStart()
{
    start->setEnabled(Chosen().size() > 1);
}

} // namespace BatchDesktop
