// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectsSection.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/settings/parameters/ParameterForm.h"
#include "hosts/desktop/settings/parameters/ParameterValues.h"
#include "job/effects/EffectCatalog.h"
#include "job/values/Phrase.h"

#include <QHBoxLayout>
#include <QListView>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

QListView* MakeList(EffectChain& chain, QWidget* parent)
{
    auto* const list = new QListView(parent);
    list->setObjectName(QStringLiteral("effects.list"));
    list->setAccessibleName(Messages::tr("Effects in the order in which they are applied"));
    list->setModel(&chain);
    list->setDragDropMode(QAbstractItemView::InternalMove);
    list->setDefaultDropAction(Qt::MoveAction);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    return list;
}

QVector<ParameterRow> RowsOf(const EffectSchema& schema)
{
    QVector<ParameterRow> rows;
    for (const ParameterSchema& parameter : schema.parameters) {
        rows.append(RowOf(parameter, QStringLiteral("effects.") + schema.id));
    }
    return rows;
}

QJsonObject ValuesOf(const EffectSchema& schema, const QByteArray& given)
{
    QJsonObject values;
    for (const ParameterSchema& parameter : schema.parameters) {
        const QJsonValue value = ValueIn(given, parameter);
        if (!value.isUndefined()) {
            values.insert(parameter.name, value);
        }
    }
    return values;
}

} // namespace

EffectsSection::EffectsSection(EditedJob& job, const Choosers& choosers, QWidget* parent)
    : SettingsSection(Messages::tr("Effec&ts"), QStringLiteral("effects"), job, choosers, parent)
    , chain(job, nullptr)
    , problems(nullptr)
{
    auto* const content = new QWidget(this);
    list = MakeList(chain, content);
    MakeAddMenu(content);
    MakeActions();
    auto* const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list);
    layout->addWidget(MakeButtons(content));
    form = new ParameterForm(choosers, content);
    layout->addWidget(form);

    connect(&chain, &EffectChain::rowsInserted, this,
            [this](const QModelIndex&, int, int last) { list->setCurrentIndex(chain.index(last)); });
    connect(&chain, &EffectChain::rowsInserted, this, &EffectsSection::FollowRows);
    connect(&chain, &EffectChain::rowsRemoved, this, &EffectsSection::FollowRows);
    connect(&chain, &EffectChain::rowsMoved, this, &EffectsSection::FollowRows);
    connect(&chain, &EffectChain::dataChanged, this, &EffectsSection::ShowCurrent);
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        Job().EndStep();
        ShowCurrent();
    });
    connect(form, &ParameterForm::Edited, this, [this](const QString& name, const QJsonValue& value) {
        if (CurrentRow() >= 0) {
            chain.SetParameter(CurrentRow(), name, value);
        }
    });
    connect(form, &ParameterForm::EditEnded, this, [this] { Job().EndStep(); });
    connect(&problems, &EffectProblems::Checked, this, [this](const QVector<QString>& found) {
        chain.SetProblems(found);
        ShowCurrent();
        Refresh();
    });
    SetContent(content);
    FollowRows();
    problems.Check(Now().effects);
    connect(&job, &EditedJob::SettingsChanged, this, [this] {
        Refresh(); // The chain follows after the first time.
        problems.Check(Now().effects);
    });
}

void EffectsSection::MakeAddMenu(QWidget* content)
{
    addMenu = new QMenu(Messages::tr("Add an effect"), content);
    addMenu->setToolTipsVisible(true);
    for (const EffectSchema& schema : Effects()) {
        QAction* const action = addMenu->addAction(EffectChain::NameOf(schema.id));
        action->setObjectName(QStringLiteral("effects.add.") + schema.id);
        action->setToolTip(BatchHost::Translated(schema.description));
        connect(action, &QAction::triggered, this, [this, id = schema.id] { chain.Add(id); });
    }
}

