// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AddingLine.h"

#include "InputAdder.h"

#include "hosts/common/Language.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

/// Of the tool tip, which must fit on the screen.
constexpr int mostLines = 30;

} // namespace

AddingLine::AddingLine(InputAdder& adder, QWidget* parent)
    : QWidget(parent)
    , adder(adder)
    , text(new QLabel)
    , stop(new QToolButton)
    , close(new QToolButton)
{
    text->setObjectName(QStringLiteral("addingText"));
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    stop->setObjectName(QStringLiteral("stopAdding"));
    stop->setText(Messages::tr("Stop adding"));
    close->setObjectName(QStringLiteral("closeProblems"));
    close->setText(Messages::tr("Close"));
    for (QToolButton* const button : {stop, close}) {
        button->setFocusPolicy(Qt::StrongFocus);
        button->setAccessibleName(button->text());
    }
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(text, 1);
    row->addWidget(stop);
    row->addWidget(close);
    connect(stop, &QToolButton::clicked, &adder, &InputAdder::Cancel);
    connect(close, &QToolButton::clicked, this, &AddingLine::Close);
    connect(&adder, &InputAdder::Began, this, &AddingLine::Update);
    connect(&adder, &InputAdder::Ended, this, &AddingLine::ShowProblems);
    Update();
}

void AddingLine::ShowProblems(const QStringList& found)
{
    problems += found;
    Update();
}

void AddingLine::Close()
{
    problems.clear();
    Update();
}

void AddingLine::Update()
{
    const bool isBusy = adder.IsBusy();
    const int count = problems.size();
    QStringList shown;
    if (isBusy) {
        shown.append(Messages::tr("Adding pictures\u2026"));
    }
    if (count > 0) {
        shown.append(problems.first());
    }
    if (count > 1) {
        shown.append(Messages::tr("Problems of this kind: %1; point here to read them.").arg(count));
    }
    text->setText(shown.join(QLatin1Char(' ')));
    text->setAccessibleName(text->text());
    text->setToolTip(QStringList(problems.mid(0, mostLines)).join(QLatin1Char('\n')));
    stop->setVisible(isBusy);
    close->setVisible(count > 0);
    setVisible(isBusy || count > 0);
}

} // namespace BatchDesktop
