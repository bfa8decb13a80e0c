// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"

#include "hosts/desktop/settings/sections/SettingsSection.h"
#include "hosts/desktop/window/MainWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QButtonGroup>
#include <QLabel>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;

/// The whole window for people who do not use a mouse, or do not see it.
class tst_WindowAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyControlHasANameAndARole();
    void tabReachesEveryControl();
    void tabReachesEveryControlInNarrowWindows();
    void mnemonicsAreUnique();
    void everyActionOfAButtonIsInAMenu_data();
    void everyActionOfAButtonIsInAMenu();
    void keysLeadThroughThePanes();
    void aPictureIsCurrentAtOnce();

private:
    void CheckTabs();
    QVector<QWidget*> Controls() const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<MainWindow> window;
};

namespace {

constexpr int patience = 60'000; // ms

QString Described(const QWidget* widget)
{
    return QStringLiteral("%1 \"%2\"").arg(QLatin1String(widget->metaObject()->className()), widget->objectName());
}

/// Of buttons of which one is down, Tab reaches that one.
bool IsLeftToArrows(const QWidget* widget)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(widget);
    const bool isOneOfSome = button && (button->autoExclusive() || (button->group() && button->group()->exclusive()));
    return isOneOfSome && !button->isChecked();
}

bool IsReached(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr && widget->isVisible() &&
           widget->isEnabled() && !IsLeftToArrows(widget);
}

void AddActions(const QMenu* menu, QVector<const QAction*>& all)
{
    for (const QAction* const action : menu->actions()) {
        if (action->menu() != nullptr) {
            AddActions(action->menu(), all);
        } else if (!action->isSeparator()) {
            all.append(action);
        }
    }
}

} // namespace

void tst_WindowAccess::init()
{
    folder = std::make_unique<QTemporaryDir>();
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(folder->filePath(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
    window = std::make_unique<MainWindow>(folder->filePath(QStringLiteral("settings")),
                                          folder->filePath(QStringLiteral("data")));
    window->resize(1400, 900);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    window->AddPaths({folder->filePath(QStringLiteral("photos"))});
    QTRY_COMPARE_WITH_TIMEOUT(window->Job().Document().GetInputModel()->GetFileNodesCount(), 3, patience);
    const auto sections = window->findChildren<SettingsSection*>();
    QVERIFY(!sections.isEmpty());
    for (SettingsSection* const section : sections) {
        section->SetFolded(false);
    }
}

void tst_WindowAccess::cleanup()
{
    window.reset();
}

QVector<QWidget*> tst_WindowAccess::Controls() const
{
    QVector<QWidget*> controls;
    const auto widgets = window->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (IsReached(widget) && widget->window() == window.get()) {
            controls.append(widget);
        }
    }
    return controls;
}

void tst_WindowAccess::everyControlHasANameAndARole()
{
    const QVector<QWidget*> controls = Controls();
    QVERIFY(controls.size() > 30);
    QStringList nameless;
    for (QWidget* const widget : controls) {
        QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(shown, qPrintable(Described(widget)));
        const bool hasRole = shown->role() != QAccessible::NoRole && shown->role() != QAccessible::Client;
        if (shown->text(QAccessible::Name).trimmed().isEmpty() || !hasRole) {
            nameless.append(Described(widget));
        }
    }
    QCOMPARE(nameless.join(QStringLiteral(", ")), QString());
}

void tst_WindowAccess::tabReachesEveryControl()
{
    CheckTabs();
}

void tst_WindowAccess::tabReachesEveryControlInNarrowWindows()
{
    window->resize(1024, 640);
    QCOMPARE(window->size(), QSize(1024, 640));
    CheckTabs();
}

void tst_WindowAccess::CheckTabs()
{
    const QVector<QWidget*> controls = Controls();
    QSet<QWidget*> missing(controls.begin(), controls.end());
    controls.first()->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 3 * controls.size() && !missing.isEmpty(); ++i) {
        QWidget* const now = QApplication::focusWidget();
        QVERIFY(now);
        missing.remove(now);
        QTest::keyClick(now, Qt::Key_Tab);
        if (QApplication::focusWidget() == now) {
            QTest::keyClick(now, Qt::Key_Tab, Qt::ControlModifier); // Fields of several lines take it without Ctrl.
        }
        QVERIFY2(QApplication::focusWidget() != now, qPrintable(QStringLiteral("Tab ends at ") + Described(now)));
    }
    QStringList names;
    for (const QWidget* const widget : qAsConst(missing)) {
        names.append(Described(widget));
    }
    names.sort();
    QCOMPARE(names.join(QStringLiteral(", ")), QString());
}

