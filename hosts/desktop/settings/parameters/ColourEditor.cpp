// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourEditor.h"

#include "ColourText.h"

#include "Choosers.h"
#include "hosts/common/Language.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

ColourEditor::ColourEditor(const ParameterRow& row, const Choosers& choosers, QWidget* parent)
    : ParameterEditor(parent)
    , button(new QToolButton(this))
    , field(new QLineEdit(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);
    layout->addWidget(field, 1);
    Adopt(*button, row, QStringLiteral("button"));
    Adopt(*field, row);
    button->setAccessibleName(Messages::tr("Choose a colour for %1").arg(row.label));
    SetMainControl(field);
    connect(button, &QToolButton::clicked, this, [this, &choosers, row] { Choose(choosers, row.label); });
    connect(field, &QLineEdit::textEdited, this, [this, schema = row.schema](const QString& text) {
        const ParameterValue typed = ParameterFromText(schema, text);
        if (typed.IsValid()) {
            shown = typed.value.toString();
            ShowSwatch();
            Q_EMIT Edited(typed.value);
        }
        Q_EMIT Refused(typed.error);
    });
}

void ColourEditor::SetValue(const QJsonValue& value)
{
    // A name that stands for the colour, or a text that is being typed, stays.
    if (value.toString() != shown) {
        shown = value.toString();
        Q_EMIT Refused(QString());
        field->setText(shown);
    }
    ShowSwatch();
}

void ColourEditor::Choose(const Choosers& choosers, const QString& title)
{
    choosers.colour(this, title, ColourOfText(shown), [this](const QColor& colour) {
        Q_EMIT Edited(TextOfColour(colour));
        Q_EMIT EditEnded();
    });
}

void ColourEditor::ShowSwatch()
{
    const int side = fontMetrics().height();
    QPixmap swatch(QSize(side, side) * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(Qt::transparent);
    QPainter painter(&swatch);
    // What is transparent shows the pattern behind it.
    painter.fillRect(0, 0, side, side, QBrush(palette().color(QPalette::WindowText), Qt::Dense6Pattern));
    painter.fillRect(0, 0, side, side, ColourOfText(shown));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(0, 0, side - 1, side - 1);
    painter.end();
    button->setIcon(swatch);
}

} // namespace BatchDesktop
