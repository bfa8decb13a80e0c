// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResumeBar.h"

#include "RunTexts.h"

#include "hosts/common/Language.h"

#include <QAccessible>
#include <QHBoxLayout>

using BatchHost::Messages;

namespace BatchDesktop {

ResumeBar::ResumeBar(QWidget* parent)
    : QFrame(parent)
    , text(new QLabel)
{
    setObjectName(QStringLiteral("resumeBar"));
    setAccessibleName(Messages::tr("Interrupted run"));
    setFrameShape(QFrame::StyledPanel);
    text->setObjectName(QStringLiteral("resumeText"));
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(text, 1);
    resume = AddButton("resumeInterrupted", Messages::tr("Res&ume"), &ResumeBar::ResumeWanted);
    AddButton("forgetInterrupted", Messages::tr("For&get"), &ResumeBar::ForgetWanted);
    Refresh();
}

QPushButton* ResumeBar::AddButton(const char* name, const QString& label,
                                  void (ResumeBar::*wanted)(const InterruptedRun&))
{
    auto* const button = new QPushButton(label, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, [this, wanted] {
        const InterruptedRun run = runs.takeFirst();
        Refresh();
        Q_EMIT(this->*wanted)(run);
    });
    layout()->addWidget(button);
    return button;
}

void ResumeBar::Offer(const QVector<InterruptedRun>& newRuns)
{
    const int countBefore = runs.size();
    for (const InterruptedRun& run : newRuns) {
        if (!offered.contains(run.journal)) {
            offered.insert(run.journal);
            runs.append(run);
        }
    }
    if (countBefore == 0) {
        Refresh();
    }
}

void ResumeBar::SetCanResume(bool isPossible)
{
    resume->setEnabled(isPossible);
}

void ResumeBar::Refresh()
{
    setVisible(!runs.isEmpty());
    if (runs.isEmpty()) {
        return;
    }
    text->setText(InterruptedText(runs.first()));
    setAccessibleDescription(text->text());
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace BatchDesktop
