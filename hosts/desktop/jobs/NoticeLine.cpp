// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NoticeLine.h"

#include "hosts/common/Language.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <utility>

using BatchHost::Messages;

namespace BatchDesktop {

NoticeLine::NoticeLine(QWidget* parent)
    : QFrame(parent)
    , text(new QLabel(this))
    , button(new QToolButton(this))
    , close(new QToolButton(this))
{
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    text->setObjectName(QStringLiteral("noticeText"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    button->setObjectName(QStringLiteral("noticeAction"));
    close->setObjectName(QStringLiteral("noticeClose"));
    close->setText(Messages::tr("Close"));
    close->setAccessibleName(Messages::tr("Close the notice"));
    auto* const row = new QHBoxLayout(this);
    row->addWidget(text, 1);
    for (QToolButton* const each : {button, close}) {
        each->setFocusPolicy(Qt::StrongFocus);
        row->addWidget(each);
    }
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(button, &QToolButton::clicked, this, [this] {
        hide();
        std::exchange(action, {})();
    });
    hide();
}

void NoticeLine::Show(const QString& wanted)
{
    Show(wanted, QString(), {});
}

void NoticeLine::Show(const QString& wanted, const QString& label, const std::function<void()>& wantedAction)
{
    text->setText(wanted);
    action = wantedAction;
    button->setText(label);
    button->setAccessibleName(label);
    button->setVisible(bool(action));
    setAccessibleName(wanted);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString NoticeLine::Text() const
{
    return isHidden() ? QString() : text->text();
}

} // namespace BatchDesktop