// Of what is on the screen while the settings are folded.
void tst_WindowAccess::mnemonicsAreUnique()
{
    const auto sections = window->findChildren<SettingsSection*>();
    for (SettingsSection* const section : sections) {
        section->SetFolded(true);
    }
    QMap<QString, QStringList> users;
    const auto note = [&users](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty()) {
            users[key.toString()].append(text);
        }
    };
    for (const QAction* const action : window->menuBar()->actions()) {
        note(action->text());
    }
    const auto buttons = window->findChildren<QAbstractButton*>();
    for (const QAbstractButton* const button : buttons) {
        if (button->isVisible()) {
            note(button->text());
        }
    }
    const auto labels = window->findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        if (label->isVisible() && label->buddy() != nullptr) {
            note(label->text());
        }
    }
    for (auto user = users.cbegin(); user != users.cend(); ++user) {
        QVERIFY2(user->size() == 1, qPrintable(user.key() + QStringLiteral(": ") + user->join(QStringLiteral(", "))));
    }
    for (const QAction* const top : window->menuBar()->actions()) {
        QMap<QString, QStringList> inMenu;
        for (const QAction* const action : top->menu()->actions()) {
            inMenu[QKeySequence::mnemonic(action->text()).toString()].append(action->text());
        }
        inMenu.remove(QString());
        for (auto user = inMenu.cbegin(); user != inMenu.cend(); ++user) {
            QVERIFY2(user->size() == 1,
                     qPrintable(top->text() + QStringLiteral(": ") + user->join(QStringLiteral(", "))));
        }
    }
}

void tst_WindowAccess::everyActionOfAButtonIsInAMenu_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"Start",
                             "Pause",
                             "Cancel the run",
                             "Resume the run",
                             "Add files",
                             "Add folder",
                             "Remove",
                             "Fit",
                             "Side by side",
                             "Preview anew",
                             "Duplicate the effect",
                             "Undo",
                             "Redo",
                             "Save as preset",
                             "Open job",
                             "Save job",
                             "Copy as command",
                             "Show failed",
                             "Retry failed",
                             "Open folder",
                             "Save report"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_WindowAccess::everyActionOfAButtonIsInAMenu()
{
    QFETCH(QString, text);
    QVector<const QAction*> all;
    for (const QAction* const top : window->menuBar()->actions()) {
        AddActions(top->menu(), all);
    }
    const bool isThere = std::any_of(all.begin(), all.end(), [&text](const QAction* action) {
        return QString(action->text()).remove(QLatin1Char('&')).startsWith(text);
    });
    QVERIFY(isThere);
}

void tst_WindowAccess::keysLeadThroughThePanes()
{
    window->Pictures().setFocus();
    QSet<QWidget*> visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(window.get(), Qt::Key_F6);
        for (QWidget* const pane :
             {static_cast<QWidget*>(&window->Pictures()), static_cast<QWidget*>(&window->Preview())}) {
            if (pane->isAncestorOf(QApplication::focusWidget())) {
                visited.insert(pane);
            }
        }
    }
    QCOMPARE(visited.size(), 2);
}

void tst_WindowAccess::aPictureIsCurrentAtOnce()
{
    QTRY_COMPARE(window->Pictures().Current(), folder->filePath(QStringLiteral("photos/1.jpg")));
    QCOMPARE(window->Preview().File(), window->Pictures().Current());
}

QTEST_MAIN(tst_WindowAccess)

#include "tst_windowaccess.moc"
