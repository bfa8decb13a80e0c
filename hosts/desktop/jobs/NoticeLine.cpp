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
    , message(new QLabel(this))
    , button(new QToolButton(this))
    , close(new QToolButton(this))
{
    setObjectName(QStringLiteral("notice"));
    setFrameShape(QFrame::StyledPanel);
    message->setObjectName(QStringLiteral("noticeText"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    button->setObjectName(QStringLiteral("noticeAction"));
    close->setObjectName(QStringLiteral("noticeClose"));
    close->setText(Messages::tr("Close"));
    close->setAccessibleName(Messages::tr("Close the notice"));
    auto* const row = new QHBoxLayout(this);
    row->addWidget(message, 1);
    for (QToolButton* const each : {button, close}) {
        each->setFocusPolicy(Qt::StrongFocus);
        row->addWidget(each);
    }
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(button, &QToolButton::clicked, this, [this] {
        hide();
        std::exchange(pending, {})();
    });
    hide();
}

void NoticeLine::Show(const QString& text)
{
    Show(text, QString(), {});
}

void NoticeLine::Show(const QString& text, const QString& label, const std::function<void()>& action)
{
    message->setText(text);
    pending = action;
    button->setText(label);
    button->setAccessibleName(label);
    button->setVisible(bool(action));
    setAccessibleName(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QString NoticeLine::Text() const
{
    return isHidden() ? QString() : message->text();
}

} // namespace BatchDesktop
