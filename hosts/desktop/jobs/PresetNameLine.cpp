// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetNameLine.h"

#include "PresetBox.h"

#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace BatchHost;

namespace BatchDesktop {

PresetNameLine::PresetNameLine(PresetBox& presets, QWidget* parent)
    : QFrame(parent)
    , presets(presets)
    , label(new QLabel(this))
    , name(new QLineEdit(this))
    , accept(new QPushButton(this))
    , cancel(new QPushButton(Messages::tr("Cancel"), this))
    , problem(new QLabel(this))
{
    setObjectName(QStringLiteral("presetNameLine"));
    setFrameShape(QFrame::StyledPanel);
    name->setObjectName(QStringLiteral("presetName"));
    name->setAccessibleName(Messages::tr("Name of the preset"));
    label->setBuddy(name);
    accept->setObjectName(QStringLiteral("presetNameAccept"));
    cancel->setObjectName(QStringLiteral("presetNameCancel"));
    cancel->setAccessibleName(Messages::tr("Cancel the naming of the preset"));
    problem->setObjectName(QStringLiteral("presetNameProblem"));
    problem->setTextFormat(Qt::PlainText);
    problem->setWordWrap(true);
    auto* const row = new QHBoxLayout(this);
    row->addWidget(label);
    row->addWidget(name, 1);
    row->addWidget(problem, 1);
    row->addWidget(accept);
    row->addWidget(cancel);
    connect(name, &QLineEdit::textChanged, this, &PresetNameLine::Refresh);
    connect(name, &QLineEdit::returnPressed, this, &PresetNameLine::Accept);
    connect(accept, &QPushButton::clicked, this, &PresetNameLine::Accept);
    connect(cancel, &QPushButton::clicked, this, &QWidget::hide);
    hide();
}

void PresetNameLine::Ask(Purpose wanted, const QString& suggestion)
{
    purpose = wanted;
    label->setText(purpose == Purpose::Save ? Messages::tr("Save the settings as the preset")
                                            : Messages::tr("New name of the preset %1").arg(presets.Active()));
    name->setText(suggestion);
    name->selectAll();
    Refresh();
    show();
    name->setFocus(Qt::OtherFocusReason);
}

void PresetNameLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else {
        QFrame::keyPressEvent(event);
    }
}

void PresetNameLine::Refresh()
{
    const QString wanted = name->text().trimmed();
    const bool isOther = purpose == Purpose::Save || !PresetBox::AreSame(wanted, presets.Active());
    const bool replaces = isOther && presets.IsOwn(wanted);
    const QString action = replaces                     ? Messages::tr("Replace")
                           : purpose == Purpose::Rename ? Messages::tr("Rename")
                                                        : Messages::tr("Save");
    accept->setText(action);
    accept->setAccessibleName(replaces ? Messages::tr("Replace the preset %1").arg(wanted) : action);
    accept->setEnabled(!wanted.isEmpty());
    problem->setText(replaces ? Messages::tr("You have a preset of this name; it would be replaced.") : QString());
    problem->setVisible(!problem->text().isEmpty());
}

void PresetNameLine::Accept()
{
    const QString wanted = name->text().trimmed();
    try {
        // The button has said so.
        if (purpose == Purpose::Save) {
            presets.Save(wanted, presets.IsOwn(wanted));
        } else {
            presets.Rename(wanted, presets.IsOwn(wanted));
        }
    } catch (const RequestError& error) {
        problem->setText(Translated(error.text));
        problem->show();
        name->setFocus(Qt::OtherFocusReason);
        return;
    }
    hide();
}

} // namespace BatchDesktop
