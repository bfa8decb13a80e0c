// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SettingsSection.h"

#include "hosts/common/Language.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace BatchDesktop {

SettingsSection::SettingsSection(const QString& shownTitle, const QString& wantedId, EditedJob& editedJob,
                                 const Choosers& dialogs, QWidget* parent)
    : QWidget(parent)
    , job(editedJob)
    , choosers(dialogs)
    , title(QString(shownTitle).remove(QLatin1Char('&')))
    , id(wantedId)
    , heading(new QToolButton(this))
    , state(new QLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading);
    layout->addWidget(state);
    setObjectName(id);
    heading->setObjectName(id + QStringLiteral(".heading"));
    heading->setText(shownTitle);
    heading->setAccessibleName(title);
    heading->setCheckable(true);
    heading->setAutoRaise(true);
    heading->setFocusPolicy(Qt::StrongFocus);
    heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    heading->setArrowType(Qt::RightArrow);
    heading->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    state->setObjectName(id + QStringLiteral(".state"));
    state->setTextFormat(Qt::PlainText);
    state->setWordWrap(true);
    state->setIndent(fontMetrics().height());
    connect(heading, &QToolButton::toggled, this, [this](bool isOpen) { SetFolded(!isOpen); });
    connect(&job, &EditedJob::SettingsChanged, this, [this] { Refresh(); });
}

void SettingsSection::SetContent(QWidget* wanted)
{
    content = wanted;
    const int indent = fontMetrics().height();
    content->setContentsMargins(indent, 0, 0, indent / 2);
    layout()->addWidget(content);
    SetFolded(true);
    Refresh();
}

void SettingsSection::SetFolded(bool isFolded)
{
    content->setVisible(!isFolded);
    heading->setArrowType(isFolded ? Qt::RightArrow : Qt::DownArrow);
    heading->setChecked(!isFolded);
}

bool SettingsSection::IsFolded() const
{
    return !heading->isChecked();
}

QString SettingsSection::StateText() const
{
    return state->text();
}

void SettingsSection::ShowState(const QString& shown, const QString& problem)
{
    state->setText(problem.isEmpty() ? shown : QStringLiteral("\u26A0 ") + BatchHost::Translated(problem));
    heading->setAccessibleDescription(state->text());
}

} // namespace BatchDesktop
