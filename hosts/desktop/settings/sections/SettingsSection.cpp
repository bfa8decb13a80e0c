// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SettingsSection.h"

#include "ElidedLabel.h"

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
    , state(new ElidedLabel(this))
    , problemLine(new QLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* const line = new QHBoxLayout;
    line->addWidget(heading);
    line->addWidget(state, 1);
    layout->addLayout(line);
    layout->addWidget(problemLine);
    setObjectName(id);
    heading->setObjectName(id + QStringLiteral(".heading"));
    heading->setText(shownTitle);
    heading->setAccessibleName(title);
    heading->setCheckable(true);
    heading->setAutoRaise(true);
    heading->setFocusPolicy(Qt::StrongFocus);
    heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    heading->setArrowType(Qt::RightArrow);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    state->setObjectName(id + QStringLiteral(".state"));
    problemLine->setObjectName(id + QStringLiteral(".problem"));
    problemLine->setTextFormat(Qt::PlainText);
    problemLine->setWordWrap(true);
    problemLine->setIndent(fontMetrics().height());
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
    return problemLine->isHidden() ? state->text() : problemLine->text();
}

void SettingsSection::ShowState(const QString& shown, const QString& problem)
{
    const bool isWrong = !problem.isEmpty();
    state->setText(isWrong ? QString() : shown);
    problemLine->setText(isWrong ? QStringLiteral("\u26A0 ") + BatchHost::Translated(problem) : QString());
    problemLine->setVisible(isWrong);
    heading->setAccessibleDescription(StateText());
}

} // namespace BatchDesktop
