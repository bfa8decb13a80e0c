// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewPane.h"

#include "PreviewTexts.h"
#include "PreviewView.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/job/EditedJob.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

using BatchHost::Messages;
using BatchHost::Translated;

namespace BatchDesktop {

namespace {

/// `settings` without what changes no pixel and no byte of a result.
Settings WithoutNames(Settings settings)
{
    settings.outputFolder.clear();
    settings.structure = {};
    settings.nameParts = {};
    settings.prefixSeparator.clear();
    settings.suffixSeparator.clear();
    return settings;
}

QLabel* NewLabel(const QString& name, const QString& accessibleName)
{
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setAccessibleName(accessibleName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

PreviewPane::PreviewPane(EditedJob& job, QWidget* parent)
    : PreviewPane(job, std::make_unique<PreviewMaker>(), parent)
{
}

PreviewPane::PreviewPane(EditedJob& job, std::unique_ptr<PreviewMaker> newMaker, QWidget* parent)
    : QWidget(parent)
    , job(job)
    , maker(std::move(newMaker))
    , view(new PreviewView)
    , facts(NewLabel(QStringLiteral("previewFacts"), Messages::tr("Sizes before and after")))
    , more(NewLabel(QStringLiteral("previewMore"), Messages::tr("State of the preview")))
{
    setObjectName(QStringLiteral("previewPane"));
    setAccessibleName(Messages::tr("Preview"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(NewToolRow());
    layout->addWidget(view, 1);
    layout->addWidget(facts);
    layout->addWidget(more);
    connect(&job, &EditedJob::SettingsChanged, this, &PreviewPane::OnSettingsChanged);
    connect(maker.get(), &PreviewMaker::Updating, this, [this] {
        view->SetUpdating(true);
        facts->setEnabled(false);
        Say(facts->text(), {Messages::tr("Updating")});
    });
    connect(maker.get(), &PreviewMaker::Made, this, &PreviewPane::OnMade);
    connect(maker.get(), &PreviewMaker::Failed, this, &PreviewPane::OnFailed);
    connect(view, &PreviewView::ZoomChanged, this, &PreviewPane::NoteZoom);
    SetFile(QString());
    NoteZoom();
}

PreviewPane::~PreviewPane() = default;

QAction* PreviewPane::AddAction(const QString& text, const QString& name, const QKeySequence& key)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    // Digits are for text fields elsewhere.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    return action;
}

QWidget* PreviewPane::NewToolRow()
{
    fit = AddAction(Messages::tr("&Fit"), QStringLiteral("previewFit"), Qt::Key_1);
    fit->setToolTip(Messages::tr("Show all of the picture (1)"));
    exact = AddAction(Messages::tr("&100 %"), QStringLiteral("previewExact"), Qt::Key_2);
    exact->setToolTip(Messages::tr("One pixel of the result on one pixel of the screen (2)"));
    doubled = AddAction(Messages::tr("&200 %"), QStringLiteral("previewDouble"), Qt::Key_3);
    doubled->setToolTip(Messages::tr("One pixel of the result on four pixels of the screen (3)"));
    withLine = AddAction(Messages::tr("&Line"), QStringLiteral("previewLine"), Qt::Key_4);
    withLine->setToolTip(Messages::tr("Before and after with a line between them (4)"));
    sideBySide = AddAction(Messages::tr("&Side by side"), QStringLiteral("previewSideBySide"), Qt::Key_5);
    sideBySide->setToolTip(Messages::tr("Before and after side by side (5)"));
    renew = AddAction(Messages::tr("Preview &anew"), QStringLiteral("previewRenew"), Qt::Key_F5);
    renew->setToolTip(Messages::tr("Make the preview anew from the file on the disk (F5)"));
    renew->setShortcutContext(Qt::WindowShortcut);
    connect(renew, &QAction::triggered, this, &PreviewPane::Renew);

    auto* const zooms = new QActionGroup(this);
    auto* const ways = new QActionGroup(this);
    for (QAction* const action : {fit, exact, doubled, withLine, sideBySide}) {
        action->setCheckable(true);
        const bool isZoom = action != withLine && action != sideBySide;
        (isZoom ? zooms : ways)->addAction(action);
    }
    withLine->setChecked(true);
    connect(zooms, &QActionGroup::triggered, this, [this](const QAction* action) {
        view->SetZoom(action == fit ? ViewZoom::Fit : action == exact ? ViewZoom::Exact : ViewZoom::Double);
    });
    connect(ways, &QActionGroup::triggered, this,
            [this](const QAction* action) { view->SetSideBySide(action == sideBySide); });

    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    const auto add = [layout](QAction* action) {
        auto* const button = new QToolButton;
        button->setDefaultAction(action);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setAccessibleName(action->iconText());
        button->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(button);
    };
    add(fit);
    add(exact);
    add(doubled);
    layout->addStretch();
    add(withLine);
    add(sideBySide);
    auto* const before = new QToolButton;
    before->setText(Messages::tr("&Before"));
    before->setObjectName(QStringLiteral("previewBeforeButton"));
    before->setAccessibleName(Messages::tr("Before"));
    before->setToolTip(Messages::tr("Show the picture before as long as this is held (space bar on the picture)"));
    before->setFocusPolicy(Qt::StrongFocus);
    connect(before, &QToolButton::pressed, view, [this] { view->SetBeforeOnly(true); });
    connect(before, &QToolButton::released, view, [this] { view->SetBeforeOnly(false); });
    layout->addWidget(before);
    return row;
}

void PreviewPane::SetFile(const QString& newFile)
{
    file = newFile;
    if (file.isEmpty()) {
        maker->Stop();
        view->SetUpdating(false);
        view->SetMessage(Messages::tr("Choose a picture to see what becomes of it."));
        Say(QString(), {});
    } else {
        view->SetMessage(QString());
        facts->clear();
        Ask();
    }
}

void PreviewPane::Renew()
{
    if (!file.isEmpty()) {
        Ask();
    }
}

QList<QAction*> PreviewPane::Actions() const
{
    return {fit, exact, doubled, withLine, sideBySide, renew};
}

void PreviewPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (isOutdated) {
        Renew();
    }
}

void PreviewPane::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (maker->IsUpdating()) {
        maker->Stop();
        isOutdated = true;
    }
}

void PreviewPane::OnSettingsChanged()
{
    if (!file.isEmpty() && WithoutNames(job.CurrentSettings()) != WithoutNames(shown)) {
        Ask();
    }
}

void PreviewPane::Ask()
{
    isOutdated = !isVisible();
    if (!isOutdated) {
        shown = job.CurrentSettings();
        maker->Show(file, shown);
    }
}

void PreviewPane::OnMade(const PreviewPictures& pictures)
{
    view->SetUpdating(false);
    view->SetPictures(pictures);
    facts->setEnabled(true);
    QStringList lines{ExactnessText(pictures)};
    for (const BatchJob::Warning& warning : pictures.warnings) {
        lines.append(Translated(warning.text));
    }
    Say(FactsText(pictures), lines);
}

void PreviewPane::OnFailed(const QString& reason)
{
    const QString text = Translated(reason);
    view->SetUpdating(false);
    view->SetMessage(text);
    Say(QString(), {text});
}

/// What is more than a few lines is in the tool tip: the picture needs the room.
void PreviewPane::Say(const QString& newFacts, const QStringList& lines)
{
    constexpr int mostLines = 3;
    facts->setText(newFacts);
    more->setText(lines.mid(0, mostLines).join(QLatin1Char('\n')));
    more->setToolTip(lines.join(QLatin1Char('\n')));
}

void PreviewPane::NoteZoom()
{
    const ViewZoom zoom = view->Zoom();
    (zoom == ViewZoom::Fit ? fit : zoom == ViewZoom::Exact ? exact : doubled)->setChecked(true);
}

} // namespace BatchDesktop
