// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PolicyPanel.h"

#include <ZTBatchManager.h>

#include <QComboBox>
#include <QFormLayout>

namespace {

/// `choices` are in the order of the policy's values.
template<typename Policy>
void AddRow(QFormLayout& form, const QString& label, const QStringList& choices, Policy current,
            void (ZTBatchManager::*set)(Policy))
{
    auto* const box = new QComboBox;
    box->setObjectName(label);
    box->addItems(choices);
    box->setCurrentIndex(current);
    ZTBatchManager* const manager = ZTBatchManager::Instance();
    QObject::connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), manager,
                     [manager, set](int index) { (manager->*set)(Policy(index)); });
    form.addRow(label, box);
}

} // namespace

PolicyPanel::PolicyPanel()
{
    using Manager = ZTBatchManager;
    const Manager& manager = *Manager::Instance();
    const QString skip = tr("Skip");
    const QString stop = tr("Stop");
    const QString ask = tr("Ask");
    auto* const form = new QFormLayout(this);
    AddRow(*form, tr("Unreadable pictures"), {skip, stop, ask}, manager.GetInputPolicy(), &Manager::SetInputPolicy);
    AddRow(*form, tr("Results that cannot be written"), {skip, stop, ask}, manager.GetOutputPolicy(),
           &Manager::SetOutputPolicy);
    AddRow(*form, tr("Effects that fail"), {skip, stop, ask}, manager.GetProcessingPolicy(),
           &Manager::SetProcessingPolicy);
    AddRow(*form, tr("Names that exist"), {skip, tr("Overwrite"), tr("Rename"), ask}, manager.GetNamingPolicy(),
           &Manager::SetNamingPolicy);
    AddRow(*form, tr("Formats that do not fit"), {skip, stop, ask, tr("Nearest format")},
           manager.GetWriteToFormatPolicy(), &Manager::SetWriteToFormatPolicy);
}
