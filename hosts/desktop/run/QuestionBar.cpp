// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "QuestionBar.h"

#include "RunTexts.h"

#include "hosts/common/Language.h"

#include <QAccessible>
#include <QVBoxLayout>

using BatchHost::Messages;
using namespace BatchJob;

namespace BatchDesktop {

QuestionBar::QuestionBar(JobRunner& runner, QWidget* parent)
    : QFrame(parent)
    , runner(runner)
    , text(new QLabel)
    , existingPicture(new QLabel)
    , wantedPicture(new QLabel)
    , answers(new QHBoxLayout)
    , forTheRest(new QCheckBox(Messages::tr("&Do this for the rest of the run")))
{
    setObjectName(QStringLiteral("questionBar"));
    setAccessibleName(Messages::tr("Question about a picture"));
    setFrameShape(QFrame::StyledPanel);
    text->setObjectName(QStringLiteral("questionText"));
    existingPicture->setObjectName(QStringLiteral("existingPicture"));
    wantedPicture->setObjectName(QStringLiteral("wantedPicture"));
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    forTheRest->setObjectName(QStringLiteral("answerForTheRest"));
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(existingPicture);
    layout->addWidget(wantedPicture);
    layout->addWidget(text, 1);
    auto* const right = new QVBoxLayout;
    right->addLayout(answers);
    right->addWidget(forTheRest);
    layout->addLayout(right);
    connect(&runner, &JobRunner::QuestionChanged, this, &QuestionBar::Refresh);
    Refresh();
}

void QuestionBar::SetPictures(const QPixmap& existing, const QPixmap& wanted)
{
    Show(existing, existingPicture, Messages::tr("The file that exists"));
    Show(wanted, wantedPicture, Messages::tr("The picture whose result would have its name"));
}

void QuestionBar::Show(const QPixmap& picture, QLabel* label, const QString& description)
{
    constexpr int lines = 4;
    const double ratio = devicePixelRatioF();
    const int length = qRound(lines * fontMetrics().lineSpacing() * ratio);
    QPixmap scaled = picture;
    if (picture.height() > length) {
        scaled = picture.scaledToHeight(length, Qt::SmoothTransformation);
    }
    scaled.setDevicePixelRatio(ratio);
    label->setPixmap(scaled);
    label->setVisible(!picture.isNull());
    label->setToolTip(description);
    label->setAccessibleName(description);
}

void QuestionBar::Refresh()
{
    const std::optional<JobRunner::Question>& question = runner.OpenQuestion();
    setVisible(question.has_value());
    if (!question) {
        return;
    }
    text->setText(QuestionText(*question));
    setAccessibleDescription(text->text());
    forTheRest->setChecked(false);
    MakeButtons(question->kind);
    SetPictures({}, {});
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (question->kind == PolicyKind::Naming) {
        Q_EMIT PicturesWanted(question->output, question->input);
    }
}

void QuestionBar::MakeButtons(PolicyKind kind)
{
    for (QPushButton* const button : qAsConst(buttons)) {
        button->deleteLater(); // This may be called from a click.
        answers->removeWidget(button);
        button->hide();
    }
    buttons.clear();
    for (int value = 0; value < PolicyWords(kind).size(); ++value) {
        if (value == AskingPolicy(kind)) {
            continue;
        }
        auto* const button = new QPushButton(AnswerText(kind, value), this);
        button->setObjectName(QStringLiteral("answer_") + PolicyWord(kind, value));
        button->setFocusPolicy(Qt::TabFocus); // A click must not take the focus from where the user works.
        connect(button, &QPushButton::clicked, this, [this, value] { runner.Answer(value, forTheRest->isChecked()); });
        answers->addWidget(button);
        buttons.append(button);
        QWidget::setTabOrder(button, forTheRest);
    }
}

} // namespace BatchDesktop
