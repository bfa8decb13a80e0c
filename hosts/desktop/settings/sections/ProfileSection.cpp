// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProfileSection.h"

#include "hosts/common/Language.h"
#include "hosts/common/ProfileFile.h"
#include "hosts/common/RequestError.h"
#include "hosts/desktop/settings/parameters/ParameterField.h"

#include <QGridLayout>
#include <QPushButton>

using BatchHost::Messages;

namespace BatchDesktop {

ProfileSection::ProfileSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : SettingsSection(Messages::tr("Co&lour profile"), QStringLiteral("profile"), job, choosers, parent)
{
    auto* const content = new QWidget(this);
    auto* const choose = new QPushButton(Messages::tr("Choose..."), content);
    remove = new QPushButton(Messages::tr("Remove"), content);
    problem = new ProblemLabel(content);
    auto* const layout = new QGridLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(choose, 0, 0);
    layout->addWidget(remove, 0, 1);
    layout->addWidget(problem, 1, 0, 1, 2);
    choose->setObjectName(QStringLiteral("profile.choose"));
    choose->setAccessibleName(Messages::tr("Choose the file of a colour profile"));
    remove->setObjectName(QStringLiteral("profile.remove"));
    remove->setAccessibleName(Messages::tr("Remove the colour profile"));
    problem->setObjectName(QStringLiteral("profile.problem"));
    connect(choose, &QPushButton::clicked, this, [this] { Choose(); });
    connect(remove, &QPushButton::clicked, this, [this] { Set({}); });
    SetContent(content);
}

void ProfileSection::Refresh()
{
    const QByteArray& profile = Now().profile;
    remove->setEnabled(!profile.isEmpty());
    problem->Show({});
    const QString name = BatchHost::NameOfProfile(profile);
    const QString stated =
        name.isEmpty() ? Messages::tr("A profile of %1 bytes without a name").arg(profile.size()) : name;
    ShowState(profile.isEmpty() ? Messages::tr("The profile of each input") : stated, {});
}

void ProfileSection::Choose()
{
    const QString path = Dialogs().file(this, Messages::tr("Colour profile"), {});
    if (path.isEmpty()) {
        return;
    }
    try {
        Set(BatchHost::ReadProfile(path));
    } catch (const BatchHost::RequestError& error) {
        problem->Show(error.text);
    }
}

void ProfileSection::Set(const QByteArray& profile)
{
    Settings wanted = Now();
    wanted.profile = profile;
    problem->Show({});
    Job().Change(wanted, Title());
}

} // namespace BatchDesktop