void EffectsSection::MakeActions()
{
    duplicate = MakeAction("duplicate", Messages::tr("Duplicate the effect"), QKeySequence(Qt::CTRL + Qt::Key_D));
    remove = MakeAction("remove", Messages::tr("Remove the effect"), QKeySequence(Qt::Key_Delete));
    up = MakeAction("up", Messages::tr("Apply the effect earlier"), QKeySequence(Qt::ALT + Qt::Key_Up));
    down = MakeAction("down", Messages::tr("Apply the effect later"), QKeySequence(Qt::ALT + Qt::Key_Down));
    connect(duplicate, &QAction::triggered, this, [this] { chain.Duplicate(CurrentRow()); });
    connect(remove, &QAction::triggered, this, [this] { chain.removeRows(CurrentRow(), 1); });
    connect(up, &QAction::triggered, this, [this] { chain.Move(CurrentRow(), CurrentRow() - 1); });
    connect(down, &QAction::triggered, this, [this] { chain.Move(CurrentRow(), CurrentRow() + 1); });
}

QAction* EffectsSection::MakeAction(const char* id, const QString& text, const QKeySequence& key)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(QStringLiteral("effects.") + QLatin1String(id));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    list->addAction(action);
    chainActions.append(action);
    return action;
}

QWidget* EffectsSection::MakeButtons(QWidget* content)
{
    auto* const buttons = new QWidget(content);
    auto* const layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const add = new QToolButton(buttons);
    add->setText(Messages::tr("Add"));
    add->setAccessibleName(addMenu->title());
    add->setObjectName(QStringLiteral("effects.add"));
    add->setMenu(addMenu);
    add->setPopupMode(QToolButton::InstantPopup);
    add->setFocusPolicy(Qt::StrongFocus);
    layout->addWidget(add);
    const QStringList texts{Messages::tr("Duplicate"), Messages::tr("Remove"), Messages::tr("Up"),
                            Messages::tr("Down")};
    for (int i = 0; i < chainActions.size(); ++i) {
        chainActions.at(i)->setIconText(texts.at(i));
        auto* const button = new QToolButton(buttons);
        button->setDefaultAction(chainActions.at(i));
        button->setAccessibleName(chainActions.at(i)->text());
        button->setObjectName(chainActions.at(i)->objectName() + QStringLiteral(".button"));
        button->setFocusPolicy(Qt::StrongFocus);
        if (chainActions.at(i) == up || chainActions.at(i) == down) {
            button->setArrowType(chainActions.at(i) == up ? Qt::UpArrow : Qt::DownArrow);
            button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        }
        layout->addWidget(button);
    }
    layout->addStretch();
    return buttons;
}

void EffectsSection::Refresh()
{
    QString problem;
    for (int row = 0; row < chain.rowCount() && problem.isEmpty(); ++row) {
        if (!chain.ProblemOf(row).isEmpty()) {
            problem = BatchJob::Phrase::English("Effect %1, \"%2\": %3")
                          .arg(QString::number(row + 1), chain.At(row).name, chain.ProblemOf(row));
        }
    }
    ShowState(State(), problem);
}

void EffectsSection::FollowRows()
{
    list->setVisible(chain.rowCount() > 0);
    list->updateGeometry();
    if (!list->currentIndex().isValid() && chain.rowCount() > 0) {
        list->setCurrentIndex(chain.index(0));
    }
    ShowCurrent();
}

void EffectsSection::ShowCurrent()
{
    EnableActions();
    const int row = CurrentRow();
    const EffectSchema* const schema = row < 0 ? nullptr : FindEffect(chain.At(row).name);
    form->SetRows(schema ? RowsOf(*schema) : QVector<ParameterRow>());
    if (schema) {
        form->SetValues(ValuesOf(*schema, chain.At(row).parameters));
    }
    form->SetProblem(row < 0 ? QString() : chain.ProblemOf(row));
}

void EffectsSection::EnableActions()
{
    const int row = CurrentRow();
    duplicate->setEnabled(row >= 0);
    remove->setEnabled(row >= 0);
    up->setEnabled(row > 0);
    down->setEnabled(row >= 0 && row + 1 < chain.rowCount());
}

int EffectsSection::CurrentRow() const
{
    const int row = list->currentIndex().row();
    return row < chain.rowCount() ? row : -1;
}

QString EffectsSection::State() const
{
    QStringList names;
    for (int row = 0; row < chain.rowCount(); ++row) {
        if (chain.At(row).isEnabled) {
            names.append(EffectChain::NameOf(chain.At(row).name));
        }
    }
    if (names.isEmpty()) {
        return chain.rowCount() == 0 ? Messages::tr("No effects") : Messages::tr("All effects are switched off");
    }
    return names.join(QStringLiteral(", "));
}

} // namespace BatchDesktop
