// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SettingsPane.h"

#include "effects/EffectsSection.h"
#include "parameters/ParameterForm.h"
#include "sections/CropSection.h"
#include "sections/ErrorsSection.h"
#include "sections/FolderSection.h"
#include "sections/FormatSection.h"
#include "sections/FrameSection.h"
#include "sections/MetadataSection.h"
#include "sections/NamesSection.h"
#include "sections/ProfileSection.h"
#include "sections/SizeSection.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace BatchDesktop {

namespace {

/// Scrolls up and down only: it is never narrower than what is in it.
class ColumnArea : public QScrollArea
{
public:
    explicit ColumnArea(QWidget* parent)
        : QScrollArea(parent)
    {
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    QSize minimumSizeHint() const override
    {
        const QSize usual = QScrollArea::minimumSizeHint();
        if (widget() == nullptr) {
            return usual;
        }
        return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), usual.height()};
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event); // It watches its widget.
    }
};

} // namespace

SettingsPane::SettingsPane(EditedJob& job, QWidget* parent, Choosers wanted)
    : QWidget(parent)
    , choosers(std::move(wanted))
{
    auto* const area = new ColumnArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto* const content = new QWidget(area);
    sections.append(new SizeSection(job, choosers, content));
    sections.append(new CropSection(job, choosers, content));
    sections.append(effects = new EffectsSection(job, choosers, content));
    sections.append(new FrameSection(job, choosers, content));
    sections.append(names = new NamesSection(job, choosers, content));
    sections.append(new FormatSection(job, choosers, content));
    sections.append(new MetadataSection(job, choosers, content));
    sections.append(new ProfileSection(job, choosers, content));
    sections.append(new ErrorsSection(job, choosers, content));
    sections.append(new FolderSection(job, choosers, content));
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, style()->pixelMetric(QStyle::PM_LayoutRightMargin), 0);
    for (SettingsSection* const section : qAsConst(sections)) {
        column->addWidget(section);
    }
    column->addStretch();
    area->setWidget(content);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    const auto forms = findChildren<ParameterForm*>();
    for (const ParameterForm* const form : forms) {
        connect(form, &ParameterForm::Rebuilt, this, &SettingsPane::OrderTabs);
    }
    OrderTabs();
}

SettingsPane::~SettingsPane() = default;

// Sections are made in the order of the screen, and so is what they contain.
void SettingsPane::OrderTabs()
{
    QWidget* before = nullptr;
    for (const SettingsSection* const section : qAsConst(sections)) {
        const auto widgets = section->findChildren<QWidget*>();
        for (QWidget* const widget : widgets) {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy() && widget->window() == window()) {
                if (before) {
                    setTabOrder(before, widget);
                }
                before = widget;
            }
        }
    }
}

void SettingsPane::SetExample(const QString& file, int position, const QDateTime& captured)
{
    names->SetExample(file, position, captured);
}

QMenu* SettingsPane::AddEffectMenu() const
{
    return effects->AddMenu();
}

QList<QAction*> SettingsPane::EffectActions() const
{
    return effects->ChainActions();
}

} // namespace BatchDesktop
